#include "page/Nightloom/music/pageledmusic.h"

#include <algorithm>

#include <QVBoxLayout>

#include "PictureAudioCom/soundanalyzer.h"
#include "controls/announcer.h"
#include "controls/metrics.h"
#include "controls/sharedfonts.h"
#include "ddc_protocol/settingsstore.h"
#include "page/Nightloom/music/audiopicture.h"
#include "page/Nightloom/work/livedisplay.h"
#include "page/engine/commandrows.h"
#include "page/engine/commonoptions.h"
#include "page/engine/note.h"
#include "page/engine/optiongrouprow.h"

namespace {

// What they are for.
constexpr char kMusicHelp[] =
    LABEL("The LED matrix moves with the sound that this computer plays. Close = off, Open = on.");

constexpr char kMusic[] = LABEL("Music Mode");
constexpr char kTemplate[] = LABEL("Template");
constexpr char kPicture[] = "picture";

constexpr Option kTemplates[] = {{LABEL("Bars"), static_cast<int>(AudioTemplate::Bars)},
                                 {LABEL("Falling Peaks"), static_cast<int>(AudioTemplate::Peaks)},
                                 {LABEL("Mirrored"), static_cast<int>(AudioTemplate::Mirrored)},
                                 {LABEL("Hanging"), static_cast<int>(AudioTemplate::Hanging)}};
static_assert(std::size(kTemplates) == kAudioTemplates);

const Section kSections[] = {ownSwitch(kMusic, kCloseOpen), OptionGroup{kTemplate, {}, kTemplates},
                             CustomPart{kPicture}};
const PanelSpec kPanels[] = {{kMusic, "led_music", "pageLEDMusicPanel", kSections, {}, kMusicHelp}};

// In the order of MusicStream::Hearing.
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
      m_ensureConnected(std::move(ensureConnected)), m_display(display), m_stream(display)
{
    connect(&SoundAnalyzer::instance(), &SoundAnalyzer::stopped, this, &pageLEDMusic::onSoudanalyzerIsRun);
    buildPanels(kPanels);
    connect(&m_stream, &MusicStream::heightsCame, m_picture, &AudioPicture::showHeights);
    connect(&m_stream, &MusicStream::hearingChanged, this, &pageLEDMusic::showHearing);
    connect(&m_display, &LiveDisplay::changed, this, &pageLEDMusic::showWhatIsSet);
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
    m_note = makeNote(part);
    m_note->setWordWrap(true);
    m_note->setMinimumHeight(QFontMetrics(noteFont).height()); // the picture must not jump when it goes
    auto *column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kGap);
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
    showHearing();
}

void pageLEDMusic::showWhatIsSet()
{
    const int stored = settingsInt(QLatin1String(kMusicTemplateKey), 0, false);
    m_stream.setTemplate(static_cast<AudioTemplate>(std::clamp(stored, 0, kAudioTemplates - 1)));
    m_picture->setTemplate(m_stream.audioTemplate());
    showOwnValues();
    showHearing();
}

std::optional<int> pageLEDMusic::ownValue(const char *label)
{
    if (qstrcmp(label, kTemplate) == 0)
        return static_cast<int>(m_stream.audioTemplate());
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

bool pageLEDMusic::isMusicOn() const
{
    return m_display.shown() == LiveDisplay::Show::Music;
}

void pageLEDMusic::onSoudanalyzerIsRun()
{
    if (!m_stream.beginsAnew()) // else it only listens anew, and the matrix keeps its frame as well
        m_picture->showHeights({});
}

void pageLEDMusic::showHearing()
{
    const char *note = kNotes[static_cast<int>(m_stream.hearing())];
    const QString text = *note ? QObject::tr(note) : QString();
    if (m_note->text() == text)
        return;
    m_note->setText(text);
    if (isVisible())
        Announcer::say(text);
}
