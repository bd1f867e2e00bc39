#pragma once

#include "page/engine/panelpage.h"

class QProcess;

/// What there is around the monitor: its firmware version, where to read more, and the firmware's upgrade.
class pageServicesSetting : public PanelPage
{
    Q_OBJECT
public:
    explicit pageServicesSetting(CommandQueue &queue, QWidget *parent = nullptr);

    void updateInterfaceData() override;

protected:
    QWidget *buildPart(const char *name) override;
    bool offers(const PanelSpec &panel) const override;

private Q_SLOTS:
    void onKnowledgeButtonClicked();
    void onUpgradeButtonClicked();

private:
    QWidget *buildVersion();
    QWidget *buildQrCode();
    QWidget *buildAction(const char *label, const char *pictures, void (pageServicesSetting::*pressed)());
    void showVersion();
    void startUpgrade(const QStringList &arguments);
    void upgradeFailed();

    QLabel *m_version = nullptr;
    QProcess *m_upgrade = nullptr; ///< the last upgrade program that was started
};
