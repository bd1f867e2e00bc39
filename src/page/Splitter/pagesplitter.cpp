#include "page/Splitter/pagesplitter.h"

#include <algorithm>

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QShowEvent>
#include <QSignalBlocker>

#include "controls/accessiblecontrol.h"
#include "controls/flowlayout.h"
#include "controls/focusgroup.h"
#include "controls/metrics.h"
#include "ddc_protocol/settingsstore.h"
#include "page/Splitter/layouteditor.h"
#include "page/Splitter/layouttile.h"
#include "page/Splitter/layouttools.h"
#include "page/engine/dropdown.h"
#include "page/engine/labels.h"
#include "page/engine/storenotice.h"

namespace {

constexpr int kScreenWidth = 320;
constexpr int kToolsWidth = 300;
const QString kTileGroup = QStringLiteral("tileGroup");

QString screenText(const SplitScreen &screen)
{
    return QStringLiteral("%1 · %2 × %3").arg(screen.name).arg(screen.bounds.width()).arg(screen.bounds.height());
}

} // namespace

pageSplitter::pageSplitter(KeyFields &fields, QWidget *parent)
    : ListPage(QStringLiteral("pageSplitter"), LABEL("Screen Splitter"),
               LABEL("Puts the window in front into a part of the screen. Here you choose how the screen is divided."),
               nullptr, parent),
      m_keys(new SplitterKeys(fields, texts(), this))
{
    m_keys->hide(); // until there is something to stand below
    connect(m_keys, &SplitterKeys::noticed, this, [this](const QString &text) { tell(text, true); });
    connect(m_keys, &SplitterKeys::unstored, this,
            [this] { tell(storeNotice(Unstored::HoldsUntilExit, QLatin1String(kConfigFile)), true); });
    connect(&m_model, &LayoutModel::stored, this, [this] { tell({}, false); });
    connect(&m_model, &LayoutModel::unstored, this,
            [this] { tell(storeNotice(Unstored::Undone, QLatin1String(kConfigFile)), true); });
}

/// The keys begin with the program; the rest is made when it is first looked at.
void pageSplitter::build()
{
    buildTools();
    auto *body = buildBody();
    body->layout()->addWidget(m_keys);
    m_keys->show();
    showList(body, false);
    connect(&m_model, &LayoutModel::changed, this, &pageSplitter::showLayouts);
}

void pageSplitter::buildTools()
{
    m_screens = makeDropDown(this);
    m_screens->setObjectName(QStringLiteral("screenBox"));
    m_screens->setFixedWidth(kScreenWidth);
    connect(m_screens, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (index >= 0)
            m_model.showScreen(m_known[static_cast<std::size_t>(index)]);
    });
    texts().bind(LABEL("Screen"), [this](const QString &text) { m_screens->setAccessibleName(text); });
    tools()->addWidget(m_screens);
    tools()->addStretch(1);
    QPushButton *show = makeButton(LABEL("Show the zones"), QStringLiteral("showZones"));
    connect(show, &QPushButton::clicked, this, &pageSplitter::zonesWanted);
    tools()->addWidget(show);
}

QWidget *pageSplitter::buildBody()
{
    auto *body = new QWidget(this);
    body->setObjectName(QStringLiteral("customArea"));
    auto *column = new QVBoxLayout(body);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kRowGap);
    m_tileRoom = new QWidget(body);
    describeAs(m_tileRoom, QAccessible::Grouping);
    texts().bind(LABEL("Layouts"), [this](const QString &text) { m_tileRoom->setAccessibleName(text); });
    new FlowLayout(metrics::kGap, m_tileRoom);
    column->addWidget(m_tileRoom);
    auto *line = new QHBoxLayout;
    line->setSpacing(metrics::kBlockGap);
    m_editor = new LayoutEditor(body);
    m_layoutTools = new LayoutTools(m_model, *m_editor, texts(), body);
    m_layoutTools->setFixedWidth(kToolsWidth);
    line->addWidget(m_editor, 1);
    line->addWidget(m_layoutTools);
    column->addLayout(line, 1);
    column->addWidget(m_layoutTools->hint());
    connect(m_editor, &LayoutEditor::drawn, &m_model, &LayoutModel::setZones);
    return body;
}

void pageSplitter::showEvent(QShowEvent *event)
{
    ListPage::showEvent(event);
    if (!m_editor)
        build();
    if (!event->spontaneous())
        tell({}, false); // it was of another moment
    fillScreens();
}

void pageSplitter::followScreens()
{
    if (isVisible()) // else it asks when it is shown
        fillScreens();
}

void pageSplitter::fillScreens()
{
    const std::vector<SplitScreen> screens = splitScreens();
    if (screens == m_known || screens.empty())
        return;
    const auto same = std::find_if(screens.begin(), screens.end(),
                                   [this](const SplitScreen &screen) { return screen.name == m_model.screen().name; });
    const auto chosen = same == screens.end() ? screens.begin() : same;
    m_known = screens;
    {
        const QSignalBlocker blocker(m_screens);
        m_screens->clear();
        for (const SplitScreen &screen : screens)
            m_screens->addItem(screenText(screen));
        m_screens->setCurrentIndex(static_cast<int>(chosen - screens.begin()));
    }
    m_model.showScreen(*chosen);
}

void pageSplitter::showLayouts()
{
    makeTiles();
    m_editor->show(m_model.chosen(), m_model.screen().bounds.size());
    m_layoutTools->showLayout();
}

std::vector<LayoutTile *> pageSplitter::tiles() const
{
    const auto found = m_tileRoom->findChildren<LayoutTile *>(QString(), Qt::FindDirectChildrenOnly);
    return {found.begin(), found.end()};
}

/// The keyboard stays at the layouts.
void pageSplitter::makeTiles()
{
    const bool hadFocus = m_tileRoom->isAncestorOf(focusWidget());
    for (LayoutTile *tile : tiles()) {
        tile->setParent(nullptr); // one of them may be what was pressed
        tile->deleteLater();
    }
    delete m_tileRoom->findChild<QObject *>(kTileGroup);
    auto *group = new FocusGroup(m_tileRoom);
    group->setObjectName(kTileGroup);
    for (const SplitLayout &layout : m_model.all()) {
        const bool isChosen = layout == m_model.chosen();
        auto *tile = new LayoutTile(layout, isChosen, m_tileRoom);
        connect(tile, &LayoutTile::pressed, &m_model, [this, tile] { m_model.choose(tile->layout()); });
        m_tileRoom->layout()->addWidget(tile);
        group->add(tile);
        tile->show();
        if (isChosen && hadFocus)
            tile->setFocus(Qt::OtherFocusReason);
    }
}

void pageSplitter::tell(const QString &text, bool isRefusal)
{
    showNotice(text, isRefusal ? Tone::Warning : Tone::Plain);
}

void pageSplitter::updateControlText()
{
    ListPage::updateControlText();
    m_keys->updateControlText();
    if (!m_known.empty())
        showLayouts();
}
