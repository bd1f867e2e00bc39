#include "page/engine/listpage.h"

#include <algorithm>

#include <QEvent>
#include <QHBoxLayout>
#include <QImageReader>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include "controls/accessiblecontrol.h"
#include "controls/messagestrip.h"
#include "controls/metrics.h"
#include "controls/pictures.h"
#include "controls/wrappedlabel.h"
#include "page/engine/labels.h"
#include "page/engine/pagehead.h"
#include "page/engine/pagestyle.h"
#include "page/engine/plainbutton.h"
#include "page/engine/scrollarea.h"
#include "page/engine/storenotice.h"

namespace {

const QString kBackground = Pictures::kRoot + QStringLiteral("img/nightLoom/bg_3.png");
constexpr QSize kFallbackSize(1000, 680);
constexpr int kFixedItems = 2; // of the rows' column: what an empty list says, and the stretch below
const char *const kTrashStyle = "QPushButton { border-image: url(%1trash_normal.png); }"
                                "QPushButton:hover, QPushButton:focus { border-image: url(%1trash_checked.png); }";

QSize pageSize()
{
    static const QSize size = QImageReader(kBackground).size(); // which the file tells without its pixels
    return size.isEmpty() ? kFallbackSize : size;
}

} // namespace

ListPage::ListPage(const QString &name, const char *title, const char *description, const char *nothing,
                   QWidget *parent)
    : QFrame(parent), m_head(new PageHead(this)), m_tools(new QHBoxLayout), m_nothing(new WrappedLabel(this))
{
    setObjectName(name);
    describeAs(this, QAccessible::Pane);
    dressPage(this);
    setFixedSize(pageSize());
    if (parent)
        parent->installEventFilter(this);

    m_nothing->setObjectName(QStringLiteral("note"));
    m_nothing->setWordWrap(true);
    m_texts.bind(title, [this](const QString &text) { m_head->setTitle(text); });
    if (nothing)
        m_texts.bind(nothing, [this](const QString &text) { m_nothing->setText(text); });
    m_texts.bind(description, [this](const QString &text) { m_head->setHelp(text); });
    m_tools->setSpacing(metrics::kGap);

    auto *column = new QVBoxLayout(this);
    constexpr int kSides = metrics::kBlockGap + metrics::kPageBorder; // which its picture has
    column->setContentsMargins(kSides, metrics::kPageBorder, kSides, metrics::kPageBottom);
    column->setSpacing(metrics::kGap);
    column->addWidget(m_head);
    column->addLayout(m_tools);
    column->addSpacing(metrics::kGap);
    column->addWidget(buildList(), 1);
    showWhetherEmpty();
}

/// In a window that is lower than it should be, for its screen, the page is as well: what is cut off nobody can reach.
void ListPage::fitHeight()
{
    setFixedHeight(std::min(pageSize().height(), std::max(parentWidget()->height(), 1)));
}

bool ListPage::event(QEvent *event)
{
    if (event->type() == QEvent::ParentAboutToChange && parentWidget())
        parentWidget()->removeEventFilter(this);
    else if (event->type() == QEvent::ParentChange && parentWidget())
        parentWidget()->installEventFilter(this);
    else if (event->type() == QEvent::Hide)
        Pictures::forget(kBackground);
    return QFrame::event(event);
}

bool ListPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        fitHeight();
    return QFrame::eventFilter(watched, event);
}

QWidget *ListPage::buildList()
{
    m_area = makeScrollArea(this);
    auto *content = new QWidget(m_area);
    content->setObjectName(QStringLiteral("customArea"));
    m_rows = new QVBoxLayout(content);
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(metrics::kGap);
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setParent(content);
    m_rows->addWidget(m_nothing, 1);
    m_rows->addStretch();
    fillScrollArea(m_area, content);
    return m_area;
}

void ListPage::showList(QWidget *list, bool isEmpty)
{
    auto *column = static_cast<QVBoxLayout *>(layout());
    if (column->indexOf(list) < 0)
        column->insertWidget(column->indexOf(m_area), list, 1);
    list->setVisible(!isEmpty);
    m_area->setVisible(isEmpty);
}

void ListPage::addRow(QWidget *row)
{
    m_rows->insertWidget(m_rows->count() - 1, row);
    showWhetherEmpty();
}

void ListPage::showWhetherEmpty()
{
    m_nothing->setVisible(m_rows->count() == kFixedItems);
}

void ListPage::removeRow(QWidget *row)
{
    m_rows->removeWidget(row);
    row->hide();
    row->deleteLater();
    showWhetherEmpty();
}

void ListPage::updateControlText()
{
    m_texts.retranslate();
}

QHBoxLayout *ListPage::heading()
{
    return m_head->corner();
}

QString ListPage::notice() const
{
    return m_head->strip()->text();
}

void ListPage::showNotice(const QString &text, Tone tone)
{
    m_head->strip()->say(text, tone == Tone::Warning ? MessageStrip::Tone::Refusal : MessageStrip::Tone::Notice);
}

QPushButton *ListPage::makeButton(const char *label, const QString &name)
{
    return makePlainButton(label, name, m_texts, this);
}

QPushButton *ListPage::addApplyButton(const QString &name)
{
    m_apply = makeButton(LABEL("Apply"), name);
    m_tools->addStretch(1);
    m_tools->addWidget(m_apply);
    return m_apply;
}

void ListPage::setWaiting(bool waiting)
{
    m_apply->setProperty("waiting", waiting);
    m_apply->style()->polish(m_apply);
    showNotice(waiting ? QObject::tr("Changes take effect when you press \"%1\".").arg(m_apply->text()) : QString());
}

void ListPage::showStored(bool stored, const QString &fileName)
{
    setWaiting(!stored);
    if (!stored)
        showNotice(storeNotice(Unstored::HoldsUntilExit, fileName), Tone::Warning);
}

void ListPage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Pictures::draw(painter, rect(), kBackground);
}

QPushButton *makeTrashButton(QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setFixedSize(metrics::kControlHeight, metrics::kControlHeight);
    const QString folder = Pictures::kRoot + QStringLiteral("img/basicSetting/shortcutKey/");
    button->setStyleSheet(QString::fromLatin1(kTrashStyle).arg(folder));
    return button;
}
