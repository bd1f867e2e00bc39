#pragma once

#include <atomic>
#include <utility>
#include <vector>

#include <QTimer>
#include <QWidget>

class QLabel;

namespace virtualdesk {

class AccessoryScreen;
class ActionButtons;
class SimulatedAccessory;
class VirtualDesk;

/// Shows the simulated accessory: its matrix with the live frames or the uploaded animation, what it was told, and
/// buttons for what can go wrong with it. Follows the accessory's changes; nothing is polled.
class AccessoryPanel : public QWidget
{
    Q_OBJECT
public:
    /// The desk outlives the panel.
    explicit AccessoryPanel(VirtualDesk &desk, QWidget *parent = nullptr);
    ~AccessoryPanel() override;

    /// Shows every text in the language of now.
    void retranslate();

    const AccessoryScreen *matrix() const { return m_matrix; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void buildButtons();
    QLayout *buildValues();
    void accessoryChanged();
    void refresh();
    void refreshValues();
    void refreshState();

    SimulatedAccessory &m_accessory;
    AccessoryScreen *m_matrix;
    ActionButtons *m_buttons;
    QLabel *m_state;
    QLabel *m_lastFault;
    std::vector<std::pair<QLabel *, QLabel *>> m_values; ///< name, value
    QTimer m_refreshTimer;
    std::atomic<bool> m_refreshAsked = false;
    int m_listener = 0;
};

} // namespace virtualdesk
