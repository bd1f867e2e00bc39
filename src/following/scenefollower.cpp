#include "following/scenefollower.h"

#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/valuechanges.h"
#include "following/followlist.h"
#include "following/followscenes.h"
#include "platform/desk.h"

namespace {

constexpr int kZelmarMode = 23;
constexpr int kStandardMode = 1;
constexpr int kSettles = 300; // ms
constexpr int kWait = 150;    // ms: the new program draws its window first

/// Waits on purpose, a millisecond at a time, without handling events: nothing may come between the program's coming
/// and its scene. Ends also when the system's clock is set back meanwhile.
void waitForProgram()
{
    platform::Clock &clock = platform::desk().clock();
    const QDateTime start = clock.now();
    for (int i = 0; i < kWait && start.msecsTo(clock.now()) < kWait; ++i)
        clock.sleep(platform::milliseconds(1));
}

} // namespace

SceneFollower::SceneFollower(QObject *parent)
    : QObject(parent), m_baseMode(deviceState.has(Capability::ExtraScene) ? kZelmarMode : kStandardMode)
{
}

void SceneFollower::programInFront(const QString &path)
{
    const auto scene = m_sceneOfProgram.constFind(programName(path)); // letter case counts, the folder does not
    if (scene != m_sceneOfProgram.cend()) {
        applyScene(*scene);
        m_lastMatch = platform::desk().clock().now();
    } else {
        restoreBase();
    }
}

void SceneFollower::applyScene(const QString &displayedName)
{
    waitForProgram();
    const auto value = followSceneValue(displayedName);
    if (value && *value != m_appliedMode)
        send(*value);
}

/// A short visit to another program leaves the scene in place, also when that program then stays: the next change of
/// the foreground decides.
void SceneFollower::restoreBase()
{
    const qint64 since = m_lastMatch.isValid() ? m_lastMatch.msecsTo(platform::desk().clock().now()) : kSettles;
    const bool settled = since >= kSettles || since < 0; // the system's clock may be set back
    if (m_appliedMode == m_baseMode || !settled)
        return;
    waitForProgram();
    send(m_baseMode);
}

void SceneFollower::send(int value)
{
    Q_EMIT begins();
    m_appliedMode = value; // before: a send that fails may let other events in
    const bool ok = sendValue(Command::SceneMode, value);
    Q_EMIT sceneSent(value, ok);
}
