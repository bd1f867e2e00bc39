#pragma once

#include <array>

#include <QWidget>

#include "page/Health/everythingread.h"
#include "page/Health/healthtexts.h"

class BoundTexts;
class QComboBox;
class QLabel;
class QPushButton;
class QVBoxLayout;
class TimeCurve;

/// How the link to each monitor has been since the program started. Built when it is first shown, and refreshed only
/// while it is: after a request, at most four times a second.
class HealthPanel : public QWidget
{
    Q_OBJECT
public:
    /// The texts of the page that it is on; the queue carries what is asked.
    HealthPanel(BoundTexts &texts, CommandQueue &queue, QWidget *parent);
    ~HealthPanel() override;

    /// Fills everything in the language of now; does nothing while it is not shown.
    void refresh();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private Q_SLOTS:
    void onReadPressed();
    void onCopyPressed();
    void onRecordToggled(bool on);

private:
    struct Tile
    {
        QLabel *value = nullptr;
        QLabel *detail = nullptr;
    };

    void build();
    QLabel *makeLabel(const QString &name, int pixels, const char *text = nullptr);
    QWidget *buildTiles();
    QWidget *buildTile(Tile &tile, const char *caption);
    QWidget *buildCurve();
    QWidget *buildErrors();
    QWidget *buildButtons();
    QPushButton *makeButton(const char *label, const QString &name);
    void noteRequest();
    void refreshSoon();
    void fillMonitors();
    void fillCurve(const LinkRecord &record, const QDateTime &now);
    void fillErrors(const LinkRecord &record);
    void fillButtons();
    void say(const QString &text);
    std::size_t chosen() const;

    BoundTexts &m_texts;
    EverythingRead m_reading;
    std::atomic<bool> m_isNoted = false; ///< a refresh is on its way
    bool m_isBuilt = false;
    std::array<Tile, kHealthFigures> m_tiles;
    QComboBox *m_monitors = nullptr;
    TimeCurve *m_curve = nullptr;
    QVBoxLayout *m_errors = nullptr;
    QLabel *m_facts = nullptr;
    QLabel *m_result = nullptr;
    QPushButton *m_read = nullptr;
    QPushButton *m_record = nullptr;
};
