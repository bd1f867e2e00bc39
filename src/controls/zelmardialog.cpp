#include "controls/zelmardialog.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/dress.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/pictures.h"
#include "controls/wrappedlabel.h"

namespace {
const QString kBackground = Pictures::kRoot + QStringLiteral("img/basicSetting/shortcutKey/dialog.png");
constexpr QSize kFallbackSize(420, 200);
const QString kFrameStyle =
    QStringLiteral("QLabel#title { color: @text; font-size: 18px; }"
                   "QLabel#text { color: @soft; font-size: 15px; }"
                   "QPushButton { color: @ink; font-size: 15px; border: 1px solid transparent; border-radius: 8px;"
                   " min-width: 112px; min-height: 34px;"
                   " background: qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 @deep, stop:1 @mint); }"
                   "QPushButton:hover { background: @bright; }"
                   "QPushButton:focus { border-color: @text; }"
                   "QPushButton:pressed { background: @deep; }");
} // namespace

ZelmarDialog::ZelmarDialog(QWidget *parent) : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
{
    setAttribute(Qt::WA_TranslucentBackground);
    holdUpItsWindow(this);
    setWindowTitle(QObject::tr("Hotkey conflict"));
    const QPixmap background = Pictures::load(kBackground, 1.0);
    setFixedSize(background.isNull() ? kFallbackSize : background.size());
    setStyleSheet(Palette::styled(kFrameStyle));

    auto *title = new QLabel(windowTitle(), this);
    title->setObjectName(QStringLiteral("title"));
    auto *text = new WrappedLabel(QObject::tr("The hotkey you set is occupied,please reset it again!"), this);
    text->setObjectName(QStringLiteral("text"));
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignCenter);
    auto *ok = new QPushButton(QObject::tr("Ok"), this);
    ok->setDefault(true);
    setAccessibleDescription(text->text());

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(metrics::kBlockGap, metrics::kInset, metrics::kBlockGap, metrics::kBlockGap);
    column->setSpacing(metrics::kGap);
    column->addWidget(title);
    column->addWidget(text, 1);
    column->addWidget(ok, 0, Qt::AlignHCenter);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
}

void ZelmarDialog::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (Pictures::draw(painter, rect(), kBackground))
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(Palette::kRim));
    painter.setBrush(QColor(Palette::kTip));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 14, 14);
}
