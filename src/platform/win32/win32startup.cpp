#include "platform/win32/win32startup.h"

#include <QSettings>
#include <QVariant>

namespace platform {

namespace {

/// The key, opened for one call.
struct RunKey
{
    QSettings settings{QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"),
                       QSettings::NativeFormat};

    bool finish()
    {
        settings.sync();
        return settings.status() == QSettings::NoError;
    }
};

} // namespace

std::optional<QString> Win32StartUp::value(const QString &name)
{
    const QVariant value = RunKey().settings.value(name);
    return value.isValid() ? std::optional(value.toString()) : std::nullopt;
}

bool Win32StartUp::setValue(const QString &name, const QString &text)
{
    RunKey key;
    key.settings.setValue(name, text);
    return key.finish();
}

bool Win32StartUp::removeValue(const QString &name)
{
    RunKey key;
    key.settings.remove(name);
    return key.finish();
}

} // namespace platform
