#include "page/Health/healthlabel.h"

#include <QLabel>

#include "controls/sharedfonts.h"
#include "page/engine/boundtexts.h"

QLabel *makeHealthLabel(const QString &name, int pixels, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(pixels == 0);
    QFont font = noteFont;
    if (pixels > 0)
        font.setPixelSize(pixels);
    label->setFont(font);
    return label;
}

QLabel *makeHealthLabel(const QString &name, int pixels, const char *text, BoundTexts &texts, QWidget *parent)
{
    QLabel *const label = makeHealthLabel(name, pixels, parent);
    texts.bind(text, [label](const QString &translated) { label->setText(translated); });
    return label;
}
