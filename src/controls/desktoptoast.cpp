#include "controls/desktoptoast.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "controls/announcer.h"
#include "controls/sharedfonts.h"

static constexpr int kDistance = 24; // from the edges of the screen
static constexpr int kRadius = 12;

DesktopToast::DesktopToast(QWidget *parent)
    : QWidget(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus |
                          Qt::WindowTransparentForInput),
      m_title(new QLabel(this)), m_text(new QLabel(this))
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TranslucentBackground);
    m_title->setFont(noteFont);
    m_title->setStyleSheet(QStringLiteral("color: #7bfadb;"));
    m_text->setStyleSheet(QStringLiteral("color: #ffffff;"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(20, 14, 20, 14);
    column->addWidget(m_title);
    column->addWidget(m_text);
}

void DesktopToast::showNote(const QString &title, const QString &text)
{
    m_title->setText(title);
    m_text->setText(text);
    adjustSize();
    moveToCorner();
    show();
    Announcer::say(QStringLiteral("%1: %2").arg(title, text));
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
    painter.setPen(QColor(27, 80, 67));
    painter.setBrush(QColor(0x16, 0x1d, 0x1a, 240));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}
