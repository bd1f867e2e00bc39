#include "page/Nightloom/canvas/canvastools.h"

#include <span>

#include <QComboBox>
#include <QGridLayout>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "controls/captionlabel.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/sliderwidget.h"
#include "ledmatrix/animationfile.h"
#include "ledmatrix/devicememory.h"
#include "ledmatrix/matrixform.h"
#include "page/Nightloom/canvas/pageledmatrixcanvas.h"
#include "page/Nightloom/parts/toolcolumn.h"
#include "page/engine/dropdown.h"
#include "page/engine/labels.h"
#include "page/engine/note.h"
#include "page/engine/plainbutton.h"

namespace {

constexpr ToolSlider kCellSize = {LABEL("Cell Size"), 6, 20, LABEL("%1 pixels")};

struct Tool
{
    const char *label;
    void (pageLEDMatrixCanvas::*press)();
    const char *keys = nullptr; ///< that do the same anywhere on the page, with a semicolon between them
};
constexpr Tool kFrameTools[] = {
    {LABEL("Add Frame"), &pageLEDMatrixCanvas::addFrame},
    {LABEL("Duplicate Frame"), &pageLEDMatrixCanvas::duplicateFrame},
    {LABEL("Delete Frame"), &pageLEDMatrixCanvas::deleteFrame},
    {LABEL("Clean Frame"), &pageLEDMatrixCanvas::cleanFrame},
    {LABEL("Undo"), &pageLEDMatrixCanvas::undo, "Ctrl+Z"},
    {LABEL("Redo"), &pageLEDMatrixCanvas::redo, "Ctrl+Y; Ctrl+Shift+Z"},
};
constexpr Tool kFileTools[] = {
    {LABEL("Save Animate"), &pageLEDMatrixCanvas::saveAnimate},
    {LABEL("Write Animate"), &pageLEDMatrixCanvas::writeAnimate},
    {LABEL("Export Animate"), &pageLEDMatrixCanvas::exportAnimate},
    {LABEL("Import Animate"), &pageLEDMatrixCanvas::importAnimate},
};

QGridLayout *makeGrid(std::span<const Tool> tools, BoundTexts &texts, const pageLEDMatrixCanvas &page, QWidget *parent)
{
    auto *grid = new QGridLayout;
    grid->setSpacing(metrics::kGap);
    for (int i = 0; i < static_cast<int>(tools.size()); ++i) {
        const Tool &tool = tools[static_cast<std::size_t>(i)];
        QPushButton *button = makeToolButton(tool.label, texts, parent);
        QObject::connect(button, &QPushButton::clicked, &page, tool.press);
        grid->addWidget(button, i / 2, i % 2);
    }
    return grid;
}

void bindKeys(const Tool &tool, pageLEDMatrixCanvas &page)
{
    for (const QKeySequence &keys : QKeySequence::listFromString(QLatin1String(tool.keys))) {
        auto *shortcut = new QShortcut(keys, &page);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        QObject::connect(shortcut, &QShortcut::activated, &page, tool.press);
    }
}

} // namespace

CanvasTools::CanvasTools(pageLEDMatrixCanvas &page, FramePlayer &player, BoundTexts &texts, QVBoxLayout *column,
                         QWidget *tools)
    : QObject(tools), m_texts(texts), m_tools(tools)
{
    column->addLayout(makeGrid(kFrameTools, m_texts, page, m_tools));
    column->addWidget(makeToolLine(m_tools));
    buildViewTools(page, player, column);
    column->addWidget(makeToolLine(m_tools));
    auto *files = new QVBoxLayout;
    files->setSpacing(metrics::kGap);
    files->addWidget(buildModeBox());
    files->addLayout(makeGrid(kFileTools, m_texts, page, m_tools));
    files->addWidget(buildAlignedImport(page));
    column->addLayout(files);
    for (const Tool &tool : kFrameTools) {
        if (tool.keys)
            bindKeys(tool, page);
    }
}

void CanvasTools::buildViewTools(const pageLEDMatrixCanvas &page, FramePlayer &player, QVBoxLayout *column)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(metrics::kGap);
    QPushButton *preview = makeToolButton(LABEL("Preview"), m_texts, m_tools);
    QPushButton *onionSkin = makeToolButton(LABEL("Onion Skin"), m_texts, m_tools);
    preview->setCheckable(true);
    onionSkin->setCheckable(true);
    connect(preview, &QPushButton::clicked, &page, &pageLEDMatrixCanvas::togglePreview);
    connect(onionSkin, &QPushButton::toggled, this, &CanvasTools::onionSkinSwitched);
    row->addWidget(preview);
    row->addWidget(onionSkin);
    column->addLayout(row);
    m_cellSize = makeToolSlider(kCellSize, matrixForms().front().cellSize, m_texts, m_tools);
    connect(m_cellSize, &SliderWidget::sliderValueChanged, this,
            [this](const QString &, int value) { Q_EMIT cellSizeChosen(value); });
    column->addWidget(makeSpeedSlider(player, m_texts, m_tools));
    column->addWidget(m_cellSize);
}

/// The usual import goes through the files of a form in steps that may not be its frames. This one does not.
QWidget *CanvasTools::buildAlignedImport(const pageLEDMatrixCanvas &page)
{
    m_aligned = new QWidget(m_tools);
    m_alignedNote = makeNote(m_aligned);
    m_alignedNote->setWordWrap(true);
    m_texts.bind(LABEL("As saved: %1 cells a frame, not 1050."), [this](const QString &text) {
        m_alignedPattern = text;
        showAlignedNote();
    });
    QPushButton *button = makeToolButton(LABEL("Import Aligned"), m_texts, m_aligned);
    connect(button, &QPushButton::clicked, &page, &pageLEDMatrixCanvas::importAligned);
    auto *row = new QHBoxLayout(m_aligned);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::kGap);
    row->addWidget(button, 0, Qt::AlignTop);
    row->addWidget(m_alignedNote, 1);
    return m_aligned;
}

QWidget *CanvasTools::buildModeBox()
{
    auto *part = new QWidget(m_tools);
    auto *row = new QHBoxLayout(part);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::kGap);
    auto *caption = new CaptionLabel(QString(), 15, part);
    caption->setStyleSheet(Palette::styled(u"QLabel { color: @text; } QLabel:disabled { color: @disabled; }"));
    caption->setFixedWidth(kToolCaptionWidth);
    QComboBox *modes = makeDropDown(part);
    modes->setObjectName(QStringLiteral("modes"));
    for (const AnimationMemory &memory : kAnimationMemories) {
        const int place = modes->count();
        modes->addItem(QString());
        m_texts.bind(memory.uploadLabel, [modes, place](const QString &text) { modes->setItemText(place, text); });
    }
    m_texts.bind(LABEL("Mode"), [modes, caption](const QString &text) {
        caption->setText(text);
        modes->setAccessibleName(text);
    });
    connect(modes, &QComboBox::currentIndexChanged, this, &CanvasTools::modeChosen);
    row->addWidget(caption);
    row->addWidget(modes, 1);
    return part;
}

void CanvasTools::useForm(const MatrixForm *form)
{
    m_form = form;
    m_aligned->setVisible(form && form->cells() != kImportStep);
    showAlignedNote();
    m_cellSize->setValue((form ? *form : matrixForms().front()).cellSize);
}

void CanvasTools::showAlignedNote()
{
    m_alignedNote->setText(m_alignedPattern.arg(m_form ? m_form->cells() : 0));
}

QPushButton *CanvasTools::button(const char *label) const
{
    return m_tools->findChild<QPushButton *>(QLatin1String(label));
}

void CanvasTools::show(const Possible &possible)
{
    const QString noFrame = QObject::tr("Add a frame first.");
    for (const char *label : {"Duplicate Frame", "Delete Frame", "Clean Frame", "Preview"})
        allowButton(button(label), possible.any, noFrame);
    allowButton(button("Undo"), possible.undo, QObject::tr("There is nothing to undo."));
    allowButton(button("Redo"), possible.redo, QObject::tr("There is nothing to redo."));
    allowButton(button("Write Animate"), possible.write, QObject::tr("Save, export or import the animation first."));
    button("Preview")->setChecked(possible.plays);
    m_cellSize->setLock(possible.any ? QString() : noFrame);
}
