#pragma once

#include "page/Office/restreminder.h"
#include "page/engine/panelpage.h"

class DesktopToast;
class QSpinBox;

/// The monitor's office aids, of which the window's left bar chooses one.
class PageOffice : public PanelPage
{
    Q_OBJECT
public:
    explicit PageOffice(CommandQueue &queue, QWidget *parent = nullptr);
    ~PageOffice() override;

    void updateInterfaceData() override;
    void showEntry(const char *label) override { showPanel(label); }

    DesktopToast *toast() const { return m_toast.get(); }

protected:
    QWidget *buildPart(const char *name) override;
    void followValue(Command command) override;

private:
    void sendPaperSize();
    void showPaperSize();
    void followRestTimer();
    void remind();

    RestReminder m_reminder;
    std::unique_ptr<DesktopToast> m_toast;
    QWidget *m_paperSize = nullptr;
    QSpinBox *m_width = nullptr;
    QSpinBox *m_height = nullptr;
};
