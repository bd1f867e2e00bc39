#pragma once

#include <QTextDocument>

/// A text from outside, such as a path, for a tool tip, which would take marks in it for rich text: shown as it stands.
/// Labels and message boxes are told the same by their text format.
inline QString asItStands(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}
