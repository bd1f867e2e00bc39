#include "controls/desktoptoast.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "controls/announcer.h"
#include "controls/captionlabel.h"
#include "controls/labelled.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/sharedfonts.h"
#include "controls/wrappedlabel.h"

static constexpr int kDistance = metrics::kBlockGap; // from the edges of the screen
static constexpr int kToastRadius = 12;
static constexpr int kWidth = 320;
static constexpr int kSide = metrics::kBlockGap;
static constexpr int kEdge = metrics::kInset;    // above the title
static constexpr int kBarRoom = metrics::kInset; // for the bar; a note without one has it around its text
static constexpr int kBarHeight = 8;

DesktopToast::DesktopToast(QWidget *parent)
    : DesktopToast(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                               Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput)
{
}

DesktopToast::DesktopToast(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), m_title(new CaptionLabel(QString(), QFontInfo(noteFont).pixelSize(), this)),
      m_text(new WrappedLabel(this))
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TranslucentBackground);
    m_title->setFont(noteFont);
    m_title->setStyleSheet(Palette::styled(u"color: @mint;"));
    m_text->setStyleSheet(Palette::styled(u"color: @text;"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    column->setSpacing(metrics::kGap);
    column->addWidget(m_title);
    column->addWidget(m_text);
    setFixedWidth(kWidth);
}

void DesktopToast::addBelow(QLayout *part)
{
    static_cast<QVBoxLayout *>(layout())->addLayout(part);
}

void DesktopToast::showNote(const QString &title, const QString &text, std::optional<double> level)
{
    m_level = level;
    const int below = level ? kBarRoom : kBarRoom / 2;
    layout()->setContentsMargins(kSide, kEdge + kBarRoom - below, kSide, kEdge + below);
    m_title->setText(title);
    m_text->setText(text);
    resize(kWidth, layout()->totalHeightForWidth(kWidth)); // adjustSize() would break the text at a width of its own
    moveToCorner();
    show();
    Announcer::say(labelled(title, text));
    update();
}

QString DesktopToast::title() const
{
    return m_title->text();
}

QString DesktopToast::text() const
{
    return m_text->text();
}

void DesktopToast::moveToCorner()
{
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    move(area.right() - width() - kDistance, area.bottom() - height() - kDistance);
}

void DesktopToast::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(Palette::kRim));
    painter.setBrush(Palette::translucent(Palette::kFloating, 240));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kToastRadius, kToastRadius);
    if (m_level)
        drawBar(painter);
}

void DesktopToast::drawBar(QPainter &painter) const
{
    QRectF bar(kSide, height() - kEdge - kBarHeight, width() - 2 * kSide, kBarHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(Palette::kGroove));
    painter.drawRoundedRect(bar, kBarHeight / 2.0, kBarHeight / 2.0);
    bar.setWidth(bar.width() * *m_level);
    painter.setBrush(QColor(Palette::kMint));
    painter.drawRoundedRect(bar, kBarHeight / 2.0, kBarHeight / 2.0);
}
