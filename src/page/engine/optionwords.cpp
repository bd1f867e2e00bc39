#include "page/engine/optionwords.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "controls/dress.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/wrappedlabel.h"
#include "ddc_protocol/devicestate.h"
#include "page/engine/optiongrouprow.h"

namespace {

constexpr int kWordsWidth = 200;
constexpr int kNamePixels = 18;
constexpr int kWordsPixels = 14;

QLabel *makeLabel(int pixels, QRgb colour, QWidget *parent)
{
    auto *label = new WrappedLabel(parent);
    dressText(label, {colour, pixels});
    label->setWordWrap(true);
    return label;
}

/// The option of a row for a value; null when it has none.
const Option *optionFor(const OptionGroupRow *row, std::optional<int> value)
{
    return row && value ? optionOf(row->group(), *value) : nullptr;
}

bool hasOwnWords(const OptionGroupRow *row)
{
    return std::ranges::any_of(row->group().options, [](const Option &option) { return option.words; });
}

/// Rows with something to say of each of their options come first.
const OptionGroupRow *firstTold(const std::vector<OptionGroupRow *> &rows)
{
    auto found = std::ranges::find_if(rows, hasOwnWords);
    if (found == rows.end())
        found =
            std::ranges::find_if(rows, [](const OptionGroupRow *row) { return OptionWords::hasWords(row->group()); });
    return found == rows.end() ? nullptr : *found;
}

const OptionGroupRow *masterOf(const std::vector<OptionGroupRow *> &rows, const char *about)
{
    const auto found = std::ranges::find_if(rows, [about](const OptionGroupRow *row) {
        return row->group().look == GroupLook::Switch && row->group().command &&
               qstrcmp(row->group().label, about) == 0;
    });
    return found == rows.end() ? nullptr : *found;
}

bool hasSeveral(const std::vector<OptionGroupRow *> &rows)
{
    return std::ranges::count_if(rows, [](const OptionGroupRow *row) { return OptionWords::hasWords(row->group()); }) >
           1;
}

/// What is on: never what is only wished, and may be refused. Of a setting of the tool's own, what is checked. Of no
/// setting, nothing.
std::optional<int> valueOn(const OptionGroupRow *row)
{
    if (!row)
        return std::nullopt;
    if (const auto command = row->group().command)
        return deviceState.isKnown(*command) ? deviceState.confirmed(*command) : std::nullopt;
    const auto checked = std::ranges::find_if(row->buttons(), &QPushButton::isChecked);
    if (checked == row->buttons().end())
        return std::nullopt;
    return row->group().options[static_cast<std::size_t>(checked - row->buttons().begin())].value;
}

QString wordsOf(const OptionGroup &group, const Option &option)
{
    const char *words = option.words ? option.words : group.help;
    return words ? QObject::tr(words) : QString();
}

/// Without headings: the name in small letters, on a line of its own that ends where the words begin.
QString inSmall(const QString &name, const QString &now, const QString &words)
{
    const QString form = Palette::styled(QStringLiteral("<span style=\"color: @text\">%1</span> "
                                                        "<span style=\"color: @signal\">%2</span><br>%3"));
    return name.isEmpty() ? QString() : form.arg(name.toHtmlEscaped(), now.toHtmlEscaped(), words.toHtmlEscaped());
}

} // namespace

OptionWords::OptionWords(std::vector<OptionGroupRow *> rows, Shape shape, QWidget *parent, const char *about)
    : QWidget(parent), m_shape(shape), m_rows(std::move(rows)), m_told(firstTold(m_rows)),
      m_master(masterOf(m_rows, about)), m_isOneOfMany(hasSeveral(m_rows)),
      m_onName(makeLabel(kNamePixels, Palette::kText, this)), m_onNow(makeLabel(kWordsPixels, Palette::kSignal, this)),
      m_onWords(makeLabel(kWordsPixels, Palette::kSoft, this)), m_line(new QWidget(this)),
      m_pointedName(makeLabel(kNamePixels, Palette::kDim, this)),
      m_pointedWords(makeLabel(kWordsPixels, Palette::kDim, this)),
      m_keys(makeLabel(kWordsPixels, Palette::kSoft, this))
{
    layOut();
    for (const OptionGroupRow *row : m_rows) {
        connect(row, &OptionGroupRow::optionPointed, this,
                [this, row](std::optional<int> value) { point(row, value); });
        if (!row->group().command) // nobody else tells that it has changed; when it has been stored
            connect(row, &OptionGroupRow::optionClicked, this, &OptionWords::refresh, Qt::QueuedConnection);
    }
    refresh();
}

bool OptionWords::hasWords(const OptionGroup &group)
{
    return group.help || std::ranges::any_of(group.options, [](const Option &option) { return option.words; });
}

void OptionWords::layOut()
{
    m_line->setFixedHeight(1);
    m_line->setPalette(QColor(Palette::kHairline));
    m_line->setAutoFillBackground(true);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::kBlockGap);
    const auto addColumn = [row] {
        auto *column = new QVBoxLayout;
        column->setSpacing(metrics::kGap);
        row->addLayout(column, 1);
        return column;
    };
    QVBoxLayout *last = m_first = addColumn();
    for (QWidget *part : {m_onName, m_onNow, m_onWords})
        m_first->addWidget(part);
    if (m_shape != Shape::Column) {
        m_first->addStretch(1);
        last = addColumn();
    }
    for (QWidget *part : std::initializer_list<QWidget *>{m_line, m_pointedName, m_pointedWords})
        last->addWidget(part);
    last->addStretch(1);
    last->addWidget(m_keys);
    m_keys->setTextFormat(Qt::RichText);
    m_keys->hide();
    for (QLabel *label : {m_onName, m_onWords, m_pointedName, m_pointedWords, m_keys})
        label->setMinimumWidth(kWordsWidth);
}

void OptionWords::putAbove(QWidget *part)
{
    m_first->insertWidget(0, part, 0, Qt::AlignLeft);
}

void OptionWords::setKeys(const QString &keys)
{
    m_keys->setText(keys);
    m_keys->setVisible(!keys.isEmpty());
}

/// A row of which nothing can be said is seen in the picture only.
void OptionWords::point(const OptionGroupRow *row, std::optional<int> value)
{
    if (value && hasWords(row->group()))
        m_told = row;
    m_pointed = row == m_told ? value : std::nullopt;
    const auto command = row->group().command;
    m_preview = command && value ? std::optional(std::pair(*command, *value)) : std::nullopt;
    refresh();
    Q_EMIT previewChanged();
}

void OptionWords::tryOut(std::optional<std::pair<Command, int>> value)
{
    m_pointed.reset();
    m_preview = value;
    refresh();
    Q_EMIT previewChanged();
}

QString OptionWords::nameOf(const OptionGroupRow *row) const
{
    return QObject::tr(row->group().caption ? row->group().caption : row->group().label);
}

/// Nothing where the monitor has not told what it rests on: whether its switch is on, and what may lock it.
QString OptionWords::stateOf(int value) const
{
    const QPushButton *button = m_told->buttonOf(value);
    const bool isLocked = !(button && button->isEnabledTo(m_told));
    if (isLocked || (m_master && deviceState.confirmed(*m_master->group().command) == 0))
        return QObject::tr("Chosen, and switched off now.");
    const bool isSure = (!m_master || valueOn(m_master)) && m_told->areLocksKnown();
    return isSure ? QObject::tr("On now.") : QString();
}

OptionWords::Said OptionWords::sayOn(int value) const
{
    const Option *option = optionFor(m_told, value);
    if (!option)
        return {};
    const QString words = wordsOf(m_told->group(), *option);
    if (m_told->group().look == GroupLook::Switch) // whatever its halves are called
        return {nameOf(m_told), value != 0 ? QObject::tr("Switched on.") : QObject::tr("Switched off."), words};
    const QString name = optionName(*option);
    return {m_isOneOfMany ? nameOf(m_told) + QStringLiteral(" · ") + name : name, stateOf(value), words};
}

OptionWords::Said OptionWords::sayPointed(int value) const
{
    const Option *option = optionFor(m_told, value);
    if (!option)
        return {};
    const bool isWhose = m_isOneOfMany || m_told->group().look == GroupLook::Switch;
    const QString name = optionName(*option);
    return {isWhose ? nameOf(m_told) + QStringLiteral(" · ") + name : name, {}, wordsOf(m_told->group(), *option)};
}

void OptionWords::refresh()
{
    const std::optional<int> on = valueOn(m_told);
    if (m_pointed && m_pointed == on)
        m_pointed.reset(); // it has been chosen
    if (m_preview && deviceState.isKnown(m_preview->first) &&
        deviceState.confirmed(m_preview->first) == m_preview->second)
        m_preview.reset();
    const Said now = on ? sayOn(*on) : Said();
    Said pointed = m_pointed ? sayPointed(*m_pointed) : Said();
    if (pointed.words == now.words)
        pointed.words.clear(); // of the same group: it stands there already
    show(now, pointed);
}

void OptionWords::show(const Said &on, const Said &pointed)
{
    const bool isBand = m_shape == Shape::Band;
    const auto put = [](QLabel *label, const QString &text) {
        label->setText(text);
        label->setVisible(!text.isEmpty());
    };
    put(m_onName, isBand ? QString() : on.name);
    put(m_onNow, isBand ? QString() : on.now);
    put(m_onWords, isBand ? inSmall(on.name, on.now, on.words) : on.words);
    put(m_pointedName, isBand ? QString() : pointed.name);
    put(m_pointedWords, isBand ? inSmall(pointed.name, {}, pointed.words) : pointed.words);
    m_line->setVisible(m_shape == Shape::Column && !on.name.isEmpty() && !pointed.name.isEmpty());
    const Said &told = pointed.name.isEmpty() ? on : pointed;
    m_toldText = told.name.isEmpty() ? QString() : QStringLiteral("%1. %2").arg(told.name, told.words);
}
