#include "page/Nightloom/parts/longworkpage.h"

#include <functional>
#include <utility>

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "controls/accessiblecontrol.h"
#include "controls/captionlabel.h"
#include "controls/captions.h"
#include "controls/metrics.h"
#include "page/Nightloom/parts/toolcolumn.h"
#include "page/engine/pagehead.h"
#include "page/engine/pagestyle.h"

namespace {

constexpr int kToolColumnWidth = 280;

/// Tells when what a widget holds takes another size, as a note with another text does.
class SizeWatch : public QObject
{
public:
    SizeWatch(QWidget *watched, std::function<void()> tell) : QObject(watched), m_tell(std::move(tell))
    {
        watched->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::LayoutRequest)
            m_tell();
        return false;
    }

private:
    std::function<void()> m_tell;
};

} // namespace

LongWorkPage::LongWorkPage(const QString &name, const char *title, const char *help, AccessoryCheck ensureConnected,
                           QWidget *parent)
    : QLabel(parent), m_ensureConnected(std::move(ensureConnected)), m_head(new PageHead(this)),
      m_work(new WorkPanel(m_texts, *m_head->strip(), this))
{
    setObjectName(name);
    describeAs(this, QAccessible::Pane);
    layGround(this);
    dressPage(this);
    m_texts.bind(title, [this](const QString &text) { m_head->setTitle(text); });
    m_texts.bind(help, [this](const QString &text) { m_head->setHelp(text); });
    connect(m_work, &WorkPanel::begins, this, &LongWorkPage::busyBegins);
    connect(m_work, &WorkPanel::cancelled, this, &LongWorkPage::cancelWork);
    connect(m_work, &WorkPanel::ended, this, &LongWorkPage::busyEnded);
}

void LongWorkPage::layOut(QWidget *worked)
{
    m_side = new QWidget(this);
    m_side->setFixedWidth(kToolColumnWidth);
    m_tools = new QWidget(m_side);
    buildTools(makeToolColumn(m_tools), m_tools);
    shrinkTogether(m_tools->findChildren<CaptionLabel *>());
    m_work->block({m_tools, worked});
    new SizeWatch(m_tools, [this] { fitTools(); });
    auto *column = new QVBoxLayout(m_side);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kRowGap);
    column->addWidget(m_tools);
    column->addWidget(m_work);
    column->addStretch(1);
    auto *row = new QHBoxLayout;
    row->setSpacing(metrics::kBlockGap);
    row->addWidget(worked, 1);
    row->addWidget(m_side);
    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(metrics::kBlockGap, 0, metrics::kBlockGap, metrics::kPageBottom);
    page->setSpacing(metrics::kGap);
    page->addWidget(m_head);
    page->addLayout(row, 1);
}

void LongWorkPage::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    fitTools();
}

/// Where the tools do not fit with the usual gaps, on a low screen or in long words, they move together: else they
/// would be laid over each other.
void LongWorkPage::fitTools()
{
    if (!m_tools)
        return;
    QLayout *tools = m_tools->layout();
    const int closer = (metrics::kRowGap - tools->spacing()) * (tools->count() - 1);
    const int needed = m_side->layout()->totalMinimumHeightForWidth(kToolColumnWidth) + closer;
    const int spacing = needed > m_side->height() ? metrics::kGap : metrics::kRowGap;
    if (tools->spacing() != spacing)
        tools->setSpacing(spacing);
}

void LongWorkPage::updateControlText()
{
    m_texts.retranslate();
    shrinkTogether(m_tools->findChildren<CaptionLabel *>());
    fitTools();
}
