#include "page/Nightloom/parts/toolcolumn.h"

#include <QFrame>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/captions.h"
#include "controls/metrics.h"
#include "controls/sliderwidget.h"
#include "page/Nightloom/parts/frameplayer.h"
#include "page/engine/boundtexts.h"
#include "page/engine/labels.h"

namespace {

constexpr int kButtonWidth = 136;
constexpr int kButtonPixels = 14;
constexpr int kTextMargin = 8;

} // namespace

QVBoxLayout *makeToolColumn(QWidget *tools)
{
    auto *column = new QVBoxLayout(tools);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kRowGap);
    return column;
}

QPushButton *makeToolButton(const char *label, BoundTexts &texts, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(QLatin1String(label));
    button->setProperty("tool", true); // what the style sheet knows it by
    button->setFixedSize(kButtonWidth, metrics::kControlHeight);
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

SliderWidget *makeToolSlider(const ToolSlider &made, int value, BoundTexts &texts, QWidget *parent)
{
    auto *slider = new SliderWidget(QLatin1String(made.label), made.minimum, made.maximum, parent);
    slider->setCaptionWidth(kToolCaptionWidth);
    slider->setValue(value);
    texts.bind(made.unit, [slider](const QString &pattern) { slider->slider()->setUnit(pattern); });
    texts.bind(made.label, [slider](const QString &text) { slider->setCaption(text); });
    return slider;
}

SliderWidget *makeSpeedSlider(FramePlayer &player, BoundTexts &texts, QWidget *parent)
{
    constexpr ToolSlider kSpeed = {LABEL("Frames/s"), FramePlayer::kSlowest, FramePlayer::kFastest,
                                   LABEL("%1 frames a second")};
    SliderWidget *slider = makeToolSlider(kSpeed, player.speed(), texts, parent);
    QObject::connect(slider, &SliderWidget::sliderValueChanged, &player,
                     [&player](const QString &, int value) { player.setSpeed(value); });
    return slider;
}
