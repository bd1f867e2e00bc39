#include "page/engine/optionbutton.h"

#include <iterator>

#include <QPushButton>
#include <QString>

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

// Four states by picture, in the order normal, hover, checked, disabled; then the keyboard focus and the text colours.
const char *const kOptionPictureStyle =
    "QPushButton { border-image: url(%1);}QPushButton:hover { border-image: url(%2);}"
    "QPushButton:checked { border-image: url(%3);}"
    "QPushButton:disabled { border-image: url(%4);}";
constexpr char16_t kTextStyle[] =
    u"QPushButton:focus { border-image: url(%1);}QPushButton:checked:focus { border-image: url(%2);}"
    "QPushButton { color: @soft; }QPushButton:checked { color: @ink; }"
    "QPushButton:disabled { color: @disabled; }"
    "QPushButton:checked:disabled { border-image: url(%3); }";

QString picture(const char *size, const char *state)
{
    return Pictures::kRoot + QStringLiteral("img/option/%1_%2.png").arg(QLatin1String(size), QLatin1String(state));
}

} // namespace

QString optionStyle(const char *pictures)
{
    const auto of = [pictures](const char *state) { return picture(pictures, state); };
    return QString::fromLatin1(kOptionPictureStyle).arg(of("normal"), of("hover"), of("checked"), of("disabled")) +
           Palette::styled(kTextStyle).arg(of("focus"), of("checkedfocus"), of("checkeddisabled"));
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
    if (button->width() == size->width && !button->styleSheet().isEmpty())
        return; // a style sheet is dear, and it would be the same
    button->setFixedSize(size->width, metrics::kControlHeight);
    button->setStyleSheet(optionStyle(size->pictures));
}
