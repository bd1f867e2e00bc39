#include "virtualdesk/soundpanel.h"

#include <cmath>

#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include "virtualdesk/marked.h"
#include "virtualdesk/selector.h"
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

/// One thing that can go wrong. Without isSet it happens once; else the button is down while it lasts.
struct FaultSpec
{
    const char *text;
    const char *tip;
    void (*set)(SimulatedEndpoint &endpoint, bool on);
    bool (*isSet)(const SimulatedEndpoint &endpoint);
};

constexpr FaultSpec kFaults[] = {
    {NAME("Pull out"), NAME("There is no sound output until the button is released"),
     [](SimulatedEndpoint &endpoint, bool on) { endpoint.setPresent(!on); },
     [](const SimulatedEndpoint &endpoint) { return !endpoint.setup().present; }},
    {NAME("Stop service"), NAME("The system's audio service is down until the button is released"),
     [](SimulatedEndpoint &endpoint, bool on) { endpoint.setServiceRunning(!on); },
     [](const SimulatedEndpoint &endpoint) { return !endpoint.serviceRunning(); }},
    {NAME("Huge packets"), NAME("Every packet holds 7001 frames until the button is released"),
     [](SimulatedEndpoint &endpoint, bool on) {
         endpoint.change([on](EndpointSetup &setup) { setup.packetFrames = on ? 7001 : 0; });
     },
     [](const SimulatedEndpoint &endpoint) { return endpoint.setup().packetFrames != 0; }},
    {NAME("New device"), NAME("Another device becomes the default one"),
     [](SimulatedEndpoint &endpoint, bool) { endpoint.moveDefault(); }, nullptr},
    {NAME("Buffer error"), NAME("The next packet cannot be fetched"),
     [](SimulatedEndpoint &endpoint, bool) {
         endpoint.fail({AudioCall::GetBuffer, platform::kAudioBufferError, 1});
     },
     nullptr},
    {NAME("Out of order"), NAME("The next packet is refused, as if the one before were still held"),
     [](SimulatedEndpoint &endpoint, bool) {
         endpoint.fail({AudioCall::GetBuffer, platform::kAudioOutOfOrder, 1});
     },
     nullptr},
    {NAME("Refuse format"), NAME("The next client is not initialised"),
     [](SimulatedEndpoint &endpoint, bool) {
         endpoint.fail({AudioCall::Initialize, platform::kAudioUnsupportedFormat, 1});
         endpoint.change([](EndpointSetup &) {}); // so that there is a next one
     },
     nullptr},
};
constexpr int kFaultColumns = 3;

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

QLabel *makeTitle(QWidget *parent)
{
    auto *title = new QLabel(parent);
    title->setObjectName(QStringLiteral("title"));
    return title;
}

constexpr char kStyle[] = R"(
QSlider::groove:horizontal { height: 4px; background: #2c3a34; border-radius: 2px; }
QSlider::sub-page:horizontal { background: #1f8f74; border-radius: 2px; }
QSlider::handle:horizontal { width: 14px; height: 14px; margin: -5px 0; border-radius: 7px; background: #7bfadb; }
QSlider::handle:horizontal:focus { background: #ffffff; }
QSlider::handle:horizontal:disabled, QSlider::sub-page:horizontal:disabled { background: #3b4742; }
)";

} // namespace

SoundPanel::SoundPanel(VirtualDesk &desk, QWidget *parent)
    : QWidget(parent), m_endpoint(desk.sound()), m_wave(m_endpoint.setup().sound.wave), m_soundTitle(makeTitle(this)),
      m_deviceTitle(makeTitle(this)), m_faultTitle(makeTitle(this)), m_state(new QLabel(this))
{
    setStyleSheet(QLatin1String(kStyle));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 8, 0, 0);
    column->setSpacing(8);
    buildSound();
    buildDevice();
    buildFaults();
    m_state->setObjectName(QStringLiteral("state"));
    m_state->setWordWrap(true);
    m_state->setTextFormat(Qt::PlainText); // it may name a file of any name
    column->addWidget(m_state);
    column->addStretch(1);
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
    static_cast<QVBoxLayout *>(layout())->addWidget(m_soundTitle);
    m_sound = addBox(m_soundRow);
    for (std::size_t i = 0; i < std::size(kSounds); ++i)
        m_sound->addItem(QString());
    m_frequency = addSlider(kHighestStep, m_frequencyRow);
    m_second = addSlider(kHighestStep, m_secondRow);
    m_volume = addSlider(100, m_volumeRow);
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
    static_cast<QVBoxLayout *>(layout())->addSpacing(12);
    static_cast<QVBoxLayout *>(layout())->addWidget(m_deviceTitle);
    m_rate = addBox(m_rateRow);
    for (const int rate : kRates)
        m_rate->addItem(QString::fromLatin1(kHertz).arg(rate), rate);
    m_channels = addBox(m_channelRow);
    for (const int channels : kChannels)
        m_channels->addItem(QString::number(channels), channels);
    m_mix = addBox(m_mixRow);
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
    auto *column = static_cast<QVBoxLayout *>(layout());
    column->addSpacing(12);
    column->addWidget(m_faultTitle);
    auto *grid = new QGridLayout;
    grid->setSpacing(8);
    for (const FaultSpec &fault : kFaults) {
        auto *button = new QPushButton(this);
        button->setCheckable(fault.isSet != nullptr);
        connect(button, &QPushButton::clicked, this, [this, &fault](bool on) { fault.set(m_endpoint, on); });
        const int place = static_cast<int>(m_faultButtons.size());
        grid->addWidget(button, place / kFaultColumns, place % kFaultColumns);
        m_faultButtons.push_back(button);
    }
    column->addLayout(grid);
}

QSlider *SoundPanel::addSlider(int maximum, Row &row)
{
    auto *slider = new QSlider(Qt::Horizontal, this);
    slider->setRange(0, maximum);
    row = {new QLabel(this), new QLabel(this)};
    row.name->setFixedWidth(110);
    row.value->setObjectName(QStringLiteral("value"));
    row.value->setFixedWidth(72);
    row.value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto *line = new QHBoxLayout;
    line->addWidget(row.name);
    line->addWidget(slider, 1);
    line->addWidget(row.value);
    static_cast<QVBoxLayout *>(layout())->addLayout(line);
    return slider;
}

QComboBox *SoundPanel::addBox(Row &row)
{
    auto *box = new Selector(this);
    row = {new QLabel(this), nullptr};
    row.name->setFixedWidth(110);
    auto *line = new QHBoxLayout;
    line->addWidget(row.name);
    line->addWidget(box, 1);
    static_cast<QVBoxLayout *>(layout())->addLayout(line);
    return box;
}

bool SoundPanel::chooseFile()
{
    const QString fileName = QFileDialog::getOpenFileName(
        this, QObject::tr("A WAV file"), QString(), QStringLiteral("*.wav"), nullptr, QFileDialog::DontUseNativeDialog);
    if (fileName.isEmpty())
        return false;
    QString error;
    auto wave = readWave(fileName, error);
    if (!wave) {
        m_state->setText(error);
        return false;
    }
    m_wave = std::make_shared<const WaveData>(std::move(*wave));
    m_waveName = QFileInfo(fileName).fileName();
    return true;
}

/// Changes one thing about what plays; the others stay as they are, also where a control cannot show them exactly.
void SoundPanel::change(const std::function<void(SoundSetup &)> &edit)
{
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
    m_frequencyRow.value->setText(QStringLiteral("%1 Hz").arg(setup.sound.frequency));
    m_secondRow.value->setText(QStringLiteral("%1 Hz").arg(setup.sound.secondFrequency));
    m_volumeRow.value->setText(QStringLiteral("%1 %").arg(setup.sound.volume));
    choose(m_rate, setup.sampleRate, kHertz);
    choose(m_channels, setup.channels, "%1");
    m_mix->setCurrentIndex(static_cast<int>(setup.mix));
    for (std::size_t i = 0; i < m_faultButtons.size(); ++i) {
        if (kFaults[i].isSet)
            m_faultButtons[i]->setChecked(kFaults[i].isSet(m_endpoint));
    }
    m_state->setText(sound == Sound::Wave ? m_waveName : QString());
}

void SoundPanel::retranslate()
{
    m_soundTitle->setText(QObject::tr("What plays"));
    m_deviceTitle->setText(QObject::tr("Sound output"));
    m_faultTitle->setText(QObject::tr("What goes wrong"));
    const std::pair<QWidget *, Row *> rows[] = {
        {m_sound, &m_soundRow}, {m_frequency, &m_frequencyRow}, {m_second, &m_secondRow}, {m_volume, &m_volumeRow},
        {m_rate, &m_rateRow},   {m_channels, &m_channelRow},    {m_mix, &m_mixRow}};
    const QString names[] = {QObject::tr("Sound"),     QObject::tr("Frequency"), QObject::tr("Second tone"),
                             QObject::tr("Volume"),    QObject::tr("Rate"),      QObject::tr("Channels"),
                             QObject::tr("Mix format")};
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        rows[i].second->name->setText(names[i]);
        rows[i].first->setAccessibleName(names[i]);
    }
    for (std::size_t i = 0; i < std::size(kSounds); ++i)
        m_sound->setItemText(static_cast<int>(i), QObject::tr(kSounds[i]));
    for (std::size_t i = 0; i < std::size(kMixes); ++i)
        m_mix->setItemText(static_cast<int>(i), QObject::tr(kMixes[i]));
    for (std::size_t i = 0; i < m_faultButtons.size(); ++i) {
        m_faultButtons[i]->setText(QObject::tr(kFaults[i].text));
        m_faultButtons[i]->setToolTip(QObject::tr(kFaults[i].tip));
        m_faultButtons[i]->setAccessibleDescription(QObject::tr(kFaults[i].tip));
    }
}

} // namespace virtualdesk
