#pragma once

#include <optional>
#include <vector>

#include <QByteArray>
#include <QStringList>

#include "virtualdesk/request.h"

namespace virtualdesk {

/// The answers of a recorded monitor, handed out in their order as long as the same is asked. A program that asks
/// something else departs from the recording, which is kept and warned of; the replay goes on where the recording asks
/// the same a little later. Not thread-safe: the monitor guards it.
class Replay
{
public:
    /// One recorded request with what came of it.
    struct Line
    {
        int number = 0; ///< in the file, from 1
        Request request;
        bool answered = false;
    };

    explicit Replay(std::vector<Line> lines) : m_lines(std::move(lines)) {}

    /// What the recorded monitor answered; an error when the recording does not ask this here or soon.
    Reply answer(Request &request);

    /// Where the program departed from the recording, in words; the first ones only.
    QStringList departures() const { return m_departures; }

    /// How many recorded requests nobody has asked (yet).
    int left() const { return static_cast<int>(m_lines.size() - m_next); }

private:
    void depart(const Request &request);

    std::vector<Line> m_lines;
    std::size_t m_next = 0;
    QStringList m_departures;
};

/// Reads a recording: the requests to one of its monitors, by their order of appearance from 0. Nothing, with error
/// set, for what is no recording or does not have so many monitors. A last line that is cut off is left out, with a
/// warning.
std::optional<Replay> parseRecording(const QByteArray &bytes, int monitor, QString &error);

} // namespace virtualdesk
