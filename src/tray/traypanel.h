#pragma once

#include <map>

#include <QPointer>

#include "monitorstatus.h"
#include "page/engine/settingspage.h"
#include "tray/traypanelchoices.h"

class QScrollArea;
class TrayPanelFooter;
class TrayPanelHeader;
class TrayScene;

/// The small panel of the tray icon: what is changed most, for whoever does not want the whole window. A page of
/// settings like any other, with the same snapshot and the same queue, on a window of its own.
class TrayPanel : public SettingsPage
{
    Q_OBJECT
public:
    explicit TrayPanel(CommandQueue &queue);

    void showStatus(const MonitorStatus &status);

    /// Nothing can be chosen while a slow change of mode is under way.
    void setUsable(bool usable);

    /// Takes the height that its content wants, but no more than this one, in pixels; what is too much scrolls.
    void fitInto(int height);

    /// Puts the keyboard on the first control.
    void begin();

    void updateInterfaceData() override;
    void updateControlText() override;

    /// As TrayChoices::choose().
    void choose(std::size_t place, Command command);

Q_SIGNALS:
    /// The user chose a mode, by its odd value, or a half of the mode that is on.
    void sceneChosen(int value);
    void halfChosen(bool defaultView);

    /// Other controls are shown now, which may need another size.
    void contentChanged();

    /// The window that was in front before the panel is to be arranged.
    void zonesWanted();

    /// Escape.
    void closeWanted();

protected:
    void followValue(Command command) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Row
    {
        TrayControl control;
        QWidget *holder;
        int lastOn; ///< of options: the one that was on last, beside the first
    };

    void build();
    QWidget *buildBody();
    Row &rowOf(const TrayControl &control);
    void showChosen();
    void shrinkCaptions();
    void orderKeyboard();
    void showScene();
    void showTwoOptions(Row &row);

    TrayChoices m_choices;
    std::map<Command, Row> m_rows; ///< each made when it is first shown
    TrayPanelHeader *m_header = nullptr;
    QScrollArea *m_scroll = nullptr;
    QWidget *m_body = nullptr;
    TrayScene *m_scene = nullptr;
    QVBoxLayout *m_places = nullptr;
    QPushButton *m_arrange = nullptr;
    TrayPanelFooter *m_footer = nullptr;
    QPointer<QWidget> m_focusBefore; ///< while nothing can be chosen
};
