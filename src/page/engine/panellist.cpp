#include "page/engine/panellist.h"

#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "controls/accessiblecontrol.h"
#include "controls/focusgroup.h"
#include "controls/lefttabbutton.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/pictures.h"
#include "page/engine/boundtexts.h"
#include "page/engine/labels.h"
#include "page/engine/pagetable.h"
#include "page/engine/scrollarea.h"

namespace {

constexpr int kListWidth = 232;
constexpr int kEntryPitch = 48;
constexpr int kListEdge = 1; // the line between it and the panels
constexpr char16_t kArrowStyle[] = u"QPushButton { background: transparent; border: none; color: @dim; }"
                                   "QPushButton:hover { color: @mint; }";

} // namespace

PanelList::PanelList(BoundTexts &texts, QWidget *parent) : QFrame(parent), m_texts(texts)
{
    setObjectName(QStringLiteral("frameLeftBar"));
    setFixedWidth(kListWidth);
    auto *entries = new QFrame(this);
    entries->setObjectName(QStringLiteral("frameLeftBar2"));
    describeAs(entries, QAccessible::Grouping);
    m_texts.bind(LABEL("Settings"), [entries](const QString &text) { entries->setAccessibleName(text); });
    m_stop = new FocusGroup(entries);
    m_column = new QVBoxLayout(entries);
    m_column->setContentsMargins(metrics::kGap, 0, metrics::kGap, 0);
    m_column->setSpacing(0);
    m_column->addStretch(1);

    m_area = makeScrollArea(this);
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    fillScrollArea(m_area, entries);
    QPushButton *upper = makeArrow(QStringLiteral("pushButton_Upper"), QStringLiteral("▲"), -1);
    QPushButton *down = makeArrow(QStringLiteral("pushButton_Down"), QStringLiteral("▼"), 1);
    m_texts.bind(LABEL("Scroll up"), [upper](const QString &text) { upper->setAccessibleName(text); });
    m_texts.bind(LABEL("Scroll down"), [down](const QString &text) { down->setAccessibleName(text); });

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, metrics::kInset, 0, 0);
    layout->addWidget(upper);
    layout->addWidget(m_area, 1);
    layout->addWidget(down);
}

/// It is there only when there is something to scroll to.
QPushButton *PanelList::makeArrow(const QString &name, const QString &arrow, int direction)
{
    auto *button = new QPushButton(arrow, this);
    button->setObjectName(name);
    button->setStyleSheet(Palette::styled(kArrowStyle));
    button->setFixedHeight(24);
    button->setFocusPolicy(Qt::NoFocus); // the keyboard walks the entries themselves
    button->hide();
    QScrollBar *bar = m_area->verticalScrollBar();
    connect(button, &QPushButton::clicked, this,
            [bar, direction] { bar->setValue(bar->value() + direction * kEntryPitch); });
    connect(bar, &QScrollBar::rangeChanged, button,
            [button](int minimum, int maximum) { button->setVisible(maximum > minimum); });
    return button;
}

void PanelList::add(const PanelSpec &panel)
{
    const QString icon = Pictures::kRoot + QLatin1String("img/entry/") + QLatin1String(panel.icon);
    auto *entry = new LeftTabButton(icon, QString(), m_column->parentWidget());
    entry->setObjectName(QLatin1String(panel.label));
    m_texts.bind(panel.label, [entry](const QString &text) { entry->setCaption(text); });
    connect(entry, &LeftTabButton::clicked, this,
            [this, index = static_cast<int>(m_entries.size())] { Q_EMIT chosen(index); });
    m_column->insertWidget(static_cast<int>(m_entries.size()), entry);
    m_entries.push_back(entry);
    m_stop->add(entry);
}

void PanelList::offer(int index, bool isOffered)
{
    m_entries[static_cast<std::size_t>(index)]->setVisible(isOffered);
}

void PanelList::paintEvent(QPaintEvent *)
{
    QPainter(this).fillRect(width() - kListEdge, 0, kListEdge, height(), Palette::translucent(Palette::kMint, 26));
}

void PanelList::mark(int index)
{
    for (std::size_t i = 0; i < m_entries.size(); ++i)
        m_entries[i]->setChecked(static_cast<int>(i) == index);
}
