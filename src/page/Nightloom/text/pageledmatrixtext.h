#pragma once

#include "page/Nightloom/parts/longworkpage.h"

class QPushButton;
class TextWidget;

/// The page on which the user writes a text that goes over the accessory's matrix, and uploads it.
class pageLEDMatrixText : public LongWorkPage
{
    Q_OBJECT
public:
    explicit pageLEDMatrixText(AccessoryCheck ensureConnected, QWidget *parent = nullptr);

    void updateInterfaceData() override {} // nothing here comes from the monitor
    void updateControlText() override;

    TextWidget *text() const { return m_text; }
    QPushButton *saveButton() const { return m_save; }

public Q_SLOTS:
    /// Renders the text into the text file and uploads it.
    void saveData();

protected:
    void buildTools(QVBoxLayout *column, QWidget *tools) override;
    void cancelWork() override;

private:
    void buildPreviewTools(QVBoxLayout *column, QWidget *tools);
    void connectWork();

    void onFrames(const QByteArrayList &frames);
    void onUploadProgress(int value);
    void onUploadEnded(bool complete);

    TextWidget *m_text;
    QPushButton *m_save = nullptr;
    bool m_uploads = false; ///< the work has come to its upload
};
