#include "page/engine/listpage.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include "controls/pictures.h"
#include "controls/sharedfonts.h"
#include "page/engine/labels.h"
#include "page/engine/pagestyle.h"
#include "page/engine/plainbutton.h"
#include "page/engine/storenotice.h"

namespace {

const QString kBackground = Pictures::kRoot + QStringLiteral("img/nightLoom/bg_3.png");
constexpr QSize kFallbackSize(1000, 680);
constexpr int kMargin = 24;
constexpr int kFixedItems = 2; // of the rows' column: what an empty list says, and the stretch below
const char *const kTrashStyle = "QPushButton { border-image: url(%1trash_normal.png); }"
                                "QPushButton:hover, QPushButton:focus { border-image: url(%1trash_checked.png); }";

QLabel *makeLabel(const QString &name, const QFont &font, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setFont(font);
    label->setWordWrap(true);
    return label;
}

} // namespace

ListPage::ListPage(const QString &name, const char *title, const char *description, const char *nothing,
                   QWidget *parent)
    : QFrame(parent), m_heading(new QHBoxLayout), m_tools(new QHBoxLayout),
      m_nothing(makeLabel(QStringLiteral("note"), QFont(), this)),
      m_notice(makeLabel(QStringLiteral("listNotice"), noteFont, this))
{
    setObjectName(name);
    dressPage(this);
    const QPixmap background = Pictures::load(kBackground, 1.0);
    setFixedSize(background.isNull() ? kFallbackSize : background.size());

    QLabel *heading = makeLabel(QStringLiteral("title"), titleFont, this);
    QLabel *note = makeLabel(QStringLiteral("note"), noteFont, this);
    m_texts.bind(title, [heading](const QString &text) { heading->setText(text); });
    m_texts.bind(nothing, [this](const QString &text) { m_nothing->setText(text); });
    m_texts.bind(description, [note](const QString &text) { note->setText(text); });
    m_heading->addWidget(heading, 1);
    m_tools->setSpacing(12);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, 16);
    column->setSpacing(12);
    column->addLayout(m_heading);
    column->addWidget(note);
    column->addLayout(m_tools);
    column->addWidget(buildList(), 1);
    column->addWidget(m_notice);
    m_notice->setTextFormat(Qt::PlainText); // it may name a file of any name
    showNotice({});
    showWhetherEmpty();
}

QWidget *ListPage::buildList()
{
    m_area = new QScrollArea(this);
    m_area->setWidgetResizable(true);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setFocusPolicy(Qt::NoFocus);
    auto *content = new QWidget(m_area);
    content->setObjectName(QStringLiteral("customArea"));
    m_rows = new QVBoxLayout(content);
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(8);
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setParent(content);
    m_rows->addWidget(m_nothing, 1);
    m_rows->addStretch();
    m_area->setWidget(content);
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

void ListPage::showNotice(const QString &text, Tone tone)
{
    m_notice->setText(text);
    m_notice->setVisible(!text.isEmpty());
    m_notice->setProperty("warning", tone == Tone::Warning);
    m_notice->style()->polish(m_notice);
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
    button->setFixedSize(32, 32);
    const QString folder = Pictures::kRoot + QStringLiteral("img/basicSetting/shortcutKey/");
    button->setStyleSheet(QString::fromLatin1(kTrashStyle).arg(folder));
    return button;
}
