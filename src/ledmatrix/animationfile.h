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
/// @p goesOn is told how many frames are written, after each; with false nothing is replaced. The error's text, in any
/// words after that; empty when written.
QString writeAnimation(const QString &fileName, const QByteArrayList &frames,
                       const std::function<bool(int written)> &goesOn);

/// What was read of an animation file; or why it could not be opened.
struct ReadAnimation
{
    QByteArrayList frames;
    qint64 framesInFile = 0; ///< whole ones, also those beyond what is read at most
    QString error;
};

/// The bytes of a step of an import, whatever the form: files of the tapering form come out shifted, on purpose.
inline constexpr qint64 kImportStep = 1050;

/// Reads an animation file in steps of so many bytes, so many at most; a piece at its end is left.
ReadAnimation readAnimation(const QString &fileName, qint64 frameBytes = kImportStep, qint64 most = kMaximumFrames);
