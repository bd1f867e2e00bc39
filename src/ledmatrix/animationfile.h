#pragma once

#include <functional>

#include <QByteArrayList>
#include <QString>

// Animation files: frames back to back, each a run of the digits 1 and 0 in frame order, without line ends. Nothing
// here touches a widget; a sender thread may call it.

inline constexpr int kMaximumFrames = 192; ///< of an animation that is read or sent

/// Adds a frame's digits to the end of a file, which is made when there is none. The error's text; empty when written.
QString appendFrame(const QString &fileName, const QByteArray &digits);

/// Writes frames in order. An older file of that name stays untouched until all are written, and is then replaced.
/// @p written is told how many frames are written, after each. The error's text; empty when written.
QString writeAnimation(const QString &fileName, const QByteArrayList &frames,
                       const std::function<void(int written)> &written);

/// What was read of an animation file: frames of 1050 bytes, 192 at most; or why it could not be opened.
struct ReadAnimation
{
    QByteArrayList frames;
    QString error;
};

/// Reads an animation file. It goes in steps of 1050 bytes for either form: files of the tapering form come out
/// shifted, on purpose.
ReadAnimation readAnimation(const QString &fileName);
