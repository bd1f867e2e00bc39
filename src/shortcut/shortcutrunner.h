#pragma once

#include <QObject>

#include "shortcut/shortcutsteps.h"

/// Does to the monitor what a hot key asks for, at most once in 200 ms. Interface thread only: it blocks as long as the
/// monitor's requests take.
class ShortcutRunner : public QObject
{
    Q_OBJECT

public:
    /// The first 200 ms pass without hot keys as well.
    explicit ShortcutRunner(QObject *parent = nullptr);

    /// Runs a function by its number, direction 0 for its plus key and 1 for its minus key. A number without a function
    /// is logged. Does nothing while the keys rest.
    void shortcutKeyCommand(int function, int direction);

Q_SIGNALS:
    /// A function is about to ask the monitor; whoever holds back commands sends them now.
    void begins();

    /// A function has sent a value, and whether the monitor took it.
    void sent(int function, Command command, int value, bool ok);

private:
    void rest();

    bool m_ready = false;
};
