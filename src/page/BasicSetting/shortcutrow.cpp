#include "page/BasicSetting/shortcutrow.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "controls/accessiblecontrol.h"
#include "controls/labelled.h"
#include "controls/metrics.h"
#include "controls/pictures.h"
#include "controls/wrappedlabel.h"
#include "controls/zelmarkeysequenceedit.h"
#include "page/engine/listpage.h"
#include "shortcut/shortcutfunctions.h"

namespace {

constexpr int kNameWidth = 210;
constexpr int kKeyWidth = 200;
const char *const kSwitchStyle =
    "QPushButton { border-image: url(%1%2_normal.png); } QPushButton:hover, QPushButton:focus "
    "{ border-image: url(%1%2_hover.png); }";

/// What the plus and the minus key of a function do, for the tooltips.
struct KeyMeaning
{
    QString plus;
    QString minus;
};

KeyMeaning meaningOf(const ShortcutFunction &function)
{
    const auto *fixed = std::get_if<FixedValues>(&function.rule);
    if (!fixed)
        return {QObject::tr("Next value"), QObject::tr("Value before")};
    if (fixed->command == Command::SceneMode)
        return {QObject::tr("With the factory parameters"), QObject::tr("With your own parameters")};
    return {QObject::tr("Switch on"), QObject::tr("Switch off")};
}

} // namespace

void dressSwitch(QPushButton *button, bool on)
{
    const QString folder = Pictures::kRoot + QStringLiteral("img/basicSetting/shortcutKey/");
    describeAs(button, QAccessible::CheckBox);
    button->setCheckable(true);
    button->setChecked(on);
    button->setStyleSheet(QString::fromLatin1(kSwitchStyle).arg(folder, QLatin1String(on ? "on" : "off")));
    button->setAccessibleDescription(on ? QObject::tr("On") : QObject::tr("Off"));
}

ShortcutRow::ShortcutRow(const ShortcutEntry &entry, QWidget *parent)
    : QFrame(parent), m_entry(entry), m_switch(new QPushButton(this)), m_name(new QLabel(this)),
      m_problem(new WrappedLabel(this)), m_trash(makeTrashButton(this))
{
    setObjectName(QStringLiteral("listRow"));
    m_problem->setObjectName(QStringLiteral("problem"));
    m_problem->setWordWrap(true);
    m_problem->setTextFormat(Qt::PlainText);
    m_switch->setFixedSize(64, 32);
    m_name->setFixedWidth(kNameWidth);
    buildSide(0);
    buildSide(1);
    setTabOrder(minusEdit(), m_trash);
    layOut();
    updateControlText();
    refresh();
}

void ShortcutRow::buildSide(int direction)
{
    Side &side = m_sides[static_cast<std::size_t>(direction)];
    side.edit = new ZelmarKeySequenceEdit(this);
    side.edit->setFixedWidth(kKeyWidth);
    side.hint = new QLabel(direction == 0 ? QStringLiteral("+") : QStringLiteral("−"), this);
    side.hint->setObjectName(QStringLiteral("hint"));
    side.shortcut = new QxtGlobalShortcut(this);
    connect(side.shortcut, &QxtGlobalShortcut::activated, this,
            [this, direction, shortcut = side.shortcut] { Q_EMIT activated(direction, shortcut->shortcut()); });
}

void ShortcutRow::layOut()
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(metrics::kInset, metrics::kGap, metrics::kInset, metrics::kGap);
    grid->setHorizontalSpacing(metrics::kGap);
    grid->setVerticalSpacing(metrics::kLineGap);
    int column = 0;
    grid->addWidget(m_switch, 0, column++);
    grid->addWidget(m_name, 0, column++);
    const int firstOfKeys = column;
    for (const Side &side : m_sides) {
        grid->addWidget(side.hint, 0, column++);
        grid->addWidget(side.edit, 0, column++);
    }
    grid->setColumnStretch(column++, 1);
    grid->addWidget(m_trash, 0, column);
    grid->addWidget(m_problem, 1, firstOfKeys, 1, column - firstOfKeys + 1);
}

void ShortcutRow::takeFields()
{
    m_entry.plusKey = plusEdit()->text();
    m_entry.minusKey = minusEdit()->text();
}

void ShortcutRow::refresh()
{
    plusEdit()->setKeySequence(keySequenceOf(m_entry.plusKey));
    minusEdit()->setKeySequence(keySequenceOf(m_entry.minusKey));
    dressSwitch(m_switch, m_entry.isOn);
    for (const Side &side : m_sides)
        side.edit->setEnabled(m_entry.isOn);
    explainFields();
    takeFields(); // a stored text that is no key is none
}

void ShortcutRow::registerKeys(bool masterOn)
{
    for (Side &side : m_sides)
        registerSide(side, masterOn && m_entry.isOn);
    showProblems();
}

/// A key that the system would not give back does nothing either.
void ShortcutRow::registerSide(Side &side, bool wanted)
{
    side.refused.clear();
    side.shortcut->setEnabled(wanted);
    if (!side.shortcut->setShortcut(wanted ? side.edit->keySequence() : QKeySequence()) && wanted)
        side.refused = side.edit->text();
}

void ShortcutRow::releaseKeys()
{
    for (const Side &side : m_sides)
        side.shortcut->setShortcut({});
}

void ShortcutRow::showProblems()
{
    QStringList taken;
    for (const Side &side : m_sides) {
        if (!side.refused.isEmpty() && !taken.contains(side.refused))
            taken.append(side.refused);
    }
    m_problem->setVisible(!taken.isEmpty());
    m_problem->setText(QObject::tr("%1 is taken by another program or function and does nothing here.")
                           .arg(taken.join(QStringLiteral(", "))));
}

/// What a key does, and why it cannot be changed while its row is off.
void ShortcutRow::explainFields()
{
    const KeyMeaning meaning = meaningOf(*shortcutFunction(m_entry.function));
    const QString lock = m_entry.isOn ? QString() : QObject::tr("Switch this row on to change its keys.");
    for (const auto &[edit, text] : {std::pair(plusEdit(), meaning.plus), {minusEdit(), meaning.minus}}) {
        edit->setToolTip(lock.isEmpty() ? text : lock);
        edit->setAccessibleName(labelled(m_name->text(), text));
        edit->setAccessibleDescription(lock);
    }
}

void ShortcutRow::updateControlText()
{
    const QString name = QObject::tr(shortcutFunction(m_entry.function)->name);
    m_name->setText(name);
    m_switch->setAccessibleName(name);
    explainFields();
    m_trash->setToolTip(QObject::tr("Delete"));
    m_trash->setAccessibleName(labelled(name, m_trash->toolTip()));
    dressSwitch(m_switch, m_entry.isOn);
    showProblems();
}
