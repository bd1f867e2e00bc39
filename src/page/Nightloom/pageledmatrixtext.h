#pragma once

#include <QLabel>
#include <QPointer>

#include "page/Nightloom/accessorycheck.h"
#include "page/engine/boundtexts.h"
#include "page/engine/page.h"

class QProgressBar;
class QPushButton;
class QVBoxLayout;
class SliderWidget;
class TextWidget;

/// The page on which the user writes a text that goes over the accessory's matrix, and uploads it.
class pageLEDMatrixText : public QLabel, public Page
{
    Q_OBJECT
public:
    explicit pageLEDMatrixText(AccessoryCheck ensureConnected, QWidget *parent = nullptr);

    void updateInterfaceData() override {} // nothing here comes from the monitor
    void updateControlText() override;
    QWidget *widget() override { return this; }

    TextWidget *text() const { return m_text; }
    QPushButton *saveButton() const { return m_save; }
    QProgressBar *progressBar() const { return m_progress; }
    QString phase() const { return m_phaseLabel->text(); }
    QString notice() const { return m_notice->text(); }
    bool isBusy() const { return m_phase != Phase::Idle; }

public Q_SLOTS:
    /// Renders the text into the text file and uploads it.
    void saveData();

Q_SIGNALS:
    /// Long work begins and ends; the window keeps everything else from the accessory meanwhile.
    void busyBegins();
    void busyEnded();

private:
    /// Where the work stands. The device erases its memory before it takes the text; each of the two is told to 100.
    enum class Phase { Idle, Rendering, Erasing, Writing };

    void buildForm();
    QWidget *buildTools();
    void buildPreviewTools(QVBoxLayout *column);
    void connectWork();

    void onFrames(const QByteArrayList &frames);
    void onUploadProgress(int value);
    void enter(Phase phase);
    void endWork();
    void fail(const QString &text);
    void showProgress(int value);
    void showNotice(const QString &text);

    AccessoryCheck m_ensureConnected;
    BoundTexts m_texts;
    TextWidget *m_text;
    QWidget *m_tools = nullptr;
    QPushButton *m_save = nullptr;
    QLabel *m_phaseLabel;
    QLabel *m_notice;
    QProgressBar *m_progress;
    QPointer<QWidget> m_focusBefore; ///< while nothing can be used
    Phase m_phase = Phase::Idle;
};
