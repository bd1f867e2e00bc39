#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QWidget>

#include "virtualdesk/soundsource.h"

class QComboBox;
class QLabel;
class QPushButton;
class QSlider;

namespace virtualdesk {

class SimulatedEndpoint;
class VirtualDesk;

/// The sound of the desk: what plays, on what kind of device, and buttons for everything that can go wrong with it.
class SoundPanel : public QWidget
{
    Q_OBJECT

public:
    /// The desk outlives the panel.
    explicit SoundPanel(VirtualDesk &desk, QWidget *parent = nullptr);
    ~SoundPanel() override;

    void retranslate();

private:
    struct Row
    {
        QLabel *name;
        QLabel *value; // null beside a box
    };

    void buildSound();
    void buildDevice();
    void buildFaults();
    QSlider *addSlider(int maximum, Row &row);
    QComboBox *addBox(Row &row);
    void change(const std::function<void(SoundSetup &)> &edit);
    bool chooseFile();
    void showWhatIs();

    SimulatedEndpoint &m_endpoint;
    std::shared_ptr<const WaveData> m_wave;
    QString m_waveName;
    QLabel *m_soundTitle;
    QLabel *m_deviceTitle;
    QLabel *m_faultTitle;
    QLabel *m_state;
    Row m_soundRow, m_frequencyRow, m_secondRow, m_volumeRow, m_rateRow, m_channelRow, m_mixRow;
    QComboBox *m_sound = nullptr;
    QSlider *m_frequency = nullptr; // tenths of an octave above the lowest tone
    QSlider *m_second = nullptr;
    QSlider *m_volume = nullptr;
    QComboBox *m_rate = nullptr;
    QComboBox *m_channels = nullptr;
    QComboBox *m_mix = nullptr;
    std::vector<QPushButton *> m_faultButtons; // in the order of the fault table
};

} // namespace virtualdesk
