#include "page/Scene/factoryhalf.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/metrics.h"
#include "controls/monitorpicture.h"
#include "controls/testpicture.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/scenemodes.h"
#include "page/Scene/scenelooks.h"
#include "page/engine/labels.h"
#include "page/engine/note.h"
#include "page/engine/plainbutton.h"

static constexpr QSize kLook(420, 280); // of the drawn monitor

FactoryHalf::FactoryHalf(BoundTexts &texts, QWidget *parent)
    : QWidget(parent), m_look(new MonitorPicture(this)), m_words(makeNote(this)),
      m_own(makePlainButton(LABEL("Make it your own"), QStringLiteral("makeOwn"), texts, this))
{
    m_look->setFixedSize(kLook);
    m_look->setPainter([](QPainter &painter, const QRectF &screen) {
        drawTestPicture(painter, screen, sceneLook(deviceState.value(Command::SceneMode)));
    });
    m_words->setAlignment(Qt::AlignCenter);
    auto *column = new QVBoxLayout(this);
    column->setSpacing(metrics::kInset);
    column->addStretch(2);
    column->addWidget(m_look, 0, Qt::AlignHCenter);
    column->addWidget(m_words);
    column->addWidget(m_own, 0, Qt::AlignHCenter);
    column->addStretch(3);
}

void FactoryHalf::showMode(const SceneMode *mode)
{
    m_words->setText(mode ? QObject::tr(mode->hint) : QString());
    m_look->setAccessibleName(QObject::tr("What it looks like"));
    m_look->setAccessibleDescription(m_words->text());
    m_look->update();
}
