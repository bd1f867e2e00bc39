#pragma once

#include <QDateTime>
#include <QHash>
#include <QObject>

/// Switches the monitor to the scene of the program in front, and back to a base scene when another one comes. Only
/// its own switches are remembered: a scene chosen elsewhere is not seen. Interface thread only.
class SceneFollower : public QObject
{
    Q_OBJECT
public:
    /// The base scene follows from what the monitor has now.
    explicit SceneFollower(QObject *parent = nullptr);

    /// File names with the displayed names of their scenes, from now on.
    void setFollowTable(const QHash<QString, QString> &sceneOfProgram) { m_sceneOfProgram = sceneOfProgram; }

    /// A program came to the front; an empty path is a program that is not listed. Blocks for 150 ms when the scene may
    /// have to change, and for the monitor's requests.
    void programInFront(const QString &path);

Q_SIGNALS:
    /// A scene is about to be sent; whoever holds back commands sends them now.
    void begins();

    /// A scene was sent, and whether the monitor took it.
    void sceneSent(int value, bool ok);

private:
    void applyScene(const QString &displayedName);
    void restoreBase();
    void send(int value);

    QHash<QString, QString> m_sceneOfProgram;
    int m_baseMode;
    int m_appliedMode = 0;
    QDateTime m_lastMatch; ///< invalid until a program of the table came
};
