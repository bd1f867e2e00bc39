#pragma once

#include <QApplication>

class QLocalServer;

/// The application object. The first instance becomes a local server under the product's name; a later one tells it
/// its last argument and remembers that it is not alone.
class SingleApplication : public QApplication
{
    Q_OBJECT
public:
    SingleApplication(int &argc, char **argv);

    /// Whether another instance answered while this one was constructed.
    bool isRunning() const { return m_isRunning; }

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
