#pragma once

#include <QRect>

#include "PictureAudioCom/screencolours.h"
#include "platform/joinedthread.h"

/// Looks at a screen's colours on a thread of its own, once for each request: a copy may have to wait for the screen.
class ScreenSampler : public JoinedThread
{
    Q_OBJECT
public:
    explicit ScreenSampler(QObject *parent = nullptr) : JoinedThread(parent) {}
    ~ScreenSampler() override { wait(); }

    /// Looks at this part of the desktop; a request during a look is left out. Owner's thread only.
    void request(const QRect &screen);

Q_SIGNALS:
    /// A look has ended; when it failed these are the colours of the last one that did not. Comes to the owner's
    /// thread.
    void looked(bool ok, const ZoneColours &colours);

protected:
    void run() override;

private:
    QRect m_screen;
    ScreenColours m_colours;
};
