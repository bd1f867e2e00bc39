#pragma once

#include <memory>
#include <optional>

#include <QObject>

#include "platform/clock.h"

class DesktopToast;

/// Whether a hot key shows on the desktop what it did; so at first.
bool hotkeyOverlayOn();

/// False when the setting could not be stored.
bool setHotkeyOverlayOn(bool on);

/// A note in the corner of the desktop about the last hot key: the function and its new value, for 1.5 s.
class HotkeyOverlay : public QObject
{
    Q_OBJECT
public:
    explicit HotkeyOverlay(QObject *parent = nullptr);
    ~HotkeyOverlay() override;

    /// Shows a note in place of the one before, unless the user has switched that off. A level, 0 to 1, is a bar.
    void showNote(const QString &function, const QString &value, std::optional<double> level = {});

    /// Shows what the program has to say by itself, for 8 s, also when the user has switched the notes off.
    void showMessage(const QString &title, const QString &text);

    bool isShown() const;

    /// What the last note said, as "function: value".
    QString text() const;
    /// The level of its bar; nothing when it has none.
    std::optional<double> level() const;

private:
    void show(const QString &title, const QString &text, std::optional<double> level, platform::milliseconds shown);

    std::unique_ptr<DesktopToast> m_toast;
    int m_notes = 0; ///< a note does not end with the time of the one before
};
