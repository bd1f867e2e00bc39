#pragma once

#include <functional>
#include <map>
#include <mutex>
#include <optional>

#include <QDate>
#include <QString>

// How often each monitor was written to: its memory wears, and whoever writes by himself must know how much there was.

/// Writes of one kind.
struct WriteCount
{
    qint64 today = 0;
    qint64 inAll = 0;
};

/// Commands that were taken, by monitor, code and day; days that lie more than thirty back only count in all. They are
/// kept in "writes.ini", to which only what is new is added, so that a copy that starts while another one ends loses
/// nothing. Safe from any thread.
class WriteCounts
{
public:
    /// The place of a code for writes that no user asked for; they count under their own code as well.
    static constexpr int kAutomatic = 0x100;

    /// A command was taken, whoever sent it: one of a vendor code, however many requests it took.
    void note(const QString &monitor, int code);

    /// Of one code, or of all.
    WriteCount countOf(const QString &monitor, int code) const;
    WriteCount countOf(const QString &monitor) const;

    /// Adds what is new to the file. What cannot be written is kept for the next time.
    void store();

    /// Who is told, on the thread of the write, that there is something to store where there was nothing; empty for
    /// nobody.
    void setObserver(std::function<void()> observer);

    /// Forgets what was not stored, and what the file held.
    void clear();

private:
    using Days = std::map<QDate, qint64>; ///< an invalid date for all days that lie far back
    using Key = std::pair<QString, int>;  ///< monitor and code
    using Table = std::map<Key, Days>;

    static void add(Table &counts, const Table &more);
    static Table read();
    static bool write(const Table &counts);
    template <typename IsMeant> WriteCount sum(const IsMeant &isMeant) const;

    mutable std::mutex m_file;             // taken first; the transport never waits for the disk
    mutable std::optional<Table> m_stored; ///< what the file held when it was read or written last; under m_file
    mutable std::mutex m_mutex;            // guards what follows
    Table m_new;                           ///< and not stored yet
    std::function<void()> m_observer;
};

/// The one count of the process; the transport notes, the window stores.
extern WriteCounts writeCounts;

inline constexpr char kWritesFile[] = "writes.ini";
