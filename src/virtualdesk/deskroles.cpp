#include "virtualdesk/deskroles.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace virtualdesk {

namespace {

constexpr struct
{
    const char *className;
    QAccessible::Role role;
} kRoles[] = {
    {"virtualdesk::DeskWindow", QAccessible::Window},   {"virtualdesk::MonitorPanel", QAccessible::Pane},
    {"virtualdesk::DesktopPanel", QAccessible::Pane},   {"virtualdesk::AccessoryPanel", QAccessible::Pane},
    {"virtualdesk::SoundPanel", QAccessible::Pane},     {"virtualdesk::ScreenView", QAccessible::Graphic},
    {"virtualdesk::WindowsView", QAccessible::Graphic}, {"virtualdesk::MatrixView", QAccessible::Graphic},
    {"virtualdesk::OsdList", QAccessible::Pane},
};

QAccessibleInterface *describe(const QString &className, QObject *object)
{
    for (const auto &[name, role] : kRoles) {
        if (className == QLatin1String(name))
            return new QAccessibleWidget(static_cast<QWidget *>(object), role);
    }
    return nullptr;
}

} // namespace

void describeDeskToAssistiveSoftware()
{
    static const bool installed = (QAccessible::installFactory(&describe), true);
    Q_UNUSED(installed)
}

} // namespace virtualdesk
