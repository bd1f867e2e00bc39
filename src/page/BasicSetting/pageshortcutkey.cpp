#include "page/BasicSetting/pageshortcutkey.h"

#include <algorithm>

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>

#include "controls/zelmardialog.h"
#include "controls/zelmarkeysequenceedit.h"
#include "ddc_protocol/devicestate.h"
#include "page/BasicSetting/shortcutrow.h"
#include "page/engine/dropdown.h"
#include "page/engine/keyfields.h"
#include "page/engine/labels.h"

pageShortcutKey::pageShortcutKey(KeyFields &fields, QWidget *parent)
    : ListPage(QStringLiteral("pageShortcutKey"), LABEL("LANGUAGE_SHORTCUTKEY"), LABEL("LANGUAGE_SHORTCUTKEY_DESC"),
               LABEL("No shortcuts yet: choose a function above and add it."), parent),
      m_fields(fields), m_available(shortcutFunctionsOf(deviceState)), m_master(new QPushButton(this)),
      m_functions(makeDropDown(this))
{
    m_master->setObjectName(QStringLiteral("pushButton"));
    m_master->setFixedSize(64, 32);
    heading()->addWidget(m_master);
    buildTools();
    connect(m_master, &QPushButton::clicked, this, &pageShortcutKey::on_pushButton_clicked);
    fillFunctions();
    loadRows();
    refreshState();
}

void pageShortcutKey::buildTools()
{
    m_functions->setFixedWidth(260);
    auto *add = makeButton(LABEL("LANGUAGE_ADD_KEY"), QStringLiteral("pushButton_2"));
    connect(add, &QPushButton::clicked, this, &pageShortcutKey::on_pushButton_2_clicked);
    tools()->addWidget(m_functions);
    tools()->addWidget(add);
    QPushButton *apply = addApplyButton(QStringLiteral("pushButtonAppli"));
    connect(apply, &QPushButton::clicked, this, &pageShortcutKey::on_pushButtonAppli_clicked);
}

void pageShortcutKey::fillFunctions()
{
    const int chosen = std::max(0, m_functions->currentIndex());
    m_functions->clear();
    for (const ShortcutFunction *function : m_available)
        m_functions->addItem(QObject::tr(function->name), function->number);
    m_functions->setCurrentIndex(chosen);
    m_functions->setAccessibleName(QObject::tr("Function"));
    markFunctions();
}

/// A function has one row: those that have theirs are ticked and cannot be chosen.
void pageShortcutKey::markFunctions()
{
    markListed(m_functions, QObject::tr("This function has its row already."), [this](const QVariant &function) {
        return std::any_of(m_rows.begin(), m_rows.end(),
                           [number = function.toInt()](const ShortcutRow *row) { return row->function() == number; });
    });
}

void pageShortcutKey::loadRows()
{
    const ShortcutList list = loadShortcuts();
    m_masterOn = list.masterOn;
    for (const ShortcutEntry &entry : list.entries) {
        if (m_functions->findData(entry.function) >= 0)
            addShortcutRow(entry);
        else
            m_otherEntries.push_back(entry);
    }
}

ShortcutRow *pageShortcutKey::addShortcutRow(const ShortcutEntry &entry)
{
    auto *row = new ShortcutRow(entry, this);
    for (ZelmarKeySequenceEdit *edit : {row->plusEdit(), row->minusEdit()}) {
        m_fields.add(edit);
        connect(edit, &QKeySequenceEdit::editingFinished, this, &pageShortcutKey::on_editFinish);
        connect(edit, &QKeySequenceEdit::keySequenceChanged, this, [this, row] {
            row->takeFields();
            showState();
        });
        connect(edit, &ZelmarKeySequenceEdit::refused, this,
                [this](const QString &why) { showNotice(why, Tone::Warning); });
    }
    connect(row->switchButton(), &QPushButton::clicked, this, [this, row] { toggleRow(row); });
    connect(row->trashButton(), &QPushButton::clicked, this, [this, row] { deleteRow(row); });
    connect(row, &ShortcutRow::activated, this,
            [this, row](int direction, const QKeySequence &key) { heardKey(row, direction, key); });
    m_rows.push_back(row);
    addRow(row);
    markFunctions();
    return row;
}

void pageShortcutKey::heardKey(const ShortcutRow *row, int direction, const QKeySequence &key)
{
    if (!m_fields.take(key))
        shortcutKeyCommand(row->function(), direction);
}

void pageShortcutKey::on_editFinish()
{
    if (auto *edit = qobject_cast<ZelmarKeySequenceEdit *>(sender()))
        m_fields.settle(edit, [this] { showConflict(); });
}

void pageShortcutKey::showConflict()
{
    ZelmarDialog(window()).exec();
}

void pageShortcutKey::on_pushButton_clicked()
{
    m_masterOn = !m_masterOn;
    refreshState();
}

void pageShortcutKey::on_pushButton_2_clicked()
{
    const int function = m_functions->currentData().toInt();
    const auto sameFunction = [function](const ShortcutRow *row) { return row->function() == function; };
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), sameFunction);
    const bool isNew = found == m_rows.end();
    ShortcutRow *row = isNew ? addShortcutRow({function, true, {}, {}}) : *found;
    row->plusEdit()->setFocus();
    if (isNew)
        showState();
    else
        showNotice(QObject::tr("This function has its row already."));
}

void pageShortcutKey::on_pushButtonAppli_clicked()
{
    save();
}

void pageShortcutKey::toggleRow(ShortcutRow *row)
{
    row->setOn(!row->entry().isOn);
    refreshState();
}

/// A row that counted gives its keys back at once, so the list is not in force again before it is applied, whatever is
/// added meanwhile.
void pageShortcutKey::deleteRow(ShortcutRow *row)
{
    row->releaseKeys();
    for (ZelmarKeySequenceEdit *edit : {row->plusEdit(), row->minusEdit()})
        m_fields.remove(edit);
    const auto sameFunction = [row](const ShortcutEntry &entry) { return entry.function == row->function(); };
    if (m_applied && std::any_of(m_applied->entries.begin(), m_applied->entries.end(), sameFunction))
        m_applied.reset();
    std::erase(m_rows, row);
    removeRow(row);
    markFunctions();
    showState();
}

void pageShortcutKey::refreshState()
{
    dressSwitch(m_master, m_masterOn);
    for (ShortcutRow *row : m_rows)
        row->refresh();
    save();
}

/// All keys are given back before any is registered, so that two rows can change keys with each other.
void pageShortcutKey::save()
{
    for (ShortcutRow *row : m_rows)
        row->releaseKeys();
    for (ShortcutRow *row : m_rows)
        row->registerKeys(m_masterOn);
    const ShortcutList list = currentList();
    const bool isStored = saveShortcuts(list);
    m_applied = isStored ? std::optional(list) : std::nullopt;
    showStored(isStored, QStringLiteral("basicMode.ini"));
    showResting();
}

ShortcutList pageShortcutKey::currentList() const
{
    ShortcutList list{m_masterOn, m_otherEntries};
    for (const ShortcutRow *row : m_rows)
        list.entries.push_back(row->entry());
    return list;
}

void pageShortcutKey::showState()
{
    setWaiting(m_applied != currentList());
    showResting();
}

void pageShortcutKey::showResting()
{
    if (!m_masterOn && notice().isEmpty())
        showNotice(QObject::tr("All shortcuts rest while the switch above is off."));
}

void pageShortcutKey::updateControlText()
{
    ListPage::updateControlText();
    fillFunctions();
    m_master->setAccessibleName(QObject::tr("LANGUAGE_SHORTCUTKEY"));
    dressSwitch(m_master, m_masterOn);
    for (ShortcutRow *row : m_rows)
        row->updateControlText();
}
