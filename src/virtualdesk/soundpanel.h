#pragma once

#include <functional>
#include <memory>

#include <QWidget>

#include "virtualdesk/soundsource.h"

class QComboBox;
class QLabel;
class QSlider;
class QVBoxLayout;

namespace virtualdesk {

class ActionButtons;
class PanelRows;
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
    void buildSound();
    void buildDevice();
    void buildFaults();
    void change(const std::function<void(SoundSetup &)> &edit);
    bool chooseFile();
    void showWhatIs();

    SimulatedEndpoint &m_endpoint;
    std::shared_ptr<const WaveData> m_wave;
    QString m_waveName;
    QString m_fileFault; ///< of the file that was chosen last; empty as soon as something else is chosen
    QLabel *m_soundTitle;
    QLabel *m_deviceTitle;
    QLabel *m_faultTitle;
    QLabel *m_state;
    QVBoxLayout *m_column;
    PanelRows *m_rows;
    ActionButtons *m_faults;
    QComboBox *m_sound = nullptr;
    QSlider *m_frequency = nullptr; // tenths of an octave above the lowest tone
    QSlider *m_second = nullptr;
    QSlider *m_volume = nullptr;
    QComboBox *m_rate = nullptr;
    QComboBox *m_channels = nullptr;
    QComboBox *m_mix = nullptr;
};

} // namespace virtualdesk
