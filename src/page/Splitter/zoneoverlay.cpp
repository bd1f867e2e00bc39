#include "page/Splitter/zoneoverlay.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "controls/accessiblecontrol.h"
#include "controls/captionlabel.h"
#include "controls/focusgroup.h"
#include "controls/focusring.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/sharedfonts.h"
#include "controls/wrappedlabel.h"
#include "page/Splitter/zonepicture.h"
#include "platform/desk.h"
#include "platform/pause.h"

namespace {

constexpr platform::milliseconds kSettles{500}; // while it opens the front may come and go
constexpr int kWidth = 420;
constexpr int kSide = metrics::kBlockGap;
constexpr int kTitlePixels = 18;
constexpr int kOverlayRadius = 14;
constexpr QSize kTallest(kWidth - 2 * kSide, 320);

constexpr char16_t kStyle[] =
    u"QLabel { color: @hint; }"
    "QLabel#title { color: @text; }"
    "QPushButton { color: @soft; background-color: @field; border: 1px solid @edge; border-radius: 6px;"
    " font-size: 26px; outline: none; }"
    "QPushButton:hover { color: @text; border-color: @hoveredEdge; }"
    "QPushButton:checked { color: @bright; background-color: @selected; border-color: @checked; }"
    "QPushButton:focus { border: 2px solid @mint; }"
    "QPushButton:pressed { background-color: @selected; }";

/// The toolkit's screen for one of the system's: both begin at the same pixel, whatever their scale.
QScreen *toolkitScreen(const QRect &screen)
{
    for (QScreen *each : QGuiApplication::screens()) {
        if (each->geometry().topLeft() == screen.topLeft())
            return each;
    }
    return QGuiApplication::primaryScreen();
}

} // namespace

ZoneOverlay::ZoneOverlay()
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      m_title(new CaptionLabel(QString(), kTitlePixels, this)), m_picture(new QWidget(this)),
      m_hint(new WrappedLabel(this))
{
    setObjectName(QStringLiteral("ZoneOverlay"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
    describeAs(this, QAccessible::Pane);
    describeAs(m_picture, QAccessible::Grouping);
    setStyleSheet(Palette::styled(kStyle));
    m_title->setObjectName(QStringLiteral("title"));
    m_hint->setFont(noteFont);
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignHCenter);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kSide, metrics::kInset, kSide, metrics::kInset);
    column->setSpacing(metrics::kGap);
    column->addWidget(m_title);
    column->addWidget(m_picture, 0, Qt::AlignHCenter);
    column->addWidget(m_hint);
    setFixedWidth(kWidth);
}

void ZoneOverlay::open(const QString &title, const SplitLayout &layout, const QRect &screen, std::optional<int> current)
{
    const QString name = shownName(layout);
    m_title->setText(title.isEmpty() ? name : title);
    m_hint->setText(
        QObject::tr("Press a number. That of the window's own zone gives it its old place back. Esc closes."));
    setAccessibleName(QObject::tr("Zones for %1").arg(m_title->text()));
    m_picture->setAccessibleName(name);
    m_picture->setFixedSize(screen.size().scaled(kTallest, Qt::KeepAspectRatio));
    makeZones(layout, current);
    const QRect area = toolkitScreen(screen)->availableGeometry();
    resize(kWidth, QWidget::layout()->totalHeightForWidth(kWidth));
    move(area.center() - rect().center());
    m_opened = platform::desk().clock().now();
    show();
    raise();
    activateWindow();
    m_zones[static_cast<std::size_t>(current.value_or(0))]->setFocus();
}

void ZoneOverlay::makeZones(const SplitLayout &layout, std::optional<int> current)
{
    qDeleteAll(m_zones);
    m_zones.clear();
    delete m_picture->findChild<QObject *>(QStringLiteral("zoneGroup"));
    auto *group = new FocusGroup(m_picture);
    group->setObjectName(QStringLiteral("zoneGroup"));
    for (std::size_t i = 0; i < layout.zones.size(); ++i) {
        const auto zone = static_cast<int>(i);
        auto *button = new QPushButton(QString::number(zone + 1), m_picture);
        button->setObjectName(QStringLiteral("zone_%1").arg(zone + 1));
        button->setAccessibleName(QObject::tr("Zone %1 of %2").arg(zone + 1).arg(layout.zones.size()));
        button->setCheckable(true);
        button->setChecked(zone == current);
        constexpr int kHalf = metrics::kGap / 2; // of what is between zones
        button->setGeometry(
            zoneOnPicture(layout.zones[i], m_picture->rect()).toRect().adjusted(kHalf, kHalf, -kHalf, -kHalf));
        connect(button, &QPushButton::clicked, this, [this, zone] { choose(zone); });
        button->show();
        group->add(button);
        m_zones.push_back(button);
    }
}

void ZoneOverlay::choose(int zone)
{
    hide();
    Q_EMIT zoneChosen(zone);
}

void ZoneOverlay::keyPressEvent(QKeyEvent *event)
{
    const int zone = event->key() - Qt::Key_1;
    if (event->key() == Qt::Key_Escape)
        hide();
    else if (zone >= 0 && zone < static_cast<int>(m_zones.size()))
        choose(zone);
    else if (!pressFocused(event, this))
        QWidget::keyPressEvent(event);
}

void ZoneOverlay::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ActivationChange)
        return;
    const QDateTime now = platform::desk().clock().now();
    if (isActiveWindow())
        m_opened = now; // on a busy machine it comes to the front long after it was shown
    else if (platform::endOf(m_opened, kSettles, now) <= now)
        hide();
}

void ZoneOverlay::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(Palette::kChecked));
    painter.setBrush(QColor(Palette::kFloating));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kOverlayRadius, kOverlayRadius);
}
