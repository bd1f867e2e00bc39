#pragma once

#include <atomic>

#include <QWidget>

#include "page/Health/everythingread.h"

class BoundTexts;
class HealthErrors;
class HealthFigures;
class QComboBox;
class QLabel;
class QPushButton;

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
    void build();
    QWidget *buildButtons();
    void noteRequest();
    void refreshSoon();
    void fillMonitors();
    void fillButtons();
    void say(const QString &text);
    std::size_t chosen() const;

    BoundTexts &m_texts;
    EverythingRead m_reading;
    std::atomic<bool> m_isNoted = false; ///< a refresh is on its way
    bool m_isBuilt = false;
    QComboBox *m_monitors = nullptr;
    HealthFigures *m_figures = nullptr;
    HealthErrors *m_errors = nullptr;
    QLabel *m_facts = nullptr;
    QLabel *m_result = nullptr;
    QPushButton *m_read = nullptr;
    QPushButton *m_record = nullptr;
};
