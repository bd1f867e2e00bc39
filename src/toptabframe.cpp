#include "toptabframe.h"

#include <QHBoxLayout>
#include <QPainter>

#include "controls/accessiblecontrol.h"
#include "controls/focusgroup.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/pictures.h"
#include "navigation.h"
#include "toptab.h"

namespace {

constexpr int kMarkLeft = 24;
constexpr int kMarkSide = 32;
constexpr int kNameLeft = 64;
constexpr int kProductPixels = 18;
constexpr int kTabsLeft = 216;

} // namespace

TopTabFrame::TopTabFrame(QWidget *parent) : QFrame(parent)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(kTabsLeft, 0, metrics::kInset, 0);
    row->setSpacing(0);
    m_list = new QWidget(this);
    describeAs(m_list, QAccessible::PageTabList);
    auto *stop = new FocusGroup(m_list);
    auto *tabs = new QHBoxLayout(m_list);
    tabs->setContentsMargins(0, 0, 0, 0);
    tabs->setSpacing(0);
    row->addWidget(m_list);
    for (const NavigationFamily &family : navigationFamilies()) {
        const QString icon = Pictures::kRoot + QLatin1String("img/tab/") + QLatin1String(family.icon);
        auto *tab = new TopTab(icon, QObject::tr(family.label), m_list);
        tab->setObjectName(QStringLiteral("tab_") + QLatin1String(family.label));
        connect(tab, &TopTab::clicked, this,
                [this, index = static_cast<int>(m_tabs.size())] { Q_EMIT tabChosen(index); });
        m_tabs.push_back(tab);
        tabs->addWidget(tab);
        stop->add(tab);
    }
    row->addStretch(1);
    m_minimise = new TopWindowButton(Pictures::kRoot + QStringLiteral("img/top_min"), this);
    m_close = new TopWindowButton(Pictures::kRoot + QStringLiteral("img/top_close"), this);
    m_close->setObjectName(QStringLiteral("windowClose"));
    connect(m_minimise, &TopWindowButton::clicked, this, &TopTabFrame::minimiseClicked);
    connect(m_close, &TopWindowButton::clicked, this, &TopTabFrame::closeClicked);
    row->addWidget(m_minimise);
    row->addWidget(m_close);
    updateControlText();
    setCurrent(0);
}

void TopTabFrame::setCurrent(int index)
{
    m_current = index;
    for (std::size_t i = 0; i < m_tabs.size(); ++i)
        m_tabs[i]->setChecked(static_cast<int>(i) == index);
}

void TopTabFrame::setTabsEnabled(bool enabled)
{
    for (TopTab *tab : m_tabs)
        tab->setEnabled(enabled);
}

void TopTabFrame::explain(const QString &reason)
{
    for (TopTab *tab : m_tabs) {
        tab->setToolTip(reason);
        tab->setAccessibleDescription(reason);
    }
}

void TopTabFrame::updateControlText()
{
    m_list->setAccessibleName(QObject::tr("Sections"));
    for (std::size_t i = 0; i < m_tabs.size(); ++i)
        m_tabs[i]->setCaption(QObject::tr(navigationFamilies()[i].label));
    shrinkTogether(m_tabs);
    for (auto [button, text] :
         {std::pair(m_minimise, QObject::tr("Minimise")), std::pair(m_close, QObject::tr("Close window"))}) {
        button->setAccessibleName(text);
        button->setToolTip(text);
    }
}

void TopTabFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    Pictures::draw(painter, QRect(kMarkLeft, (height() - kMarkSide) / 2, kMarkSide, kMarkSide),
                   Pictures::kRoot + QStringLiteral("img/logo.png"));
    QFont name = font();
    name.setPixelSize(kProductPixels);
    name.setLetterSpacing(QFont::AbsoluteSpacing, 3);
    painter.setFont(name);
    painter.setPen(QColor(Palette::kText));
    painter.drawText(QRect(kNameLeft, 0, kTabsLeft - kNameLeft, height()), Qt::AlignVCenter, QStringLiteral("QUORVEL"));
}
