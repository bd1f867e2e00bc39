#pragma once

#include <optional>

#include <QLabel>

#include "page/Nightloom/music/musicstream.h"
#include "page/Nightloom/parts/accessorycheck.h"
#include "page/engine/panelpage.h"

class AudioPicture;
class LiveDisplay;

inline constexpr char kMusicTemplateKey[] = "SystemMode/MusicTemplate";

/// Shows what the computer plays as bars, on the accessory and on the page itself.
class pageLEDMusic : public PanelPage
{
    Q_OBJECT
public:
    /// The check and the display outlive the page.
    pageLEDMusic(AccessoryCheck ensureConnected, LiveDisplay &display, CommandQueue &queue, QWidget *parent = nullptr);

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
    void switchMusic(int value);
    void chooseTemplate(int value);
    void showHearing();
    void showWhatIsSet();

    AccessoryCheck m_ensureConnected;
    LiveDisplay &m_display;
    AudioPicture *m_picture = nullptr;
    QLabel *m_note = nullptr;
    MusicStream m_stream;
};
