#include "page/engine/note.h"

#include <QLabel>

#include "controls/sharedfonts.h"

QLabel *makeNote(QWidget *parent)
{
    auto *note = new QLabel(parent);
    note->setObjectName(QStringLiteral("note")); // by which the style sheet knows it
    note->setFont(noteFont);
    return note;
}
