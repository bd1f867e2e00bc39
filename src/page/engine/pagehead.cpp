#include "page/engine/pagehead.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "controls/dress.h"
#include "controls/messagestrip.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/sharedfonts.h"
#include "controls/wrappedlabel.h"

namespace {

QLabel *makeLine(const QString &name, const QFont &font, QRgb colour, QWidget *parent)
{
    auto *line = new WrappedLabel(parent);
    line->setObjectName(name);
    line->setFont(font);
    dressText(line, {colour});
    line->setMinimumHeight(line->fontMetrics().height());
    return line;
}

/// As it is laid out, which may be more than its font tells.
int lineHeight(QLabel *line)
{
    line->setText(QStringLiteral(" "));
    const int height = line->sizeHint().height();
    line->clear();
    return height;
}

} // namespace

PageHead::PageHead(QWidget *page)
    : QWidget(page), m_page(*page), m_title(makeLine(QStringLiteral("title"), titleFont, Palette::kText, this)),
      m_help(makeLine(QStringLiteral("help"), noteFont, Palette::kHint, this)), m_corner(new QHBoxLayout),
      m_strip(new MessageStrip(this))
{
    m_help->setWordWrap(true);
    QSizePolicy helpPolicy = m_help->sizePolicy();
    helpPolicy.setRetainSizeWhenHidden(true); // the rows below do not move
    m_help->setSizePolicy(helpPolicy);
    const QFontMetrics title = m_title->fontMetrics();
    const QFontMetrics help = m_help->fontMetrics();
    const int titleTop = metrics::kTitleBaseline - title.ascent();
    const int helpTop = metrics::kHelpBaseline - help.ascent();
    auto *words = new QVBoxLayout;
    words->setContentsMargins(0, titleTop, 0, 0);
    words->setSpacing(helpTop - titleTop - lineHeight(m_title));
    words->addWidget(m_title);
    words->addWidget(m_help);
    m_corner->setContentsMargins(metrics::kBlockGap, metrics::kBlockGap, 0, 0);
    auto *line = new QHBoxLayout;
    line->setSpacing(0);
    line->addLayout(words, 1);
    line->addLayout(m_corner);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(line);
    column->addSpacing(metrics::kStripTop - helpTop - lineHeight(m_help));
    column->addWidget(m_strip);
}

void PageHead::setTitle(const QString &title)
{
    m_title->setText(title);
    m_page.setAccessibleName(title);
}

void PageHead::setHelp(const QString &sentence)
{
    m_help->setText(sentence);
    m_help->setVisible(!sentence.isEmpty());
}
