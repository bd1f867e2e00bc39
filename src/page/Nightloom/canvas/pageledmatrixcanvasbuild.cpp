// How the canvas page is laid out: the tabs, and the column of tools at their side.

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>

#include "controls/captionlabel.h"
#include "controls/sharedfonts.h"
#include "controls/sliderwidget.h"
#include "page/Nightloom/canvas/frametabs.h"
#include "page/Nightloom/canvas/pageledmatrixcanvas.h"
#include "page/Nightloom/parts/matrixeditor.h"
#include "page/Nightloom/parts/toolcolumn.h"
#include "page/engine/dropdown.h"
#include "page/engine/labels.h"
#include "page/engine/pagestyle.h"

namespace {

constexpr int kSmallestCell = 6; // pixels
constexpr int kBiggestCell = 20;

struct Tool
{
    const char *label;
    void (pageLEDMatrixCanvas::*press)();
};
constexpr Tool kFrameTools[] = {
    {LABEL("Add Frame"), &pageLEDMatrixCanvas::addFrame},
    {LABEL("Duplicate Frame"), &pageLEDMatrixCanvas::duplicateFrame},
    {LABEL("Delete Frame"), &pageLEDMatrixCanvas::deleteFrame},
    {LABEL("Clean Frame"), &pageLEDMatrixCanvas::cleanFrame},
    {LABEL("Undo"), &pageLEDMatrixCanvas::undo},
    {LABEL("Redo"), &pageLEDMatrixCanvas::redo},
};
constexpr Tool kFileTools[] = {
    {LABEL("Save Animate"), &pageLEDMatrixCanvas::saveAnimate},
    {LABEL("Write Animate"), &pageLEDMatrixCanvas::writeAnimate},
    {LABEL("Export Animate"), &pageLEDMatrixCanvas::exportAnimate},
    {LABEL("Import Animate"), &pageLEDMatrixCanvas::importAnimate},
};
constexpr const char *kModeLabels[pageLEDMatrixCanvas::kModes] = {LABEL("Mode1"), LABEL("Mode2"), LABEL("Mode3"),
                                                                  LABEL("Mode4"), LABEL("Mode5")};

QGridLayout *makeGrid(std::span<const Tool> tools, BoundTexts &texts, pageLEDMatrixCanvas *page, QWidget *parent)
{
    auto *grid = new QGridLayout;
    grid->setSpacing(8);
    for (int i = 0; i < static_cast<int>(tools.size()); ++i) {
        const Tool &tool = tools[static_cast<std::size_t>(i)];
        QPushButton *button = makeToolButton(tool.label, texts, parent);
        QObject::connect(button, &QPushButton::clicked, page, tool.press);
        grid->addWidget(button, i / 2, i % 2);
    }
    return grid;
}

} // namespace

void pageLEDMatrixCanvas::buildForm()
{
    setObjectName(QStringLiteral("pageLEDMatrixCanvas"));
    dressPage(this);
    auto *title = new QLabel(this);
    title->setObjectName(QStringLiteral("title"));
    title->setFont(titleFont);
    m_texts.bind(LABEL("Custom Mode"), [title](const QString &text) { title->setText(text); });
    m_count->setObjectName(QStringLiteral("note"));
    m_count->setFont(noteFont);
    auto *head = new QHBoxLayout;
    head->addWidget(title);
    head->addStretch(1);
    head->addWidget(m_count, 0, Qt::AlignBottom);
    auto *canvas = new QVBoxLayout;
    canvas->setSpacing(12);
    canvas->addLayout(head);
    canvas->addWidget(m_tabs, 1);
    layOutWithTools(this, canvas, buildTools());
}

QWidget *pageLEDMatrixCanvas::buildTools()
{
    auto *side = new QWidget(this);
    m_tools = new QWidget(side);
    QVBoxLayout *column = makeToolColumn(m_tools);
    buildFrameTools(column);
    column->addWidget(makeToolLine(m_tools));
    buildViewTools(column);
    column->addWidget(makeToolLine(m_tools));
    buildFileTools(column);

    m_work->block({m_tools, m_tabs});
    connect(m_work, &WorkPanel::begins, this, &pageLEDMatrixCanvas::busyBegins);
    connect(m_work, &WorkPanel::cancelled, this, &pageLEDMatrixCanvas::cancelWork);
    connect(m_work, &WorkPanel::ended, this, &pageLEDMatrixCanvas::busyEnded);
    auto *all = new QVBoxLayout(side);
    all->setContentsMargins(0, 4, 0, 0);
    all->setSpacing(16);
    all->addWidget(m_tools);
    all->addWidget(m_work);
    all->addStretch(1);
    return side;
}

void pageLEDMatrixCanvas::buildFrameTools(QVBoxLayout *column)
{
    column->addLayout(makeGrid(kFrameTools, m_texts, this, m_tools));
}

void pageLEDMatrixCanvas::buildViewTools(QVBoxLayout *column)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    QPushButton *preview = makeToolButton(LABEL("Preview"), m_texts, m_tools);
    QPushButton *onionSkin = makeToolButton(LABEL("Onion Skin"), m_texts, m_tools);
    preview->setCheckable(true);
    onionSkin->setCheckable(true);
    connect(preview, &QPushButton::clicked, this, &pageLEDMatrixCanvas::togglePreview);
    connect(onionSkin, &QPushButton::toggled, m_tabs, &FrameTabs::setOnionSkin);
    row->addWidget(preview);
    row->addWidget(onionSkin);
    column->addLayout(row);
    m_cellSize = makeToolSlider(LABEL("Cell Size"), kSmallestCell, kBiggestCell, matrixForms().front().cellSize,
                                m_texts, m_tools);
    connect(m_cellSize, &SliderWidget::sliderValueChanged, this,
            [this](const QString &, int value) { m_tabs->setCellSize(value); });
    column->addWidget(makeSpeedSlider(m_player, m_texts, m_tools));
    column->addWidget(m_cellSize);
}

void pageLEDMatrixCanvas::buildFileTools(QVBoxLayout *column)
{
    column->addWidget(buildModeBox());
    column->addLayout(makeGrid(kFileTools, m_texts, this, m_tools));
    column->addWidget(buildAlignedImport());
}

/// The usual import goes through the files of a form in steps that may not be its frames. This one does not.
QWidget *pageLEDMatrixCanvas::buildAlignedImport()
{
    m_aligned = new QWidget(m_tools);
    m_alignedNote = new QLabel(m_aligned);
    m_alignedNote->setObjectName(QStringLiteral("note"));
    m_alignedNote->setFont(noteFont);
    m_alignedNote->setWordWrap(true);
    m_texts.bind(LABEL("Animate: 1050 cells a frame. Aligned: %1, as this form saves."), [this](const QString &text) {
        m_alignedPattern = text;
        showAlignedNote();
    });
    QPushButton *button = makeToolButton(LABEL("Import Aligned"), m_texts, m_aligned);
    connect(button, &QPushButton::clicked, this, &pageLEDMatrixCanvas::importAligned);
    auto *row = new QHBoxLayout(m_aligned);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(m_alignedNote, 1);
    row->addWidget(button);
    return m_aligned;
}

QWidget *pageLEDMatrixCanvas::buildModeBox()
{
    auto *part = new QWidget(m_tools);
    auto *row = new QHBoxLayout(part);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    auto *caption = new CaptionLabel(QString(), 15, part);
    caption->setStyleSheet(QStringLiteral("QLabel { color: #ffffff; } QLabel:disabled { color: #696969; }"));
    caption->setFixedWidth(kToolCaptionWidth);
    m_modes = makeDropDown(part);
    m_modes->setObjectName(QStringLiteral("modes"));
    m_modes->setFixedHeight(36);
    for (int i = 0; i < kModes; ++i) {
        m_modes->addItem(QString());
        m_texts.bind(kModeLabels[i], [this, i](const QString &text) { m_modes->setItemText(i, text); });
    }
    m_texts.bind(LABEL("Mode"), [this, caption](const QString &text) {
        caption->setText(text);
        m_modes->setAccessibleName(text);
    });
    connect(m_modes, &QComboBox::currentIndexChanged, this,
            [this](int index) { m_mode = static_cast<std::uint8_t>(kFirstMode + index); });
    row->addWidget(caption);
    row->addWidget(m_modes, 1);
    return part;
}

void pageLEDMatrixCanvas::bindShortcuts()
{
    const auto bind = [this](const char *keys, void (pageLEDMatrixCanvas::*press)()) {
        auto *shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, press);
    };
    bind("Ctrl+Z", &pageLEDMatrixCanvas::undo);
    bind("Ctrl+Y", &pageLEDMatrixCanvas::redo);
    bind("Ctrl+Shift+Z", &pageLEDMatrixCanvas::redo);
}
