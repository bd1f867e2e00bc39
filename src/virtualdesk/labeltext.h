#pragma once

#include <QLabel>

namespace virtualdesk {

/// A text that a label has already is not given to it again: it would be laid out anew, each time a panel refreshes.
inline void setTextOf(QLabel *label, const QString &text)
{
    if (label->text() != text)
        label->setText(text);
}

} // namespace virtualdesk
