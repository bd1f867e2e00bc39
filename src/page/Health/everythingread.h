#pragma once

#include <set>

#include <QDateTime>
#include <QList>
#include <QObject>

#include "ddc_protocol/command.h"

class CommandQueue;

/// Asks the monitor once for everything that it can tell, in the background. Interface thread.
class EverythingRead : public QObject
{
    Q_OBJECT
public:
    explicit EverythingRead(CommandQueue &queue, QObject *parent = nullptr);

    bool isRunning() const { return m_isRunning; }
    int total() const { return m_total; }
    int done() const;

    void start();

    /// Asks for nothing more.
    void cancel();

    /// How it went, or how far it is, translated; empty before the first time.
    QString summary() const;

Q_SIGNALS:
    /// Something was told or not, or it has begun or ended.
    void progressed();

private:
    enum class End { Complete, Cancelled, Silent };

    void end(End end);
    void noteAnswer(Command command, bool told);
    void noteBlock(bool told);
    void noteGivenUp(const QList<Command> &commands, bool block);
    void endWhenDone();
    int missing() const { return static_cast<int>(m_missing.size()) + (m_isBlockMissing ? 1 : 0); }
    QString missingNames() const;

    CommandQueue &m_queue;
    std::set<Command> m_waiting;
    std::set<Command> m_missing; ///< not told
    bool m_waitsForBlock = false;
    bool m_isBlockMissing = false;
    bool m_isRunning = false;
    End m_end = End::Complete;
    int m_total = 0;
    QDateTime m_begun;
    qint64 m_duration = 0; ///< milliseconds
};
