#pragma once

#include "page/OledCare/carekeeper.h"
#include "page/engine/panelpage.h"

class CarePanel;
class DesktopQuestion;

/// What spares an OLED panel, when it was cared for and when it is to be again, and the reminder of that on the
/// desktop.
class pageOledCare : public PanelPage
{
    Q_OBJECT
public:
    explicit pageOledCare(CommandQueue &queue, QWidget *parent = nullptr);
    ~pageOledCare() override;

    void updateInterfaceData() override;
    void updateControlText() override;
    void reconcile() override;

    CareKeeper &keeper() { return m_keeper; }
    CarePanel *carePanel() const { return m_care; }
    /// The reminder; null before the first.
    DesktopQuestion *reminder() const { return m_reminder.get(); }

protected:
    QWidget *buildPart(const char *name) override;
    std::optional<int> ownValue(const char *group) override;
    void onButtonClicked(const char *group, int value) override;

    /// Asks whether care may begin now: the picture will be black.
    virtual bool mayBegin();

private:
    void showCare();
    void startCare();
    void begin();
    void remind();

    CareKeeper m_keeper;
    CarePanel *m_care = nullptr;
    std::unique_ptr<DesktopQuestion> m_reminder;
};
