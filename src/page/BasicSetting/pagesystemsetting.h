#pragma once

#include "page/engine/panelpage.h"

class SearchDeviceDlg;

/// The monitor's system functions: menu, sound, power, language, reset.
class pageSystemSetting : public PanelPage
{
    Q_OBJECT
public:
    pageSystemSetting(SearchDeviceDlg &session, CommandQueue &queue, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The monitor resets itself: it is away for some seconds, and so should the window be.
    void resetBegins();

protected:
    QWidget *buildPart(const char *name) override;

private:
    void resetFactory();
    bool refusesSecondLock(int value);

    SearchDeviceDlg &m_session;
};
