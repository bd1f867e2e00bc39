#include "virtualdesk/osdlist.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

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

} // namespace

OsdList::OsdList(QWidget *parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *content = new QWidget(this);
    content->setObjectName(QStringLiteral("osd"));
    viewport()->setAutoFillBackground(false);
    auto *grid = new QGridLayout(content);
    grid->setContentsMargins(12, 8, 12, 8);
    grid->setVerticalSpacing(4);
    grid->setColumnStretch(0, 1);
    const int rows = 1 + static_cast<int>(osdMenu().size() + std::size(kGatheredRows));
    for (int row = 0; row < rows; ++row) {
        m_rows.push_back(addValueLine(grid, row, content));
        if (row > 0 && row <= static_cast<int>(osdMenu().size()))
            addButtons(osdMenu()[static_cast<std::size_t>(row) - 1], grid, row);
    }
    setWidget(content);
}

void OsdList::addButtons(const OsdFunction &function, QGridLayout *grid, int row)
{
    for (const int direction : {-1, 1}) {
        auto *button = new QPushButton(direction < 0 ? QStringLiteral("–") : QStringLiteral("+"), grid->parentWidget());
        button->setFixedSize(22, 20);
        button->setObjectName(QStringLiteral("osdButton"));
        connect(button, &QPushButton::clicked, this,
                [this, function, direction] { Q_EMIT stepped(function, direction); });
        grid->addWidget(button, row, direction < 0 ? 2 : 3);
        m_buttons.push_back(button);
    }
}

void OsdList::retranslate()
{
    for (std::size_t i = 0; i < m_buttons.size(); ++i)
        m_buttons[i]->setAccessibleName(osdName(osdMenu()[i / 2]) + QLatin1Char(' ') + m_buttons[i]->text());
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
}

void OsdList::showRow(std::size_t row, const QString &name, const QString &value, bool visible)
{
    const auto [nameLabel, valueLabel] = m_rows[row];
    setTextOf(nameLabel, name);
    setTextOf(valueLabel, value);
    nameLabel->setVisible(visible);
    valueLabel->setVisible(visible);
}

} // namespace virtualdesk
