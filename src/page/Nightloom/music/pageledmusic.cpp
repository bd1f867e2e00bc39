#include "page/Nightloom/music/pageledmusic.h"

#include <algorithm>

#include <QVBoxLayout>

#include "controls/announcer.h"
#include "controls/sharedfonts.h"
#include "ddc_protocol/settingsstore.h"
#include "page/Nightloom/music/audiopicture.h"
#include "page/Nightloom/work/ledworkthread.h"
#include "page/Nightloom/work/livedisplay.h"
#include "page/engine/commonoptions.h"
#include "page/engine/optiongrouprow.h"
#include "platform/desk.h"
#include "usb-hid/accessorylink.h"

namespace {

// What they are for.
constexpr char kMusicHelp[] =
    LABEL("The LED matrix moves with the sound that this computer plays. Close = off, Open = on.");

constexpr platform::milliseconds kLookAfter{1000};
constexpr int kQuietLooks = 5; // then it is listened anew: another device may have become the default one
constexpr platform::milliseconds kRetryAfter{3000};

constexpr char kMusic[] = LABEL("Music Mode");
constexpr char kTemplate[] = LABEL("Template");
constexpr char kPicture[] = "picture";

constexpr Option kTemplates[] = {{LABEL("Bars"), static_cast<int>(AudioTemplate::Bars)},
                                 {LABEL("Falling Peaks"), static_cast<int>(AudioTemplate::Peaks)},
                                 {LABEL("Mirrored"), static_cast<int>(AudioTemplate::Mirrored)},
                                 {LABEL("Hanging"), static_cast<int>(AudioTemplate::Hanging)}};
static_assert(std::size(kTemplates) == kAudioTemplates);

const Section kSections[] = {OptionGroup{kMusic, {}, kCloseOpen}, OptionGroup{kTemplate, {}, kTemplates},
                             CustomPart{kPicture}};
const PanelSpec kPanels[] = {{kMusic, "led_music", "pageLEDMusicPanel", kSections, {}, kMusicHelp}};

// In the order of Hearing.
constexpr const char *kNotes[] = {
    LABEL("The accessory shows what this computer plays as soon as the music mode is open."),
    LABEL("Listening…"),
    "",
    LABEL("Nothing is heard: no program plays, or the sound output is gone."),
    LABEL("The sound output cannot be listened to. It is tried again every few seconds."),
};

} // namespace

pageLEDMusic::pageLEDMusic(AccessoryCheck ensureConnected, LiveDisplay &display, CommandQueue &queue, QWidget *parent)
    : PanelPage(QStringLiteral("pageLEDMusic"), OwnList::None, queue, parent),
      m_ensureConnected(std::move(ensureConnected)), m_display(display), m_analyzer(SoundAnalyzer::instance())
{
    connect(&m_analyzer, &SoundAnalyzer::heightsReady, this, &pageLEDMusic::showHeights);
    connect(&m_analyzer, &SoundAnalyzer::stopped, this, &pageLEDMusic::onSoudanalyzerIsRun);
    connect(&m_analyzer, &SoundAnalyzer::ended, this, &pageLEDMusic::captureFinished);
    connect(ledWorkThread::instance(), &ledWorkThread::frameBuilt, this, &pageLEDMusic::sendBuiltFrame);
    buildPanels(kPanels);
    connect(&m_display, &LiveDisplay::musicBegins, this, &pageLEDMusic::startCapture);
    connect(&m_display, &LiveDisplay::musicEnds, this, &pageLEDMusic::stopCapture);
    connect(&m_display, &LiveDisplay::changed, this, &pageLEDMusic::showSwitched);
}

pageLEDMusic::~pageLEDMusic()
{
    m_analyzer.stop();
    m_analyzer.wait();
    freeAccessory(true);
}

OptionGroupRow *pageLEDMusic::switchOptions() const
{
    return ownGroup(kMusic);
}

OptionGroupRow *pageLEDMusic::templateOptions() const
{
    return ownGroup(kTemplate);
}

/// The one part that the table names: the picture and what is said of it.
QWidget *pageLEDMusic::buildPart(const char *)
{
    auto *part = new QWidget(this);
    m_picture = new AudioPicture(part);
    texts().bind(LABEL("Spectrum"), [this](const QString &text) { m_picture->setAccessibleName(text); });
    m_note = new QLabel(part);
    m_note->setObjectName(QStringLiteral("note"));
    m_note->setFont(noteFont);
    m_note->setWordWrap(true);
    m_note->setMinimumHeight(QFontMetrics(noteFont).height()); // the picture must not jump when it goes
    auto *column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addWidget(m_picture, 1);
    column->addWidget(m_note);
    return part;
}

void pageLEDMusic::updateInterfaceData()
{
    PanelPage::updateInterfaceData();
    showWhatIsSet();
}

void pageLEDMusic::updateControlText()
{
    PanelPage::updateControlText();
    setHearing(m_hearing);
}

void pageLEDMusic::showWhatIsSet()
{
    const int stored = settingsInt(QLatin1String(kMusicTemplateKey), 0, false);
    m_template = static_cast<AudioTemplate>(std::clamp(stored, 0, kAudioTemplates - 1));
    m_picture->setTemplate(m_template);
    showOwnValues();
    setHearing(m_hearing);
}

std::optional<int> pageLEDMusic::ownValue(const char *label)
{
    if (qstrcmp(label, kTemplate) == 0)
        return static_cast<int>(m_template.load());
    return isMusicOn() ? 1 : 0;
}

void pageLEDMusic::onButtonClicked(const char *label, int value)
{
    if (qstrcmp(label, kTemplate) == 0)
        chooseTemplate(value);
    else
        switchMusic(value);
    showWhatIsSet();
}

void pageLEDMusic::chooseTemplate(int value)
{
    showStored(storeSetting(QLatin1String(kMusicTemplateKey), value), Unstored::Undone);
}

void pageLEDMusic::switchMusic(int value)
{
    const bool on = value != 0;
    if (on == isMusicOn() || (on && !m_ensureConnected()))
        return;
    m_display.show(on ? LiveDisplay::Show::Music : LiveDisplay::Show::Nothing);
}

/// The user has switched something on or off, here or on another page.
void pageLEDMusic::showSwitched()
{
    if (!isMusicOn())
        setHearing(Hearing::Off);
    showWhatIsSet();
}

bool pageLEDMusic::isMusicOn() const
{
    return m_display.shown() == LiveDisplay::Show::Music;
}

bool pageLEDMusic::streams() const
{
    return m_display.streams(LiveDisplay::Show::Music);
}

void pageLEDMusic::startCapture()
{
    setHearing(Hearing::Waiting);
    ledWorkThread::instance()->setSource(this);
    m_streams = true;
    m_use.begin();
    m_startAgain = m_analyzer.isRunning(); // a start would be lost now
    if (!m_startAgain)
        m_analyzer.start();
    m_heard = false;
    m_quietLooks = 0;
    ++m_lookRun;
    lookLater();
}

void pageLEDMusic::stopCapture()
{
    m_startAgain = false;
    ++m_lookRun;
    m_use.end();
    m_picture->showHeights({});
    freeAccessory(false);
}

/// Sees to it that no frame of ours goes out any more, and takes the last one off the matrix. Nothing is written when
/// that was done before: something else may have the accessory since.
void pageLEDMusic::freeAccessory(bool sendStop)
{
    ledWorkThread::instance()->setSource(nullptr); // once this returns no frame of ours is under way
    for (const auto &[form, visual] : m_visuals)
        visual->reset();
    if (std::exchange(m_streams, false) && sendStop)
        ledWorkThread::instance()->endDisplay();
}

void pageLEDMusic::onSoudanalyzerIsRun()
{
    if (!m_startAgain) // else it only listens anew, and the matrix keeps its frame as well
        m_picture->showHeights({});
}

void pageLEDMusic::captureFinished()
{
    if (!streams() || m_analyzer.isRunning()) // it may have been started again since
        return;
    if (std::exchange(m_startAgain, false))
        return m_analyzer.start();
    setHearing(Hearing::Failed);
    ++m_lookRun;
    if (m_analyzer.hasBegun()) // and it has ended by itself
        freeAccessory(true);
    if (std::exchange(m_retryWaits, true))
        return;
    platform::desk().clock().callLater(kRetryAfter, this, [this] {
        m_retryWaits = false;
        if (streams() && !m_analyzer.isRunning())
            startCapture();
    });
}

void pageLEDMusic::showHeights(const QList<int> &heights)
{
    if (!streams())
        return;
    m_heard = true;
    setHearing(Hearing::Sound);
    m_picture->showHeights(heights);
    ledWorkThread *worker = ledWorkThread::instance();
    worker->setLevels({heights.begin(), heights.end()});
    worker->begin(ledWorkThread::BuildSpectrum);
}

void pageLEDMusic::sendBuiltFrame()
{
    if (streams() && ledWorkThread::instance()->state() == ledWorkThread::BuildSpectrum)
        ledWorkThread::instance()->begin(ledWorkThread::SendSpectrum);
}

void pageLEDMusic::lookLater()
{
    platform::desk().clock().callLater(kLookAfter, this, [this, run = m_lookRun] {
        if (run == m_lookRun)
            lookForSound();
    });
}

/// Says that nothing is heard when nothing was for a while, and then listens anew every few seconds: the client of a
/// device that is no longer the default one stays alive and hears nothing.
void pageLEDMusic::lookForSound()
{
    lookLater();
    if (std::exchange(m_heard, false)) {
        m_quietLooks = 0;
        return;
    }
    if (!m_analyzer.isCapturing())
        return;
    setHearing(Hearing::Silence);
    if (++m_quietLooks % kQuietLooks != 0)
        return;
    m_startAgain = true;
    m_analyzer.stop();
}

void pageLEDMusic::setHearing(Hearing hearing)
{
    m_hearing = hearing;
    const char *note = kNotes[static_cast<int>(hearing)];
    const QString text = *note ? QObject::tr(note) : QString();
    if (m_note->text() == text)
        return;
    m_note->setText(text);
    if (isVisible())
        Announcer::say(text);
}

AudioVisual *pageLEDMusic::audioVisual()
{
    const MatrixForm *form = accessoryLink.form;
    if (!form)
        return nullptr;
    auto &visual = m_visuals[form];
    if (!visual)
        visual = makeAudioBars(*form);
    visual->setTemplate(m_template);
    return visual.get();
}
