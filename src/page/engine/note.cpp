#include "page/engine/note.h"

#include <QLabel>

#include "controls/dress.h"
#include "controls/palette.h"
#include "controls/sharedfonts.h"
#include "controls/wrappedlabel.h"

QLabel *makeNote(QWidget *parent)
{
    auto *note = new WrappedLabel(parent);
    note->setObjectName(QStringLiteral("note"));
    note->setFont(noteFont);
    dressText(note, {Palette::kHint});
    return note;
}
