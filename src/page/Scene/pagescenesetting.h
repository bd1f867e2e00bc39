#pragma once

#include "page/engine/settingspage.h"

class CustomHalf;
class FactoryHalf;
class QPushButton;
class QStackedWidget;
class SearchDeviceDlg;
class WorkThread;

/// Edits the picture of the scene mode that is on: its factory half, and the half with the user's own parameters.
class pageSceneSetting : public SettingsPage
{
    Q_OBJECT
public:
    pageSceneSetting(SearchDeviceDlg &session, CommandQueue &queue, QWidget *parent = nullptr);
    ~pageSceneSetting() override;

    /// Switches the monitor to a mode, by its odd value. A mode that is on already, in either half, is left alone.
    void chooseScene(int value);

    /// Shows a half of the mode that is on, and switches the monitor to it.
    void switchHalf(bool defaultView);

    bool isDefaultView() const { return m_defaultView; }

    void updateInterfaceData() override;
    void updateControlText() override;

    /// Asks for the block of the custom half, when that is in sight.
    void reconcile() override;

Q_SIGNALS:
    /// A slow change of mode begins, and has ended: the window keeps the user's hands off in between.
    void modeChangeBegins();
    void modeChangeEnded();

    /// Which half is shown now.
    void viewShown(bool defaultView);

protected:
    void followValue(Command command) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

    /// In the factory half the snapshot holds that half's values, which the custom area never shows.
    bool showsValues() const override { return !m_defaultView; }

    /// A block that cannot be read leaves what it showed before, marked; before the first one there are dashes.
    bool keepsContents() const override { return m_filled; }

private Q_SLOTS:
    void onHalfClicked();
    void onWorkFinished();

private:
    void buildHead(QVBoxLayout *column);
    void showModeResult(int wished, bool ok);
    void buildHalves(QVBoxLayout *column);
    void refreshPicture();
    void addRules();

    void showHalf(bool defaultView);
    void fillCustomArea();
    void showTitle();

    void fillUserColours(int temperature);

    WorkThread *m_worker;
    PageHead *m_head = nullptr;
    QPushButton *m_defaultButton = nullptr;
    QPushButton *m_customButton = nullptr;
    QStackedWidget *m_areas;
    FactoryHalf *m_factoryHalf = nullptr;
    CustomHalf *m_customHalf = nullptr;
    bool m_defaultView = true;
    bool m_filled = false;    ///< a block of this session was shown
    int m_userColourSlot = 0; ///< which user preset the R, G, B sliders edit; 0 none
};
