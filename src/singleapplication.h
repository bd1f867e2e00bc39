#pragma once

#include <QApplication>

#include "platform/process.h"

class QLocalServer;

/// The application object. The first instance becomes a local server under the product's name; a later one tells it
/// its last argument and remembers that it is not alone. Anybody may connect: what a connection sends is not used, and
/// little of it is kept for a second.
class SingleApplication : public QApplication
{
    Q_OBJECT
public:
    SingleApplication(int &argc, char **argv);

    /// Whether another instance answered while this one was constructed.
    bool isRunning() const { return m_isRunning; }

    /// Whether the program's name in the user's session is another instance's. One with more rights than this one may
    /// not even let it be opened.
    static bool isNameTaken(const platform::NamedMutex &name);

    /// Makes place for a copy that is started instead of this instance: what begins now, finds no server.
    void stopServing();

    /// Serves as before, when that copy could not be started. Nothing in an instance that never was the server.
    void serveAgain();

Q_SIGNALS:
    /// Another instance was started and has announced itself.
    void anotherInstanceStarted();

private Q_SLOTS:
    void newLocalConnection();

private:
    void announceTo(class QLocalSocket &server);
    void becomeServer();

    QLocalServer *m_localServer = nullptr; ///< null until this instance becomes the server
    bool m_isRunning = false;
};
