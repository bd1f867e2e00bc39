#include "page/engine/optiongrouprow.h"

#include <algorithm>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPushButton>

#include "controls/accessiblecontrol.h"
#include "controls/captionlabel.h"
#include "controls/colorselecter.h"
#include "controls/flowlayout.h"
#include "controls/focusgroup.h"
#include "controls/labelled.h"
#include "controls/locksign.h"
#include "controls/metrics.h"
#include "controls/pictures.h"
#include "page/engine/boundtexts.h"
#include "page/engine/optionbutton.h"
#include "page/engine/picturebutton.h"

namespace {

constexpr int kCaptionPixels = 15;

} // namespace

void checkOnly(QButtonGroup &group, QAbstractButton *chosen)
{
    if (chosen)
        return chosen->setChecked(true); // the group releases the others
    group.setExclusive(false);           // else the last checked button could not be released
    for (QAbstractButton *button : group.buttons())
        button->setChecked(false);
    group.setExclusive(true);
}

OptionGroupRow::OptionGroupRow(const OptionGroup &group, BoundTexts &texts, QWidget *parent)
    : QWidget(parent), m_group(group), m_caption(new CaptionLabel(QString(), kCaptionPixels, this)),
      m_exclusive(new QButtonGroup(this)), m_mark(new ValueMark(this)), m_sign(new LockSign(this))
{
    m_exclusive->setExclusive(group.look != GroupLook::Several);
    const bool hasPictures = group.look == GroupLook::Pictures; // the caption stands beside the middle of its options
    m_caption->setFixedSize(metrics::kCaptionWidth, hasPictures ? kPictureButtonSide : metrics::kControlHeight);
    m_caption->dressForRow();
    describeAs(this, QAccessible::Grouping);
    bindTexts(texts);
    auto *flow = new FlowLayout(group.look == GroupLook::Switch ? 0 : metrics::kGap); // its halves are one control
    addButtons(texts, flow);
    if (group.look == GroupLook::Swatches)
        addSwatches(texts, flow);
    addMarks(flow);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::kGap);
    row->addWidget(m_caption, 0, Qt::AlignTop);
    row->addLayout(flow, 1);
}

void OptionGroupRow::bindTexts(BoundTexts &texts)
{
    texts.bind(m_group.label, [this](const QString &text) {
        setAccessibleName(text);
        m_caption->setText(m_group.caption ? QObject::tr(m_group.caption) : text);
    });
    if (m_group.help) {
        texts.bind(m_group.help, [this](const QString &text) {
            m_help = text;
            describe();
        });
    }
}

void OptionGroupRow::addButtons(BoundTexts &texts, FlowLayout *flow)
{
    auto *stop = new FocusGroup(this);
    for (const Option &option : m_group.options) {
        QPushButton *button = addButton(option, texts);
        if (m_group.look == GroupLook::Swatches) {
            button->hide();
            continue;
        }
        stop->add(button);
        flow->addWidget(button);
    }
    if (m_group.look == GroupLook::Switch)
        layInTrack(this, m_buttons);
}

QPushButton *OptionGroupRow::addButton(const Option &option, BoundTexts &texts)
{
    auto *button = new QPushButton(this);
    button->setObjectName(
        QStringLiteral("%1_%2").arg(QString::fromUtf8(m_group.label), QString::fromUtf8(option.label)));
    button->setCheckable(true);
    if (m_group.look == GroupLook::Several)
        describeAs(button, QAccessible::CheckBox);
    if (m_group.look == GroupLook::Pictures)
        dressPictureButton(button, m_group.draw, option.value);
    texts.bind(option.label, [this, button](const QString &text) {
        button->setAccessibleName(labelled(QObject::tr(m_group.label), text.trimmed()));
        if (m_group.look == GroupLook::Pictures)
            return button->setToolTip(text);
        button->setText(text);
        dress(button);
    });
    m_exclusive->addButton(button);
    button->installEventFilter(this);
    connect(button, &QPushButton::clicked, this, [this, button] { Q_EMIT optionClicked(button); });
    m_buttons.push_back(button);
    return button;
}

void OptionGroupRow::addSwatches(BoundTexts &texts, FlowLayout *flow)
{
    QStringList pictures;
    for (const Option &option : m_group.options)
        pictures.append(Pictures::kRoot + QStringLiteral("img/") + QLatin1String(option.picture));
    m_swatches = new ColorSelecter(pictures, this);
    m_swatches->setObjectName(QString::fromUtf8(m_group.label) + QStringLiteral("_swatches"));
    m_swatches->setFixedHeight(metrics::kControlHeight);
    flow->addWidget(m_swatches);
    texts.bind(m_group.label, [this](const QString &text) {
        QStringList names;
        for (const Option &option : m_group.options)
            names.append(QObject::tr(option.label));
        m_swatches->setSwatchNames(names);
        m_swatches->setAccessibleName(text);
    });
    connect(m_swatches, &ColorSelecter::sigClicked, this,
            [this](int index) { Q_EMIT optionClicked(m_buttons[static_cast<std::size_t>(index)]); });
    connect(m_swatches, &ColorSelecter::sigHovered, this, [this](int index) {
        Q_EMIT optionPointed(index < 0 ? std::nullopt
                                       : std::optional(m_group.options[static_cast<std::size_t>(index)].value));
    });
}

void OptionGroupRow::addMarks(FlowLayout *flow)
{
    m_mark->setFixedHeight(m_caption->height());
    if (m_group.look == GroupLook::Switch)
        m_mark->setFixedWidth(ValueMark::kSize + 2 * metrics::kGap); // the gaps that the flow does not have then
    QSizePolicy markPolicy = m_mark->sizePolicy();
    markPolicy.setRetainSizeWhenHidden(true); // the buttons must not jump when it comes
    m_mark->setSizePolicy(markPolicy);
    flow->addHanging(m_mark);
    m_sign->setFixedHeight(m_caption->height());
    flow->addHanging(m_sign);
    connect(m_sign, &LockSign::pressed, this, &OptionGroupRow::lockPressed);
}

bool OptionGroupRow::eventFilter(QObject *watched, QEvent *event)
{
    const int index = indexOf(watched);
    if (index >= 0 && (event->type() == QEvent::Enter || event->type() == QEvent::FocusIn))
        Q_EMIT optionPointed(m_group.options[static_cast<std::size_t>(index)].value);
    else if (index >= 0 && (event->type() == QEvent::Leave || event->type() == QEvent::FocusOut))
        Q_EMIT optionPointed(std::nullopt);
    return QWidget::eventFilter(watched, event);
}

int OptionGroupRow::indexOf(const QObject *button) const
{
    const auto found = std::find(m_buttons.begin(), m_buttons.end(), button);
    return found == m_buttons.end() ? -1 : static_cast<int>(found - m_buttons.begin());
}

QPushButton *OptionGroupRow::buttonOf(int value) const
{
    const Option *option = optionOf(m_group, value);
    return option ? m_buttons[static_cast<std::size_t>(option - m_group.options.data())] : nullptr;
}

void OptionGroupRow::makeNarrow(int captionWidth)
{
    m_caption->setFixedWidth(captionWidth);
    m_halfSize = HalfSize::Narrow;
    if (m_group.look == GroupLook::Switch)
        m_mark->setFixedWidth(2 * metrics::kGap);
    for (QPushButton *button : m_buttons)
        dress(button);
}

void OptionGroupRow::dress(QPushButton *button) const
{
    if (m_group.look == GroupLook::Switch)
        dressHalfButton(button, m_halfSize);
    else if (m_group.look == GroupLook::Buttons || m_group.look == GroupLook::Several)
        dressOptionButton(button);
}

void OptionGroupRow::hideCaption()
{
    m_caption->hide();
}

bool OptionGroupRow::hasCaption() const
{
    return !m_caption->isHidden();
}

void OptionGroupRow::showValue(std::optional<int> value)
{
    if (m_group.look == GroupLook::Several) {
        for (std::size_t i = 0; i < m_buttons.size(); ++i)
            m_buttons[i]->setChecked((value.value_or(0) & m_group.options[i].value) != 0);
    } else {
        QPushButton *chosen = value ? buttonOf(*value) : nullptr;
        checkOnly(*m_exclusive, chosen);
        if (m_swatches)
            m_swatches->setSelectedIndex(indexOf(chosen));
    }
    m_isUnknown = !value;
    describe();
}

void OptionGroupRow::setMark(Mark mark)
{
    m_mark->setMark(mark);
    describe();
}

void OptionGroupRow::setLocks(const QStringList &reasons, bool areAllKnown)
{
    m_locks = reasons;
    m_areLocksKnown = areAllKnown;
    QStringList said = reasons;
    said.removeAll(QString());
    said.removeDuplicates();
    m_sign->setReason(accessibleName(), said.join(QLatin1Char('\n')));
    for (std::size_t i = 0; i < m_buttons.size(); ++i)
        m_buttons[i]->setEnabled(m_locks.value(static_cast<qsizetype>(i)).isEmpty());
    m_caption->setEnabled(m_locks.isEmpty() || m_locks.contains(QString())); // as that of a slider that is locked
    if (m_swatches)
        m_swatches->setEnabled(said.isEmpty());
    describe();
}

/// Why an option cannot be chosen matters more than what is known about the value.
void OptionGroupRow::describe()
{
    const QString text = markText(mark());
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        const QString lock = m_locks.value(static_cast<qsizetype>(i));
        m_buttons[i]->setAccessibleDescription(lock.isEmpty() ? text : lock);
        if (m_group.look != GroupLook::Pictures)
            m_buttons[i]->setToolTip(lock);
    }
    setToolTip(withHelp(text, m_help));
    QStringList said = {m_isUnknown ? QObject::tr("unknown") : QString(), toolTip()};
    said.removeAll(QString());
    setAccessibleDescription(said.join(QStringLiteral(". ")));
}
