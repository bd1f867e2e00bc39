#pragma once

#include <atomic>
#include <vector>

#include <QTimer>
#include <QWidget>

class QGridLayout;
class QLabel;
class QPushButton;

namespace virtualdesk {

class MatrixView;
class VirtualDesk;
struct AccessoryState;

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

    const MatrixView *matrix() const { return m_matrix; }
    const std::vector<QPushButton *> &buttons() const { return m_buttons; }

    /// The values that are shown, in the order of their rows.
    QStringList values() const;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QLayout *buildButtons();
    QLayout *buildValues();
    void accessoryChanged();
    void refresh();
    void refreshValues(const AccessoryState &state);
    void refreshState();
    void showMatrix(const AccessoryState &state);
    void showNextFrame();

    VirtualDesk &m_desk;
    MatrixView *m_matrix;
    QLabel *m_state;
    QLabel *m_lastFault;
    std::vector<QPushButton *> m_buttons;
    std::vector<std::pair<QLabel *, QLabel *>> m_values; ///< name, value
    QTimer m_refreshTimer;
    QTimer m_playTimer;
    int m_playFrame = 0;
    std::atomic<bool> m_refreshAsked = false;
    int m_listener = 0;
};

} // namespace virtualdesk
