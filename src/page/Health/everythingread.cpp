#include "page/Health/everythingread.h"

#include <algorithm>

#include <QLocale>
#include <QStringList>

#include "ddc_protocol/commandnames.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "page/engine/listed.h"
#include "platform/desk.h"

namespace {

constexpr qsizetype kNamesTold = 6;

/// No blank stands behind a full-width stop.
QString oneText(const QString &first, const QString &second)
{
    return first + (first.endsWith(u'。') ? QString() : QStringLiteral(" ")) + second;
}

} // namespace

EverythingRead::EverythingRead(CommandQueue &queue, QObject *parent) : QObject(parent), m_queue(queue)
{
    connect(&queue, &CommandQueue::answered, this, &EverythingRead::noteAnswer);
    connect(&queue, &CommandQueue::blockAnswered, this, &EverythingRead::noteBlock);
    connect(&queue, &CommandQueue::gaveUp, this, &EverythingRead::noteGivenUp);
}

int EverythingRead::done() const
{
    return m_total - static_cast<int>(m_waiting.size()) - (m_waitsForBlock ? 1 : 0);
}

void EverythingRead::start()
{
    if (m_isRunning)
        return;
    const std::vector<Command> commands = readableCommands();
    m_waiting = {commands.begin(), commands.end()};
    m_missing.clear();
    m_isBlockMissing = false;
    const int mode = deviceState.value(Command::SceneMode);
    m_waitsForBlock = mode > 0 && mode % 2 == 0 && mode <= kHighestSceneMode;
    m_total = static_cast<int>(m_waiting.size()) + (m_waitsForBlock ? 1 : 0);
    m_begun = platform::desk().clock().now();
    m_isRunning = true;
    m_queue.askAll(commands, m_waitsForBlock ? std::optional(mode) : std::nullopt);
    Q_EMIT progressed();
}

void EverythingRead::cancel()
{
    if (!m_isRunning)
        return;
    end(End::Cancelled);
    m_queue.dropQuestions();
}

void EverythingRead::end(End how)
{
    m_duration = m_begun.msecsTo(platform::desk().clock().now());
    m_total = done(); // what was not asked does not count
    m_waiting.clear();
    m_waitsForBlock = false;
    m_isRunning = false;
    m_end = how;
    Q_EMIT progressed();
}

void EverythingRead::noteAnswer(Command command, bool told)
{
    if (!m_isRunning || m_waiting.erase(command) == 0)
        return;
    if (!told)
        m_missing.insert(command);
    endWhenDone();
}

void EverythingRead::noteBlock(bool told)
{
    if (!m_isRunning || !m_waitsForBlock)
        return;
    m_waitsForBlock = false;
    m_isBlockMissing = !told;
    endWhenDone();
}

void EverythingRead::endWhenDone()
{
    if (m_waiting.empty() && !m_waitsForBlock)
        end(End::Complete);
    else
        Q_EMIT progressed();
}

/// Somebody else's questions may be given up as well.
void EverythingRead::noteGivenUp(const QList<Command> &commands, bool block)
{
    const bool isOurs =
        (block && m_waitsForBlock) || std::any_of(commands.begin(), commands.end(),
                                                  [this](Command command) { return m_waiting.count(command) != 0; });
    if (m_isRunning && isOurs)
        end(End::Silent);
}

QString EverythingRead::missingNames() const
{
    QStringList names;
    for (const Command command : m_missing)
        names += commandName(command);
    if (m_isBlockMissing)
        names += QObject::tr("Scene block");
    names.removeDuplicates();
    const bool isCut = names.size() > kNamesTold;
    names = names.mid(0, kNamesTold);
    if (isCut)
        names += QStringLiteral("…");
    return listed(names);
}

QString EverythingRead::summary() const
{
    if (m_isRunning)
        return QObject::tr("Reading: %1 of %2").arg(done()).arg(m_total);
    if (m_begun.isNull())
        return {};
    const QString told = QObject::tr("%1 of %2 values were told, in %3 s.")
                             .arg(m_total - missing())
                             .arg(m_total)
                             .arg(QLocale().toString(static_cast<double>(m_duration) / 1000, 'f', 1));
    if (m_end == End::Silent)
        return oneText(QObject::tr("The monitor does not answer; the reading was given up."), told);
    if (m_end == End::Cancelled)
        return oneText(QObject::tr("Cancelled."), told);
    if (missing() == 0)
        return told;
    return oneText(told, QObject::tr("Not told: %1").arg(missingNames()));
}
