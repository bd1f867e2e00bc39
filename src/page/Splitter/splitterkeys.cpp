#include "page/Splitter/splitterkeys.h"

#include <QGridLayout>

#include "controls/captionlabel.h"
#include "controls/dress.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/wrappedlabel.h"
#include "controls/zelmardialog.h"
#include "controls/zelmarkeysequenceedit.h"
#include "ddc_protocol/settingsstore.h"
#include "page/engine/boundtexts.h"
#include "page/engine/keyfields.h"
#include "page/engine/labels.h"
#include "shortcut/qxtglobalshortcut.h"
#include "shortcut/shortcutlist.h"

namespace {

constexpr int kCaptionPixels = 14;

struct KeyOf
{
    SplitAction action;
    const char *label;
    const char *setting; ///< in "config.ini"
};

constexpr KeyOf kKeys[] = {
    {SplitAction::Next, LABEL("Next zone"), "Splitter/KeyNext"},
    {SplitAction::Previous, LABEL("Zone before"), "Splitter/KeyPrevious"},
    {SplitAction::Restore, LABEL("Old place"), "Splitter/KeyRestore"},
    {SplitAction::ShowZones, LABEL("Show the zones"), "Splitter/KeyZones"},
};

QString settingOf(SplitAction action)
{
    return QLatin1String(kKeys[static_cast<std::size_t>(action)].setting);
}

} // namespace

SplitterKeys::SplitterKeys(KeyFields &fields, BoundTexts &texts, QWidget *parent)
    : QWidget(parent), m_fields(fields), m_problem(new WrappedLabel(this))
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(metrics::kRowGap);
    grid->setVerticalSpacing(metrics::kLineGap);
    m_problem->setObjectName(QStringLiteral("notice"));
    dressText(m_problem, {Palette::kError});
    m_problem->setWordWrap(true);
    m_problem->setTextFormat(Qt::PlainText);
    for (const KeyOf &key : kKeys)
        build(key.action, texts);
    grid->addWidget(m_problem, 2, 0, 1, static_cast<int>(m_rows.size()));
    loadKeys();
}

void SplitterKeys::build(SplitAction action, BoundTexts &texts)
{
    const auto place = static_cast<int>(action);
    auto *grid = static_cast<QGridLayout *>(layout());
    auto *caption = new CaptionLabel(QString(), kCaptionPixels, this);
    caption->setObjectName(QStringLiteral("caption"));
    auto *field = new ZelmarKeySequenceEdit(this);
    field->setObjectName(settingOf(action).section(QLatin1Char('/'), 1));
    grid->addWidget(caption, 0, place);
    grid->addWidget(field, 1, place);
    grid->setColumnStretch(place, 1);
    texts.bind(kKeys[place].label, [caption, field](const QString &text) {
        caption->setText(text);
        field->setAccessibleName(text);
    });
    m_fields.add(field);
    m_rows.push_back({action, field, new QxtGlobalShortcut(this)});
}

/// What the fields tell is heard once they hold what was stored.
void SplitterKeys::loadKeys()
{
    for (Row &row : m_rows) {
        row.field->setKeySequence(
            keySequenceOf(settingsString(settingOf(row.action), {}, false, QLatin1String(kConfigFile))));
        row.isRefused = !row.field->keySequence().isEmpty() && !row.shortcut->setShortcut(row.field->keySequence());
        connect(row.shortcut, &QxtGlobalShortcut::activated, this, [this, &row] {
            if (!m_fields.take(row.shortcut->shortcut()))
                Q_EMIT pressed(row.action);
        });
        connect(row.field, &QKeySequenceEdit::editingFinished, this, [this, &row] {
            m_fields.settle(row.field, [this] { showConflict(); });
            if (!row.field->keySequence().isEmpty())
                take(row);
        });
        connect(row.field, &QKeySequenceEdit::keySequenceChanged, this, [this, &row](const QKeySequence &sequence) {
            if (sequence.isEmpty())
                take(row);
        });
        connect(row.field, &ZelmarKeySequenceEdit::refused, this, &SplitterKeys::noticed);
    }
    showProblems();
}

ZelmarKeySequenceEdit *SplitterKeys::field(SplitAction action) const
{
    return m_rows[static_cast<std::size_t>(action)].field;
}

void SplitterKeys::take(Row &row)
{
    const bool wanted = !row.field->keySequence().isEmpty();
    row.isRefused = !row.shortcut->setShortcut(row.field->keySequence()) && wanted;
    showProblems();
    Q_EMIT noticed({});
    if (!storeSetting(settingOf(row.action), row.field->text()))
        Q_EMIT unstored();
}

void SplitterKeys::showProblems()
{
    QStringList taken;
    for (const Row &row : m_rows) {
        if (row.isRefused)
            taken.append(row.field->text());
    }
    m_problem->setVisible(!taken.isEmpty());
    m_problem->setText(QObject::tr("%1 is taken by another program or function and does nothing here.")
                           .arg(taken.join(QStringLiteral(", "))));
}

void SplitterKeys::showConflict()
{
    ZelmarDialog(window()).exec();
}

void SplitterKeys::updateControlText()
{
    showProblems();
}
