#include "page/engine/halfbutton.h"

#include <QPushButton>

#include "controls/metrics.h"
#include "page/engine/boundtexts.h"

namespace {

constexpr int kPixels = 15;
constexpr int kWidth = 128;

const char *const kStyle = "QPushButton { border-image: url(%1normal.png); color: #adadad; padding-right: %2px; }"
                           "QPushButton:hover { border-image: url(%1hover.png); }"
                           "QPushButton:checked { border-image: url(%1checked.png); color: #0c100e; }"
                           "QPushButton:focus { border-image: url(%1focus.png); }"
                           "QPushButton:checked:focus { border-image: url(%1checkedfocus.png); }";

} // namespace

void dressHalfButton(QPushButton *button)
{
    button->setFixedSize(kWidth, metrics::kControlHeight);
    QFont font = button->font();
    font.setPixelSize(kPixels);
    button->setFont(font);
    // The blanks before the label are balanced behind it, so that the word stands in the middle.
    const qsizetype blanks = button->text().size() - QStringView(button->text()).trimmed().size();
    const int width = QFontMetrics(font).horizontalAdvance(QString(blanks, QLatin1Char(' ')));
    const QString style =
        QString::fromLatin1(kStyle).arg(QStringLiteral(":/resource/img/option/selector_"), QString::number(width));
    if (button->styleSheet() != style)
        button->setStyleSheet(style);
}

QPushButton *makeHalfButton(const char *label, BoundTexts &texts, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(QStringLiteral("half_") + QString::fromUtf8(label).trimmed());
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    texts.bind(label, [button](const QString &text) {
        button->setText(text);
        button->setAccessibleName(text.trimmed());
        dressHalfButton(button);
    });
    return button;
}
