#include "virtualdesk/osdlist.h"

#include <algorithm>

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "virtualdesk/labels.h"
#include "virtualdesk/marked.h"
#include "virtualdesk/osdfunctions.h"
#include "virtualdesk/simulatedmonitor.h"

namespace virtualdesk {

namespace {

// Rows of the OSD that gather several codes each, below those of the menu.
struct GatheredRow
{
    const char *name;
    std::uint8_t first;
    int count;
};
constexpr GatheredRow kGatheredRows[] = {
    {NAME("User1 R G B"), 0x16, 3},     {NAME("User2 R G B"), 0x19, 3},
    {NAME("User3 R G B"), 0x1C, 3},     {NAME("Saturation R Y G C B M"), 0x59, 6},
    {NAME("Hue R Y G C B M"), 0x9B, 6},
};

constexpr std::uint8_t kMotionCode = 0x48;
constexpr int kPitch = 24; // from row to row, made or not
constexpr QSize kButton(22, 20);
constexpr int kRowsBeyond = 3; // what is in sight, so that Tab finds the next button

int rowCount()
{
    return 1 + static_cast<int>(osdMenu().size() + std::size(kGatheredRows));
}

} // namespace

OsdList::OsdList(QWidget *parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *content = new QWidget(this);
    content->setObjectName(QStringLiteral("osd"));
    viewport()->setAutoFillBackground(false);
    m_grid = new QGridLayout(content);
    m_grid->setContentsMargins(16, 8, 16, 8);
    m_grid->setVerticalSpacing(0);
    m_grid->setColumnStretch(0, 1);
    for (int row = 0; row < rowCount(); ++row)
        m_grid->setRowMinimumHeight(row, kPitch);
    setWidget(content);
    makeRowsInSight();
}

void OsdList::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    makeRowsInSight();
}

void OsdList::scrollContentsBy(int dx, int dy)
{
    QScrollArea::scrollContentsBy(dx, dy);
    makeRowsInSight();
}

int OsdList::rowsInSight() const
{
    const int bottom = verticalScrollBar()->value() + viewport()->height();
    int rows = 0;
    for (int height = 0; rows < rowCount() && height <= bottom; ++rows)
        height += m_grid->rowMinimumHeight(rows); // a row that the monitor does not have is none
    return rows;
}

void OsdList::makeRowsInSight()
{
    const int made = static_cast<int>(m_rows.size());
    const int wanted = std::min(rowCount(), rowsInSight() + kRowsBeyond);
    if (made >= wanted)
        return;
    for (int row = made; row < wanted; ++row) {
        const auto [name, value] = addValueLine(m_grid, row, widget());
        m_rows.push_back({name, value, {}});
        if (row > 0 && row <= static_cast<int>(osdMenu().size()))
            addButtons(osdMenu()[static_cast<std::size_t>(row) - 1], row);
    }
    retranslate();
    Q_EMIT grown();
}

void OsdList::addButtons(const OsdFunction &function, int row)
{
    for (const int direction : {-1, 1}) {
        auto *button = new QPushButton(direction < 0 ? QStringLiteral("–") : QStringLiteral("+"), widget());
        button->setFixedSize(kButton);
        button->setObjectName(QStringLiteral("osdButton"));
        connect(button, &QPushButton::clicked, this,
                [this, function, direction] { Q_EMIT stepped(function, direction); });
        m_grid->addWidget(button, row, direction < 0 ? 2 : 3);
        if (m_lastButton)
            setTabOrder(m_lastButton, button);
        m_lastButton = button;
        m_rows.back().buttons.push_back(button);
    }
}

void OsdList::retranslate()
{
    for (std::size_t row = 1; row < m_rows.size(); ++row) { // the first row is the scene's
        for (QPushButton *button : m_rows[row].buttons)
            button->setAccessibleName(osdName(osdMenu()[row - 1]) + QLatin1Char(' ') + button->text());
    }
}

void OsdList::show(const SimulatedMonitor &monitor)
{
    const MonitorModel &model = monitor.model();
    std::size_t row = 0;
    showRow(row++, QObject::tr("Scene mode"), sceneName(monitor.value(kSceneCode)), true);
    for (const OsdFunction &function : osdMenu()) {
        const bool isMpcs = function.code == kMotionCode && (model.capabilities & MotionIsMpcs) != 0;
        showRow(row++, isMpcs ? QObject::tr("MPCS") : osdName(function),
                osdValueText(function, monitor.value(function.code)), hasFunction(model, function.code));
    }
    for (const GatheredRow &gathered : kGatheredRows) {
        QStringList values;
        for (int i = 0; i < gathered.count; ++i)
            values.append(QString::number(monitor.value(static_cast<std::uint8_t>(gathered.first + i))));
        showRow(row++, QObject::tr(gathered.name), values.join(QLatin1String("  ")), true);
    }
    makeRowsInSight();
}

void OsdList::showRow(std::size_t row, const QString &name, const QString &value, bool visible)
{
    m_grid->setRowMinimumHeight(static_cast<int>(row), visible ? kPitch : 0);
    if (row >= m_rows.size())
        return;
    const Row &shown = m_rows[row];
    setTextOf(shown.name, name);
    setTextOf(shown.value, value);
    shown.name->setVisible(visible);
    shown.value->setVisible(visible);
    for (QPushButton *button : shown.buttons)
        button->setVisible(visible);
}

} // namespace virtualdesk
