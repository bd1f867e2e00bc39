#include "page/Nightloom/parts/longworkpage.h"

#include <utility>

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "controls/sharedfonts.h"
#include "page/Nightloom/parts/toolcolumn.h"
#include "page/engine/pagestyle.h"

LongWorkPage::LongWorkPage(const QString &name, const char *title, AccessoryCheck ensureConnected, QWidget *parent)
    : QLabel(parent), m_ensureConnected(std::move(ensureConnected)), m_work(new WorkPanel(m_texts, this)),
      m_head(new QHBoxLayout)
{
    setObjectName(name);
    dressPage(this);
    auto *heading = new QLabel(this);
    heading->setObjectName(QStringLiteral("title"));
    heading->setFont(titleFont);
    m_texts.bind(title, [heading](const QString &text) { heading->setText(text); });
    m_head->addWidget(heading);
    m_head->addStretch(1);
    connect(m_work, &WorkPanel::begins, this, &LongWorkPage::busyBegins);
    connect(m_work, &WorkPanel::cancelled, this, &LongWorkPage::cancelWork);
    connect(m_work, &WorkPanel::ended, this, &LongWorkPage::busyEnded);
}

void LongWorkPage::layOut(QWidget *worked, int spacing)
{
    auto *main = new QVBoxLayout;
    main->setSpacing(spacing);
    main->addLayout(m_head);
    main->addWidget(worked, 1);
    auto *side = new QWidget(this);
    auto *tools = new QWidget(side);
    buildTools(makeToolColumn(tools), tools);
    m_work->block({tools, worked});
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 4, 0, 0);
    column->setSpacing(16);
    column->addWidget(tools);
    column->addWidget(m_work);
    column->addStretch(1);
    layOutWithTools(this, main, side);
}

void LongWorkPage::updateControlText()
{
    m_texts.retranslate();
}
