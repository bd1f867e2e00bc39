#include "monitorchoice.h"

#include <QComboBox>
#include <QDebug>

#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/settingsstore.h"
#include "ddc_protocol/transport.h"

MonitorChoice::MonitorChoice(QWidget *parent) : m_box(new QComboBox(parent))
{
    connect(m_box, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (!m_filling && index >= 0)
            Q_EMIT chosen(index);
    });
}

std::uint8_t MonitorChoice::storedIndex() const
{
    const auto index = static_cast<std::uint8_t>(settingsInt(QString::fromLatin1(kDeviceIndexKey), 0, false));
    // Before the first search there are no labels and the subtraction wraps: any stored index is then accepted. That is
    // meant; only the second pass falls back.
    const quint64 highest = static_cast<quint64>(m_labels.size()) - 1;
    const bool accepted = index <= highest && projectionMode != ProjectionMode::Clone;
    return accepted ? index : 0;
}

void MonitorChoice::find()
{
    m_filling = true;
    m_labels = findDevices();
    m_box->clear();
    for (const QByteArray &label : std::as_const(m_labels)) {
        if (!label.isEmpty())
            m_box->addItem(QString::fromUtf8(label));
    }
    m_filling = false;
}

void MonitorChoice::chooseForPass(int pass) const
{
    const int labels = static_cast<int>(m_labels.size());
    const int index = currentMonitorIndex;
    if (pass == 1 && index != 0)
        currentMonitorIndex = 0;
    else if (pass == 1)
        currentMonitorIndex = labels >= 2 ? 1 : 0;
    else if (pass > 1 && index + 1 < labels)
        currentMonitorIndex = static_cast<std::uint8_t>(index + 1);
    qDebug() << "Connet device Count=" << m_box->count() << "disp_sle" << currentMonitorIndex.load();
}

void MonitorChoice::showTried()
{
    m_filling = true;
    m_box->setCurrentIndex(currentMonitorIndex);
    m_filling = false;
}

void MonitorChoice::showAgain()
{
    const QSignalBlocker quiet(m_box);
    m_box->setCurrentIndex(currentMonitorIndex);
}
