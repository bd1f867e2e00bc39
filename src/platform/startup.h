#pragma once

#include <optional>

#include <QString>

namespace platform {

/// What the system starts when the user logs on: one named value a program, its text the program's path. On Windows the
/// values of HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Run. All calls are made on the interface
/// thread.
class StartUp
{
public:
    virtual ~StartUp() = default;

    /// The text of a value; nothing when there is none.
    virtual std::optional<QString> value(const QString &name) = 0;

    /// Writes a value. False when the system did not take it.
    virtual bool setValue(const QString &name, const QString &text) = 0;

    /// Takes a value away. False when the system did not let it; a value that is not there is no failure.
    virtual bool removeValue(const QString &name) = 0;
};

} // namespace platform
