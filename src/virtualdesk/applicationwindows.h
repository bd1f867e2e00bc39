#pragma once

#include <cstdint>
#include <optional>

#include <QObject>
#include <QRect>

#include "platform/desktopwindows.h"
#include "virtualdesk/applications.h"

namespace virtualdesk {

class SimulatedDisplays;

/// The programs' windows on the desk's displays, as the system tells of them and moves them. Interface thread only.
class ApplicationWindows : public QObject
{
    Q_OBJECT

public:
    /// Both outlive it.
    ApplicationWindows(Applications &applications, SimulatedDisplays &displays)
        : m_applications(applications), m_displays(displays)
    {
    }

    /// Null while the program itself is in front, or nothing was brought there.
    void *foregroundWindow() const;
    std::optional<QRect> rect(void *window) const;
    std::optional<QRect> visibleRect(void *window) const;
    std::uint32_t style(void *window) const;
    QString className(void *window) const;
    bool isHung(void *window) const;
    platform::DisplayHandle displayOf(void *window) const;
    /// The error's number; 0 when it was moved, which may be into a size of its own.
    std::uint32_t move(void *window, const QRect &rect);
    void show(void *window, ApplicationWindow::Shape shape);
    bool bringToFront(void *window);

Q_SIGNALS:
    void changed();

private:
    ApplicationWindow *find(void *window) const;

    Applications &m_applications;
    SimulatedDisplays &m_displays;
};

} // namespace virtualdesk
