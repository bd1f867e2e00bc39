#include "page/Splitter/layouttools.h"

#include <algorithm>

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include "controls/dress.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/sharedfonts.h"
#include "controls/wrappedlabel.h"
#include "page/Splitter/layouteditor.h"
#include "page/engine/boundtexts.h"
#include "page/engine/labels.h"
#include "page/engine/plainbutton.h"
#include "splitter/layoutmodel.h"

struct LayoutTools::Tool
{
    const char *label;
    const char *name;
    bool (*canBeDone)(const LayoutModel &model, const LayoutEditor &editor);
    void (*act)(LayoutModel &model, LayoutEditor &editor);
    bool isForOwn;      ///< changes the layout, which some never are
    const char *whyNot; ///< why it cannot be done otherwise; null for what always can
    int row;
    int column = 0;
    int columns = 1;
};

static constexpr char kTooSmall[] = LABEL("The zone is too small to be cut.");

const LayoutTools::Tool LayoutTools::kTools[] = {
    {LABEL("New layout"), "layoutNew", [](const LayoutModel &model, const LayoutEditor &) { return model.canAdd(); },
     [](LayoutModel &model, LayoutEditor &) { model.add(QObject::tr("My layout")); }, false,
     LABEL("There are as many layouts as there can be. Delete one first."), 1, 0, 2},
    {LABEL("Cut upright"), "layoutCutUpright",
     [](const LayoutModel &, const LayoutEditor &editor) { return editor.canCut(Cut::Upright); },
     [](LayoutModel &, LayoutEditor &editor) { editor.cut(Cut::Upright); }, true, kTooSmall, 2},
    {LABEL("Cut across"), "layoutCutAcross",
     [](const LayoutModel &, const LayoutEditor &editor) { return editor.canCut(Cut::Across); },
     [](LayoutModel &, LayoutEditor &editor) { editor.cut(Cut::Across); }, true, kTooSmall, 2, 1},
    {LABEL("Give the zone away"), "layoutJoin",
     [](const LayoutModel &, const LayoutEditor &editor) { return editor.canJoin(); },
     [](LayoutModel &, LayoutEditor &editor) { editor.join(); }, true, LABEL("No zone beside it can take this one."), 3,
     0, 2},
    {LABEL("Undo"), "layoutUndo", [](const LayoutModel &model, const LayoutEditor &) { return model.canUndo(); },
     [](LayoutModel &model, LayoutEditor &) { model.undo(); }, false, LABEL("There is nothing to undo."), 4},
    {LABEL("Delete layout"), "layoutDelete",
     [](const LayoutModel &model, const LayoutEditor &) { return model.chosen().isOwn; },
     [](LayoutModel &model, LayoutEditor &) { model.remove(); }, true, nullptr, 4, 1},
};

LayoutTools::LayoutTools(LayoutModel &model, LayoutEditor &editor, BoundTexts &texts, QWidget *parent)
    : QWidget(parent), m_model(model), m_editor(editor), m_name(new QLineEdit(this)), m_hint(new WrappedLabel(parent))
{
    m_name->setObjectName(QStringLiteral("layoutName"));
    m_name->setMaxLength(kLongestLayoutName);
    m_name->setFixedHeight(metrics::kControlHeight);
    connect(m_name, &QLineEdit::editingFinished, this, [this] {
        m_model.rename(m_name->text());
        showLayout(); // with its old name where the new one was not taken
    });
    texts.bind(LABEL("Name of the layout"), [this](const QString &text) { m_name->setAccessibleName(text); });
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(metrics::kGap);
    grid->addWidget(m_name, 0, 0, 1, 2);
    for (const Tool &tool : kTools) {
        auto *button = makePlainButton(tool.label, QLatin1String(tool.name), texts, this);
        connect(button, &QPushButton::clicked, this, [this, &tool] { tool.act(m_model, m_editor); });
        dressPlainButton(button, QStringLiteral("QPushButton { padding: 0 4px; }")); // two stand side by side
        grid->addWidget(button, tool.row, tool.column, 1, tool.columns);
        m_buttons.push_back(button);
    }
    m_hint->setObjectName(QStringLiteral("help"));
    m_hint->setFont(noteFont);
    dressText(m_hint, {Palette::kHint});
    m_hint->setWordWrap(true);
    grid->setRowStretch(grid->rowCount(), 1);
    for (const int column : {0, 1})
        grid->setColumnStretch(column, 1);
    connect(&m_editor, &LayoutEditor::zoneChanged, this, &LayoutTools::showPossible);
}

void LayoutTools::showLayout()
{
    const SplitLayout &layout = m_model.chosen();
    m_name->setText(shownName(layout));
    m_name->setEnabled(layout.isOwn);
    m_hint->setText(layout.isOwn
                        ? QObject::tr("Draw a line through a zone to cut it, or drag an edge. With the keyboard: the "
                                      "arrows choose a zone, Ctrl and an arrow moves its edge.")
                        : QObject::tr("This layout stays as it is. \"New layout\" makes one of your own of it."));
    m_name->setToolTip(layout.isOwn ? QString() : m_hint->text());
    m_name->setAccessibleDescription(m_name->toolTip());
    m_editor.setAccessibleName(m_name->text());
    m_editor.setAccessibleDescription(m_hint->text());
    showPossible();
}

/// The keyboard leaves a button that cannot be pressed any more for the picture.
void LayoutTools::showPossible()
{
    bool hadFocus = false;
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        hadFocus = hadFocus || m_buttons[i]->hasFocus();
        const Tool &tool = kTools[i];
        allowButton(m_buttons[i], tool.canBeDone(m_model, m_editor),
                    tool.isForOwn && !m_model.chosen().isOwn ? m_hint->text() : QObject::tr(tool.whyNot));
    }
    const bool isLeft =
        std::none_of(m_buttons.begin(), m_buttons.end(), [](const auto *each) { return each->hasFocus(); });
    if (hadFocus && isLeft)
        m_editor.setFocus(Qt::OtherFocusReason);
}
