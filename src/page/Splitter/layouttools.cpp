#include "page/Splitter/layouttools.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/metrics.h"
#include "controls/sharedfonts.h"
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
};

const LayoutTools::Tool LayoutTools::kTools[] = {
    {LABEL("New layout"), "layoutNew", [](const LayoutModel &model, const LayoutEditor &) { return model.canAdd(); },
     [](LayoutModel &model, LayoutEditor &) { model.add(QObject::tr("My layout")); }},
    {LABEL("Cut upright"), "layoutCutUpright",
     [](const LayoutModel &, const LayoutEditor &editor) { return editor.canCut(Cut::Upright); },
     [](LayoutModel &, LayoutEditor &editor) { editor.cut(Cut::Upright); }},
    {LABEL("Cut across"), "layoutCutAcross",
     [](const LayoutModel &, const LayoutEditor &editor) { return editor.canCut(Cut::Across); },
     [](LayoutModel &, LayoutEditor &editor) { editor.cut(Cut::Across); }},
    {LABEL("Give the zone away"), "layoutJoin",
     [](const LayoutModel &, const LayoutEditor &editor) { return editor.canJoin(); },
     [](LayoutModel &, LayoutEditor &editor) { editor.join(); }},
    {LABEL("Undo"), "layoutUndo", [](const LayoutModel &model, const LayoutEditor &) { return model.canUndo(); },
     [](LayoutModel &model, LayoutEditor &) { model.undo(); }},
    {LABEL("Delete layout"), "layoutDelete",
     [](const LayoutModel &model, const LayoutEditor &) { return model.chosen().isOwn; },
     [](LayoutModel &model, LayoutEditor &) { model.remove(); }},
};

LayoutTools::LayoutTools(LayoutModel &model, LayoutEditor &editor, BoundTexts &texts, QWidget *parent)
    : QWidget(parent), m_model(model), m_editor(editor), m_name(new QLineEdit(this)), m_hint(new QLabel(parent))
{
    m_name->setObjectName(QStringLiteral("layoutName"));
    m_name->setMaxLength(kLongestLayoutName);
    m_name->setFixedHeight(metrics::kControlHeight);
    connect(m_name, &QLineEdit::editingFinished, this, [this] {
        m_model.rename(m_name->text());
        showLayout(); // with its old name where the new one was not taken
    });
    texts.bind(LABEL("Name of the layout"), [this](const QString &text) { m_name->setAccessibleName(text); });
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kGap);
    column->addWidget(m_name);
    for (const Tool &tool : kTools) {
        auto *button = makePlainButton(tool.label, QLatin1String(tool.name), texts, this);
        connect(button, &QPushButton::clicked, this, [this, &tool] { tool.act(m_model, m_editor); });
        column->addWidget(button);
        m_buttons.push_back(button);
    }
    m_hint->setObjectName(QStringLiteral("help"));
    m_hint->setFont(noteFont);
    m_hint->setWordWrap(true);
    column->addStretch(1);
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
    m_editor.setAccessibleName(m_name->text());
    m_editor.setAccessibleDescription(m_hint->text());
    showPossible();
}

void LayoutTools::showPossible()
{
    for (std::size_t i = 0; i < m_buttons.size(); ++i)
        m_buttons[i]->setEnabled(kTools[i].canBeDone(m_model, m_editor));
}
