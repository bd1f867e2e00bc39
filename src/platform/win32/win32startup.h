#pragma once

#include "platform/startup.h"

namespace platform {

/// The user's Run key in the registry, through the toolkit's native settings.
class Win32StartUp final : public StartUp
{
public:
    std::optional<QString> value(const QString &name) override;
    bool setValue(const QString &name, const QString &text) override;
    bool removeValue(const QString &name) override;
};

} // namespace platform
