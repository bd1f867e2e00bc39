#include "page/engine/optionbutton.h"

#include <iterator>

#include <QPushButton>
#include <QString>
#include <QStyle>
#include <QVariant>

#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/pictures.h"

namespace {

constexpr int kButtonPixels = 14;
constexpr int kTextMargin = 10; // on either side of a button's text

struct ButtonSize
{
    int width;
    const char *pictures;
};
constexpr ButtonSize kButtonSizes[] = {{78, "small"}, {124, "big"}, {196, "wide"}};

constexpr const char *kPictures[] = {"small", "big", "wide", "selector", "narrow"}; // what there are drawings of

// @at is the button, @img where its drawings lie. The states by picture, then the colours of the text.
constexpr char16_t kStyle[] = u"@at { border-image: url(@img_normal.png); color: @soft; }"
                              "@at:hover { border-image: url(@img_hover.png); }"
                              "@at:checked { border-image: url(@img_checked.png); color: @ink; }"
                              "@at:disabled { border-image: url(@img_disabled.png); color: @disabled; }"
                              "@at:focus { border-image: url(@img_focus.png); }"
                              "@at:checked:focus { border-image: url(@img_checkedfocus.png); }"
                              "@at:checked:disabled { border-image: url(@img_checkeddisabled.png); }";

} // namespace

QString optionStyle()
{
    QString style;
    for (const char *pictures : kPictures) {
        const QLatin1String name(pictures);
        style += QString::fromUtf16(kStyle)
                     .replace(QLatin1String("@at"), QStringLiteral("QPushButton[pictures=\"%1\"]").arg(name))
                     .replace(QLatin1String("@img"), Pictures::kRoot + QStringLiteral("img/option/") + name);
    }
    return Palette::styled(style);
}

void dressByPictures(QPushButton *button, const char *pictures)
{
    if (button->property("pictures").toByteArray() == pictures)
        return;
    button->setProperty("pictures", QByteArray(pictures));
    button->style()->unpolish(button); // or it would keep the look that it has
    button->style()->polish(button);
}

void dressOptionButton(QPushButton *button)
{
    QFont font = button->font();
    font.setPixelSize(kButtonPixels);
    button->setFont(font);
    const int needed = QFontMetrics(font).horizontalAdvance(button->text()) + 2 * kTextMargin;
    const ButtonSize *size = kButtonSizes;
    while (size != std::end(kButtonSizes) - 1 && size->width < needed)
        ++size;
    button->setFixedSize(size->width, metrics::kControlHeight);
    dressByPictures(button, size->pictures);
}
