#pragma once

#include "page/engine/panelpage.h"

class HealthPanel;
class QComboBox;
class SearchDeviceDlg;
struct ToolLanguage;

/// The settings of the tool itself: start at log-on, language, which of the connected monitors it controls, and
/// how the link to them is.
class pagePCSetting : public PanelPage
{
    Q_OBJECT
public:
    pagePCSetting(SearchDeviceDlg &session, CommandQueue &queue, QWidget *parent = nullptr);

    void updateInterfaceData() override;
    void updateControlText() override;

    /// Fills the machine list with the monitors that the session found. Changes no machine.
    void updateMachineCombox();

protected:
    QWidget *buildPart(const char *name) override;
    std::optional<int> ownValue(const char *label) override;
    void onButtonClicked(const char *label, int value) override;

    /// Asks before the program starts anew; anything but "No" is true.
    virtual bool ask(const QString &title, const QString &text);

private Q_SLOTS:
    void onComboxIndexChanged(int nIndex);

private:
    QWidget *buildVersion();
    QWidget *buildMachine();
    void setRunOnStartUp(bool on);
    void changeLanguage(const ToolLanguage &language);
    bool restartWith(const QString &key, const QVariant &value);

    SearchDeviceDlg &m_session;
    QComboBox *m_machines = nullptr;
    HealthPanel *m_health = nullptr;
};
