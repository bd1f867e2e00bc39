#include "page/engine/picturestage.h"

#include <algorithm>
#include <utility>

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include "controls/metrics.h"
#include "controls/monitorpicture.h"
#include "controls/palette.h"
#include "ddc_protocol/devicestate.h"
#include "page/engine/optiongrouprow.h"

namespace {

constexpr int kWordsWidth = 200;
constexpr int kStripHeight = 196;
constexpr int kStripPicture = 256; ///< as wide as a monitor of that height is
constexpr int kNamePixels = 18;
constexpr int kWordsPixels = 14;

QLabel *makeLabel(int pixels, const char *colour, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setStyleSheet(Palette::styled(QStringLiteral("color: @%1; font-size: %2px; background: transparent;")
                                             .arg(QLatin1String(colour))
                                             .arg(pixels)));
    label->setWordWrap(true);
    return label;
}

/// The option of a row for a value; null when it has none.
const Option *optionOf(const OptionGroupRow *row, std::optional<int> value)
{
    if (!row || !value)
        return nullptr;
    const auto options = row->group().options;
    const auto found =
        std::find_if(options.begin(), options.end(), [value](const Option &option) { return option.value == *value; });
    return found == options.end() ? nullptr : &*found;
}

/// What an option is called; beside a list of many settings, also whose option it is.
QString nameOf(const OptionGroupRow *row, const Option &option, bool isOneOfMany)
{
    const QString name = QObject::tr(option.label).trimmed();
    return isOneOfMany ? QObject::tr(row->group().label) + QStringLiteral(" · ") + name : name;
}

/// Rows with something to say of their options come first.
const OptionGroupRow *rowWithWords(const std::vector<OptionGroupRow *> &rows)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [](const OptionGroupRow *row) {
        return std::ranges::any_of(row->group().options, [](const Option &option) { return option.words; });
    });
    return found == rows.end() ? nullptr : *found;
}

/// What is drawn as on: never what is only wished, and may be refused.
std::optional<int> monitorValue(Command command)
{
    return deviceState.isKnown(command) ? deviceState.confirmed(command) : std::nullopt;
}

/// What the screen is drawn with: a wish is shown at once, until it is refused.
std::optional<int> wishedValue(Command command)
{
    const ValueState state = deviceState.state(command);
    if (state == ValueState::Unknown || state == ValueState::Refused)
        return monitorValue(command);
    return deviceState.value(command);
}

/// Whether an option does nothing now, as a switch of the panel is off or something else locks it.
bool isIdle(const OptionGroupRow *told, int value, const std::vector<OptionGroupRow *> &rows)
{
    const QPushButton *button = told->buttonOf(value);
    return !(button && button->isEnabledTo(told)) || std::ranges::any_of(rows, [](const OptionGroupRow *row) {
        return row->group().look == GroupLook::Switch && deviceState.confirmed(*row->group().command) == 0;
    });
}

QString wordsOf(const Option &option)
{
    return option.words ? QObject::tr(option.words) : QString();
}

} // namespace

PictureStage::PictureStage(const PanelPicture &picture, std::vector<OptionGroupRow *> rows, QWidget *parent,
                           Shape shape)
    : QWidget(parent), m_spec(picture), m_isStrip(shape == Shape::Strip), m_rows(std::move(rows)),
      m_told(rowWithWords(m_rows)), m_picture(new MonitorPicture(this)), m_onName(makeLabel(kNamePixels, "text", this)),
      m_onNow(makeLabel(kWordsPixels, "signal", this)), m_onWords(makeLabel(kWordsPixels, "soft", this)),
      m_line(new QFrame(this)), m_pointedName(makeLabel(kNamePixels, "dim", this)),
      m_pointedWords(makeLabel(kWordsPixels, "dim", this)), m_keys(makeLabel(kWordsPixels, "soft", this))
{
    m_picture->setPainter([this](QPainter &painter, const QRectF &screen) { paint(painter, screen); });
    layOut();
    for (const OptionGroupRow *options : m_rows)
        connect(options, &OptionGroupRow::optionPointed, this,
                [this, options](std::optional<int> value) { point(options, value); });
    refresh();
}

void PictureStage::layOut()
{
    m_line->setFixedHeight(1);
    m_line->setStyleSheet(Palette::styled(u"background: @hairline;"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, metrics::kGap, 0, 0);
    row->setSpacing(metrics::kBlockGap);
    row->addWidget(m_picture, 3);
    if (m_isStrip) {
        setFixedHeight(kStripHeight);
        m_picture->setFixedWidth(kStripPicture);
        m_line->setFixedWidth(0); // the words stand side by side
    }
    QVBoxLayout *words = nullptr;
    const auto addColumn = [&] {
        words = new QVBoxLayout;
        words->setSpacing(metrics::kGap);
        row->addLayout(words, 1);
    };
    addColumn();
    for (QWidget *part : std::initializer_list<QWidget *>{m_onName, m_onNow, m_onWords})
        words->addWidget(part);
    if (m_isStrip) {
        words->addStretch(1);
        addColumn();
    }
    for (QWidget *part : std::initializer_list<QWidget *>{m_line, m_pointedName, m_pointedWords})
        words->addWidget(part);
    words->addStretch(1);
    words->addWidget(m_keys);
    m_keys->setTextFormat(Qt::RichText);
    m_keys->hide();
    for (QLabel *label : {m_onName, m_onWords, m_pointedName, m_pointedWords, m_keys})
        label->setMinimumWidth(kWordsWidth);
}

PictureValues PictureStage::values(bool withPreview) const
{
    const auto preview = withPreview ? m_preview : std::nullopt;
    return {[preview, withPreview](Command command) -> std::optional<int> {
                if (preview && preview->first == command)
                    return preview->second;
                return withPreview ? wishedValue(command) : monitorValue(command);
            },
            preview ? std::optional(preview->first) : std::nullopt};
}

void PictureStage::paint(QPainter &painter, const QRectF &screen) const
{
    m_spec.screen(painter, screen, values(true));
    if (!m_spec.overlay)
        return;
    m_spec.overlay(painter, screen, values(false));
    if (m_preview)
        m_spec.overlay(painter, screen, values(true));
}

void PictureStage::point(const OptionGroupRow *row, std::optional<int> value)
{
    const auto command = row->group().command;
    if (command && value && row->group().look != GroupLook::Switch) // a switch has no words of its own
        m_told = row;
    tryOut(command && value ? std::optional(std::pair(*command, *value)) : std::nullopt);
}

void PictureStage::tryOut(std::optional<std::pair<Command, int>> value)
{
    m_preview = value;
    refresh();
}

void PictureStage::refresh()
{
    if (m_preview && monitorValue(m_preview->first) == m_preview->second)
        m_preview.reset(); // it has been chosen
    showWords();
    m_picture->update();
}

void PictureStage::setKeys(const QString &keys)
{
    m_keys->setText(keys);
    m_keys->setVisible(!keys.isEmpty());
}

void PictureStage::showWords()
{
    const auto command = m_told ? m_told->group().command : std::nullopt;
    const Option *on = command ? optionOf(m_told, monitorValue(*command)) : nullptr;
    const bool isTold = m_preview && m_preview->first == command;
    const Option *pointed = isTold ? optionOf(m_told, m_preview->second) : nullptr;
    const auto show = [](QLabel *label, const QString &text) {
        label->setText(text);
        label->setVisible(!text.isEmpty());
    };
    show(m_onName, on ? nameOf(m_told, *on, m_isStrip) : QString());
    const bool isOn = on && !isIdle(m_told, on->value, m_rows);
    show(m_onNow, !on ? QString() : isOn ? QObject::tr("On now.") : QObject::tr("Chosen, and switched off now."));
    show(m_onWords, on ? wordsOf(*on) : QString());
    m_line->setVisible(on && pointed);
    show(m_pointedName, pointed ? nameOf(m_told, *pointed, m_isStrip) : QString());
    show(m_pointedWords, pointed ? wordsOf(*pointed) : QString());
    const Option *told = pointed ? pointed : on;
    m_picture->setAccessibleName(QObject::tr("What it looks like"));
    m_picture->setAccessibleDescription(
        told ? QStringLiteral("%1. %2").arg(nameOf(m_told, *told, m_isStrip), wordsOf(*told)) : QString());
}
