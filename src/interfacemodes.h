#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class Navigator;

/// The codes of InterfaceModes::set; 2 has no meaning.
enum InterfaceMode { kLocked = 0, kUnlocked = 1, kByModel = 3, kBusy = 4, kBusyEnded = 5 };

/// What can be chosen in the window around long work, and why an entry cannot.
class InterfaceModes : public QObject
{
    Q_OBJECT
public:
    InterfaceModes(Navigator &navigator, QWidget *window);

    /// 0 nothing can be chosen, 1 everything can, 3 as 1 and the model's say on the current bar, 4 the busy mode of the
    /// accessory, 5 its end. The busy mode outlasts 0, 1 and 3.
    void set(int code);

    /// The accessory's long work begins or ends, which may happen while nothing can be chosen.
    void followAccessoryWork(bool begins);

    bool isLocked() const { return m_locked; }

    /// Says at each entry, in the language of now, why it cannot be chosen.
    void explain();

Q_SIGNALS:
    /// Whether anything can be chosen at all.
    void usableChanged(bool usable);

    void accessoryBusyChanged(bool busy);

private:
    void enableEverything();
    void decideEntriesByModel();
    void setAccessoryBusy(bool busy);
    void enableAccessoryEntries();
    QString lockOf(int family, int entry) const;

    Navigator &m_navigator;
    QWidget &m_window;
    bool m_locked = false; ///< nothing can be chosen
    bool m_accessoryBusy = false;
    QPointer<QWidget> m_focusBefore; ///< while nothing can be chosen
};
