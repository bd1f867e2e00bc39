#pragma once

#include <atomic>
#include <map>
#include <memory>

#include "PictureAudioCom/soundanalyzer.h"
#include "page/Nightloom/parts/accessorycheck.h"
#include "page/Nightloom/render/audioled.h"
#include "page/Nightloom/work/ledframesource.h"
#include "page/engine/panelpage.h"

class AudioPicture;
class LiveDisplay;

inline constexpr char kMusicTemplateKey[] = "SystemMode/MusicTemplate";

/// Shows what the computer plays as bars, on the accessory and on the page itself. It is the source of the LED worker's
/// spectrum frames while the music mode is on.
class pageLEDMusic : public PanelPage, private LedFrameSource
{
    Q_OBJECT
public:
    /// The check and the display outlive the page.
    pageLEDMusic(AccessoryCheck ensureConnected, LiveDisplay &display, CommandQueue &queue, QWidget *parent = nullptr);
    /// Ends the capture and waits for its end.
    ~pageLEDMusic() override;

    void updateInterfaceData() override;
    void updateControlText() override;

    /// Also while something else needs the accessory; the capture goes on afterwards.
    bool isMusicOn() const;

    OptionGroupRow *switchOptions() const;
    OptionGroupRow *templateOptions() const;
    AudioPicture *picture() const { return m_picture; }
    /// What is said about why nothing moves; empty while something does.
    QString note() const { return m_note->text(); }

public Q_SLOTS:
    /// A capture has ended: the bars go.
    void onSoudanalyzerIsRun();

protected:
    QWidget *buildPart(const char *name) override;
    std::optional<int> ownValue(const char *label) override;
    void onButtonClicked(const char *label, int value) override;

private:
    enum class Hearing { Off, Waiting, Sound, Silence, Failed };

    AudioVisual *audioVisual() override;
    void frameSent() override {}

    void switchMusic(int value);
    void showSwitched();
    bool streams() const;
    void chooseTemplate(int value);
    void startCapture();
    void stopCapture();
    void freeAccessory(bool sendStop);
    void captureFinished();
    void showHeights(const QList<int> &heights);
    void sendBuiltFrame();
    void lookLater();
    void lookForSound();
    void setHearing(Hearing hearing);
    void showWhatIsSet();

    AccessoryCheck m_ensureConnected;
    LiveDisplay &m_display;
    SoundAnalyzer &m_analyzer;
    SoundAnalyzer::Use m_use;
    AudioPicture *m_picture = nullptr;
    QLabel *m_note = nullptr;
    bool m_startAgain = false; ///< as soon as the capture that was stopped has ended
    bool m_retryWaits = false;
    bool m_streams = false; ///< a capture was started, whose frames may be on the matrix
    bool m_heard = false;   ///< since the last look
    int m_quietLooks = 0;   ///< since something was heard
    int m_lookRun = 0;      ///< looks of earlier runs mean nothing any more
    Hearing m_hearing = Hearing::Off;
    std::atomic<AudioTemplate> m_template = AudioTemplate::Bars;
    std::map<const MatrixForm *, std::unique_ptr<AudioBars>> m_visuals; ///< the worker's thread makes and uses them
};
