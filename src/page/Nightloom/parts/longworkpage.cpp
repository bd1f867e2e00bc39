#include "page/Nightloom/parts/longworkpage.h"

#include <utility>

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "controls/accessiblecontrol.h"
#include "controls/metrics.h"
#include "controls/sharedfonts.h"
#include "page/Nightloom/parts/toolcolumn.h"
#include "page/engine/pagehead.h"
#include "page/engine/pagestyle.h"

static constexpr int kToolColumnWidth = 280;

LongWorkPage::LongWorkPage(const QString &name, const char *title, const char *help, AccessoryCheck ensureConnected,
                           QWidget *parent)
    : QLabel(parent), m_ensureConnected(std::move(ensureConnected)), m_head(new PageHead(this)),
      m_work(new WorkPanel(m_texts, *m_head->strip(), this))
{
    setObjectName(name);
    describeAs(this, QAccessible::Pane);
    dressPage(this);
    m_texts.bind(title, [this](const QString &text) {
        m_head->setTitle(text);
        setAccessibleName(text);
    });
    m_texts.bind(help, [this](const QString &text) { m_head->setHelp(text); });
    connect(m_work, &WorkPanel::begins, this, &LongWorkPage::busyBegins);
    connect(m_work, &WorkPanel::cancelled, this, &LongWorkPage::cancelWork);
    connect(m_work, &WorkPanel::ended, this, &LongWorkPage::busyEnded);
}

void LongWorkPage::layOut(QWidget *worked)
{
    auto *side = new QWidget(this);
    side->setFixedWidth(kToolColumnWidth);
    auto *tools = new QWidget(side);
    buildTools(makeToolColumn(tools), tools);
    m_work->block({tools, worked});
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kRowGap);
    column->addWidget(tools);
    column->addWidget(m_work);
    column->addStretch(1);
    auto *row = new QHBoxLayout;
    row->setSpacing(metrics::kBlockGap);
    row->addWidget(worked, 1);
    row->addWidget(side);
    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(metrics::kBlockGap, 0, metrics::kBlockGap, 16);
    page->setSpacing(metrics::kGap);
    page->addWidget(m_head);
    page->addLayout(row, 1);
}

void LongWorkPage::updateControlText()
{
    m_texts.retranslate();
}
