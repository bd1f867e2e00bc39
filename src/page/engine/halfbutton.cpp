#include "page/engine/halfbutton.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>

#include "controls/accessiblecontrol.h"
#include "controls/behind.h"
#include "controls/focusgroup.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "page/engine/boundtexts.h"
#include "page/engine/optionbutton.h"

namespace {

constexpr int kHalfPixels = 15;

// As in HalfSize.
constexpr struct
{
    int width;
    const char *pictures;
} kSizes[] = {{128, "selector"}, {92, "narrow"}};

/// The groove that the halves in sight lie in.
void paintTrack(const std::vector<QPushButton *> &halves, QPainter &painter)
{
    QRect around;
    bool isUsable = false;
    for (const QPushButton *half : halves) {
        if (half->isHidden())
            continue;
        around |= half->geometry();
        isUsable = isUsable || half->isEnabled();
    }
    const qreal radius = around.height() / 2.0;
    painter.setPen(QColor(isUsable ? Palette::kTrack : Palette::kRestingEdge));
    painter.setBrush(QColor(Palette::kWell));
    painter.drawRoundedRect(QRectF(around).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

} // namespace

void dressHalfButton(QPushButton *button, HalfSize size)
{
    const auto &[wide, pictures] = kSizes[static_cast<int>(size)];
    button->setFixedSize(wide, metrics::kControlHeight);
    QFont font = button->font();
    font.setPixelSize(kHalfPixels);
    button->setFont(font);
    // The blanks before the label are balanced behind it, so that the word stands in the middle.
    const qsizetype blanks = button->text().size() - QStringView(button->text()).trimmed().size();
    const int width = QFontMetrics(font).horizontalAdvance(QString(blanks, QLatin1Char(' ')));
    const QString style = optionStyle(pictures) + QStringLiteral("QPushButton { padding-right: %1px; }").arg(width);
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

QHBoxLayout *joinHalves(QWidget *holder, QPushButton *defaultHalf, QPushButton *customHalf, BoundTexts &texts)
{
    describeAs(holder, QAccessible::Grouping);
    texts.bind(kHalvesLabel, [holder](const QString &text) { holder->setAccessibleName(text); });
    auto *choice = new QButtonGroup(holder);
    auto *stop = new FocusGroup(holder);
    auto *row = new QHBoxLayout(holder);
    row->setContentsMargins(0, 0, 0, 0);
    for (QPushButton *half : {defaultHalf, customHalf}) {
        choice->addButton(half);
        stop->add(half);
        row->addWidget(half);
    }
    return row;
}

void layInTrack(QWidget *holder, const std::vector<QPushButton *> &halves)
{
    paintBehind(holder, [halves](QPainter &painter) { paintTrack(halves, painter); });
}
