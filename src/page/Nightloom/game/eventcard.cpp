#include "page/Nightloom/game/eventcard.h"

#include <QVBoxLayout>

#include "controls/captionlabel.h"
#include "controls/labelled.h"
#include "controls/metrics.h"
#include "page/Nightloom/parts/smallmatrix.h"
#include "usb-hid/accessorylink.h"

namespace {

constexpr QSize kPictureSize(280, 224); // lower on a low screen
constexpr int kLeastPicture = 144;
constexpr int kNamePixels = 15;

} // namespace

EventCard::EventCard(QWidget *parent)
    : QFrame(parent), m_name(new CaptionLabel(QString(), kNamePixels, this)), m_picture(new SmallMatrix(this))
{
    setObjectName(QStringLiteral("matrixCard"));
    m_name->setObjectName(QStringLiteral("matrixName"));
    m_picture->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    m_picture->setFixedWidth(kPictureSize.width());
    m_picture->setMinimumHeight(kLeastPicture);
    m_picture->setMaximumHeight(kPictureSize.height());
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(metrics::kInset, metrics::kInset, metrics::kInset, metrics::kInset);
    column->setSpacing(metrics::kGap);
    column->addWidget(m_name);
    column->addWidget(m_picture);
}

void EventCard::tell(GameEvent event, const QString &name)
{
    const MatrixForm *form = accessoryLink.form;
    m_picture->showFrame(form ? std::optional(eventPicture(*form, event)) : std::nullopt);
    m_name->setText(name);
    m_picture->setAccessibleName(labelled(name, QObject::tr("LED matrix")));
}
