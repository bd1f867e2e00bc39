#pragma once

#include <QLabel>

#include "page/Nightloom/parts/accessorycheck.h"
#include "page/Nightloom/parts/workpanel.h"
#include "page/engine/boundtexts.h"
#include "page/engine/page.h"

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
    WorkPanel *work() const { return m_work; }
    bool isBusy() const { return m_work->isBusy(); }

public Q_SLOTS:
    /// Renders the text into the text file and uploads it.
    void saveData();

Q_SIGNALS:
    /// Long work begins and ends; the window keeps everything else from the accessory meanwhile.
    void busyBegins();
    void busyEnded();

private:
    void buildForm();
    QWidget *buildTools();
    void buildPreviewTools(QVBoxLayout *column);
    void connectWork();

    void onFrames(const QByteArrayList &frames);
    void onUploadProgress(int value);
    void onUploadEnded(bool complete);
    void cancelWork();

    AccessoryCheck m_ensureConnected;
    BoundTexts m_texts;
    TextWidget *m_text;
    QWidget *m_tools = nullptr;
    QPushButton *m_save = nullptr;
    WorkPanel *m_work;
    bool m_uploads = false; ///< the work has come to its upload
};
