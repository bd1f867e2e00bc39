#include "page/Health/healtherrors.h"

#include <QHBoxLayout>
#include <QLabel>

#include "controls/accessiblecontrol.h"
#include "controls/metrics.h"
#include "page/Health/healthlabel.h"
#include "page/Health/healthtexts.h"
#include "page/engine/boundtexts.h"
#include "page/engine/labels.h"

namespace {

constexpr int kHeight = 136; // three errors; the others scroll, and on a low screen all but the first
constexpr int kErrorHeight = 40;
constexpr int kTimeWidth = 62;
constexpr int kTextWidth = 250;

QWidget *makeError(const LinkError &error, QWidget *parent)
{
    auto *row = new QFrame(parent);
    row->setObjectName(QStringLiteral("healthError"));
    row->setMinimumHeight(kErrorHeight);
    auto *cells = new QHBoxLayout(row);
    cells->setContentsMargins(metrics::kInset, 0, metrics::kGap, 0);
    cells->setSpacing(metrics::kInset);
    QLabel *const time = makeHealthLabel(QStringLiteral("note"), 13, row);
    time->setText(error.until.toString(QStringLiteral("hh:mm:ss")));
    time->setFixedWidth(kTimeWidth);
    QLabel *const text = makeHealthLabel(QStringLiteral("healthHeading"), 0, row);
    text->setText(errorText(error));
    text->setFixedWidth(kTextWidth);
    QLabel *const advice = makeHealthLabel(QStringLiteral("note"), 0, row);
    advice->setText(errorAdvice(error));
    cells->addWidget(time);
    cells->addWidget(text);
    cells->addWidget(advice, 1);
    return row;
}

} // namespace

HealthErrors::HealthErrors(BoundTexts &texts, QWidget *parent) : QScrollArea(parent)
{
    describeAs(this, QAccessible::Pane);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setMinimumHeight(kErrorHeight);
    setMaximumHeight(kHeight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    texts.bind(LABEL("Last errors"), [this](const QString &text) { setAccessibleName(text); });
    auto *content = new QWidget(this);
    content->setObjectName(QStringLiteral("customArea"));
    m_rows = new QVBoxLayout(content);
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(metrics::kLineGap);
    m_rows->setAlignment(Qt::AlignTop);
    setWidget(content);
}

QSize HealthErrors::sizeHint() const
{
    return {QScrollArea::sizeHint().width(), kHeight};
}

void HealthErrors::fill(const LinkRecord &record)
{
    while (QLayoutItem *item = m_rows->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const LinkError &error : record.errors())
        m_rows->addWidget(makeError(error, widget()));
    if (!record.errors().empty())
        return;
    QLabel *const none = makeHealthLabel(QStringLiteral("note"), 0, widget());
    none->setText(QObject::tr("None."));
    m_rows->addWidget(none);
}
