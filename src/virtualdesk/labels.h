#pragma once

#include <utility>

#include <QGridLayout>
#include <QLabel>

namespace virtualdesk {

/// A text that a label has already is not given to it again: it would be laid out anew, each time a panel refreshes.
inline void setTextOf(QLabel *label, const QString &text)
{
    if (label->text() != text)
        label->setText(text);
}

/// The title of a part of a panel; the panel gives it its text.
inline QLabel *makeTitle(QWidget *panel)
{
    auto *title = new QLabel(panel);
    title->setObjectName(QStringLiteral("title"));
    return title;
}

/// A line of a panel's list: a name, and its value at the right edge.
inline std::pair<QLabel *, QLabel *> addValueLine(QGridLayout *grid, int row, QWidget *panel)
{
    auto *name = new QLabel(panel);
    auto *value = new QLabel(panel);
    value->setObjectName(QStringLiteral("value"));
    grid->addWidget(name, row, 0);
    grid->addWidget(value, row, 1, Qt::AlignRight);
    return {name, value};
}

} // namespace virtualdesk
