#include "virtualdesk/soundpanel.h"

#include <cmath>

#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QSlider>
#include <QVBoxLayout>

#include "virtualdesk/actionbuttons.h"
#include "virtualdesk/labels.h"
#include "virtualdesk/marked.h"
#include "virtualdesk/panelrows.h"
#include "virtualdesk/soundfaults.h"
#include "virtualdesk/virtualdesk.h"

namespace virtualdesk {

namespace {

// In the order of their enumerations.
constexpr const char *kSounds[] = {NAME("Nothing plays"), NAME("Silence"), NAME("A tone"),    NAME("Two tones"),
                                   NAME("A sweep"),       NAME("Noise"),   NAME("A WAV file")};
constexpr const char *kMixes[] = {NAME("Extensible, floating point"), NAME("Plain, floating point"),
                                  NAME("Extensible, integer"), NAME("Plain, integer")};

constexpr int kRates[] = {44100, 48000, 96000, 192000};
constexpr int kChannels[] = {1, 2, 6, 8};

constexpr int kSoundFaultColumns = 3;

constexpr double kLowestTone = 55; // Hz
constexpr int kStepsPerOctave = 10;
constexpr int kHighestStep = 80; // 14 kHz

double frequencyOf(int step)
{
    return std::round(kLowestTone * std::exp2(double(step) / kStepsPerOctave));
}

int stepOf(double frequency)
{
    return static_cast<int>(std::lround(std::log2(frequency / kLowestTone) * kStepsPerOctave));
}

constexpr char kHertz[] = "%1 Hz";

/// Chooses a value in a box, which gets an entry for one that it did not offer.
void choose(QComboBox *box, int value, const char *text)
{
    if (box->findData(value) < 0)
        box->addItem(QString::fromLatin1(text).arg(value), value);
    box->setCurrentIndex(box->findData(value));
}

constexpr char kSoundStyle[] = R"(
QSlider::groove:horizontal { height: 4px; background: #2c3a34; border-radius: 2px; }
QSlider::sub-page:horizontal { background: #1f8f74; border-radius: 2px; }
QSlider::handle:horizontal { width: 14px; height: 14px; margin: -5px 0; border-radius: 7px; background: #7bfadb; }
QSlider::handle:horizontal:focus { background: #ffffff; }
QSlider::handle:horizontal:disabled, QSlider::sub-page:horizontal:disabled { background: #3b4742; }
)";

} // namespace

SoundPanel::SoundPanel(VirtualDesk &desk, QWidget *parent)
    : QWidget(parent), m_endpoint(desk.sound()), m_wave(m_endpoint.setup().sound.wave), m_soundTitle(makeTitle(this)),
      m_deviceTitle(makeTitle(this)), m_faultTitle(makeTitle(this)), m_state(new QLabel(this)),
      m_column(new QVBoxLayout(this)), m_rows(new PanelRows(m_column, this)),
      m_faults(new ActionButtons(kSoundFaultColumns, this))
{
    setStyleSheet(QLatin1String(kSoundStyle));
    m_column->setContentsMargins(0, 8, 0, 0);
    m_column->setSpacing(8);
    buildSound();
    buildDevice();
    buildFaults();
    m_state->setObjectName(QStringLiteral("state"));
    m_state->setWordWrap(true);
    m_state->setTextFormat(Qt::PlainText); // it may name a file of any name
    m_column->addWidget(m_state);
    m_column->addStretch(1);
    retranslate();
    // The endpoint may be changed by whoever uses it, on any thread.
    m_endpoint.setListener([this] { QMetaObject::invokeMethod(this, &SoundPanel::showWhatIs, Qt::QueuedConnection); });
    showWhatIs();
}

SoundPanel::~SoundPanel()
{
    m_endpoint.setListener({});
}

void SoundPanel::buildSound()
{
    m_column->addWidget(m_soundTitle);
    m_sound = m_rows->addBox(NAME("Sound"));
    for (std::size_t i = 0; i < std::size(kSounds); ++i)
        m_sound->addItem(QString());
    m_frequency = m_rows->addSlider(NAME("Frequency"), kHighestStep);
    m_second = m_rows->addSlider(NAME("Second tone"), kHighestStep);
    m_volume = m_rows->addSlider(NAME("Volume"), 100);
    connect(m_sound, &QComboBox::activated, this, [this](int index) {
        if (index == static_cast<int>(Sound::Wave) && !chooseFile())
            return showWhatIs();
        change([this, index](SoundSetup &sound) {
            sound.sound = static_cast<Sound>(index);
            if (sound.sound == Sound::Wave)
                sound.wave = m_wave;
        });
    });
    connect(m_frequency, &QSlider::valueChanged, this,
            [this](int step) { change([step](SoundSetup &sound) { sound.frequency = frequencyOf(step); }); });
    connect(m_second, &QSlider::valueChanged, this,
            [this](int step) { change([step](SoundSetup &sound) { sound.secondFrequency = frequencyOf(step); }); });
    connect(m_volume, &QSlider::valueChanged, this,
            [this](int percent) { change([percent](SoundSetup &sound) { sound.volume = percent; }); });
}

void SoundPanel::buildDevice()
{
    m_column->addSpacing(16);
    m_column->addWidget(m_deviceTitle);
    m_rate = m_rows->addBox(NAME("Rate"));
    for (const int rate : kRates)
        m_rate->addItem(QString::fromLatin1(kHertz).arg(rate), rate);
    m_channels = m_rows->addBox(NAME("Channels"));
    for (const int channels : kChannels)
        m_channels->addItem(QString::number(channels), channels);
    m_mix = m_rows->addBox(NAME("Mix format"));
    for (std::size_t i = 0; i < std::size(kMixes); ++i)
        m_mix->addItem(QString());
    connect(m_rate, &QComboBox::activated, this, [this] {
        m_endpoint.change([this](EndpointSetup &setup) { setup.sampleRate = m_rate->currentData().toInt(); });
    });
    connect(m_channels, &QComboBox::activated, this, [this] {
        m_endpoint.change([this](EndpointSetup &setup) { setup.channels = m_channels->currentData().toInt(); });
    });
    connect(m_mix, &QComboBox::activated, this, [this](int index) {
        m_endpoint.change([index](EndpointSetup &setup) { setup.mix = static_cast<MixKind>(index); });
    });
}

void SoundPanel::buildFaults()
{
    m_column->addSpacing(16);
    m_column->addWidget(m_faultTitle);
    for (const SoundFault &fault : soundFaults()) {
        PanelAction action{{}, fault.text, fault.tip, [this, &fault](bool on) { fault.set(m_endpoint, on); }, {}};
        if (fault.isSet)
            action.isOn = [this, &fault] { return fault.isSet(m_endpoint); };
        m_faults->add(std::move(action));
    }
    m_column->addLayout(m_faults->layout());
}

bool SoundPanel::chooseFile()
{
    const QString fileName = QFileDialog::getOpenFileName(
        this, QObject::tr("A WAV file"), QString(), QStringLiteral("*.wav"), nullptr, QFileDialog::DontUseNativeDialog);
    if (fileName.isEmpty())
        return false;
    auto wave = readWave(fileName, m_fileFault);
    if (!wave)
        return false;
    m_wave = std::make_shared<const WaveData>(std::move(*wave));
    m_waveName = QFileInfo(fileName).fileName();
    return true;
}

/// Changes one thing about what plays; the others stay as they are, also where a control cannot show them exactly.
void SoundPanel::change(const std::function<void(SoundSetup &)> &edit)
{
    m_fileFault.clear();
    SoundSetup sound = m_endpoint.setup().sound;
    edit(sound);
    m_endpoint.play(sound);
}

void SoundPanel::showWhatIs()
{
    const EndpointSetup setup = m_endpoint.setup();
    const Sound sound = setup.sound.sound;
    const QSignalBlocker blockers[] = {QSignalBlocker(m_frequency), QSignalBlocker(m_second), QSignalBlocker(m_volume)};
    m_sound->setCurrentIndex(static_cast<int>(sound));
    m_frequency->setValue(stepOf(setup.sound.frequency));
    m_second->setValue(stepOf(setup.sound.secondFrequency));
    m_volume->setValue(setup.sound.volume);
    m_frequency->setEnabled(sound == Sound::Tone || sound == Sound::TwoTones);
    m_second->setEnabled(sound == Sound::TwoTones);
    m_volume->setEnabled(sound != Sound::Nothing && sound != Sound::Silence);
    m_rows->showValue(m_frequency, QString::fromLatin1(kHertz).arg(setup.sound.frequency));
    m_rows->showValue(m_second, QString::fromLatin1(kHertz).arg(setup.sound.secondFrequency));
    m_rows->showValue(m_volume, QStringLiteral("%1 %").arg(setup.sound.volume));
    choose(m_rate, setup.sampleRate, kHertz);
    choose(m_channels, setup.channels, "%1");
    m_mix->setCurrentIndex(static_cast<int>(setup.mix));
    m_faults->showStates();
    m_state->setText(m_fileFault.isEmpty() && sound == Sound::Wave ? m_waveName : m_fileFault);
}

void SoundPanel::retranslate()
{
    m_soundTitle->setText(QObject::tr("What plays"));
    m_deviceTitle->setText(QObject::tr("Sound output"));
    m_faultTitle->setText(QObject::tr("What goes wrong"));
    m_rows->retranslate();
    m_faults->retranslate();
    for (std::size_t i = 0; i < std::size(kSounds); ++i)
        m_sound->setItemText(static_cast<int>(i), QObject::tr(kSounds[i]));
    for (std::size_t i = 0; i < std::size(kMixes); ++i)
        m_mix->setItemText(static_cast<int>(i), QObject::tr(kMixes[i]));
}

} // namespace virtualdesk
