#include "page/Nightloom/toolcolumn.h"

#include <QFrame>
#include <QPushButton>

#include "controls/captions.h"
#include "page/engine/boundtexts.h"

namespace {

constexpr int kButtonWidth = 136;
constexpr int kButtonHeight = 36;
constexpr int kButtonPixels = 14;
constexpr int kTextMargin = 8;

} // namespace

QPushButton *makeToolButton(const char *label, BoundTexts &texts, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(QLatin1String(label));
    button->setProperty("tool", true); // what the style sheet knows it by
    button->setFixedSize(kButtonWidth, kButtonHeight);
    button->setFocusPolicy(Qt::StrongFocus);
    texts.bind(label, [button](const QString &text) {
        const auto fitted = fitCaption(text, button->font(), kButtonPixels, kButtonWidth - 2 * kTextMargin);
        button->setFont(fitted.font);
        button->setText(fitted.text);
        button->setToolTip(fitted.elided ? text : QString());
        button->setAccessibleName(text);
    });
    return button;
}

QWidget *makeToolLine(QWidget *parent)
{
    auto *line = new QFrame(parent);
    line->setObjectName(QStringLiteral("line"));
    line->setFixedHeight(1);
    return line;
}
