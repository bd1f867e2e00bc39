#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

#include "virtualdesk/desksetup.h"

namespace virtualdesk {

/// Reads a desk from JSON. What the script leaves out is as in the usual desk. On a fault the result is empty and
/// error says what is wrong and where; a key that nothing reads is one. Codes are numbers or text such as "0x10"; all
/// keys:
///
///     {
///       "latency": "realistic" | "none" | {"read_ms": 40, "write_ms": 50},
///       "topology": "extend" | "clone" | "single",
///       "administrator": true, "runas_result": 42, "startup_writable": true,
///       "user": {"idle_ms": 0, "notification_state": 5},
///       "displays": [{"name": "\\\\.\\DISPLAY1", "bounds": [0, 0, 1920, 1080]}],
///       "monitors": [{"model": "Q27-OLED" | "Q32-MPCS" | "Q34-MINI", "display": 0, "plugged": true,
///                     "edid": "00ff..." | {"random": 64}, "values": {"0x10": 30}, "latency": ..., "faults": [event],
///                     "replay": "recording.jsonl", "replay_monitor": 0}],
///       "events": [{"at_ms": 1000, "monitor": 0, "event": ...}],
///       "programs": [{"path": "C:\\Notes\\notes.exe", "protected": false,
///                     "window": {"rect": [80, 60, 800, 560], "frame": 8, "least": [0, 0], "sizable": true,
///                                "shape": "normal" | "maximised" | "minimised" | "full_screen" | "hidden",
///                                "hung": false, "more_rights": false, "class": "Window"}}],
///       "audio": {"present": true, "mix": "extensible_float" | "float" | "extensible_integer" | "integer",
///                 "rate": 48000, "channels": 2, "converts_rates": false, "packet_frames": 480,
///                 "plays": "nothing" | "silence" | "tone" | "two_tones" | "sweep" | "noise" | "wave",
///                 "frequency": 440, "second_frequency": 2500, "volume": 50, "file": "x.wav",
///                 "faults": [{"call": "get_buffer", "result": "0x88890018", "times": 1}]},
///       "screen": {"picture": "film.png", "faults": [{"event": "fail_copies", "times": 1}]},
///       "accessory": {"plugged": true, "form": 0, "faults": [...]}
///     }
///
/// An audio fault may name any call of AudioCall, written so, and last "always".
/// An event is {"event": word} with a word of monitorFaults(), and with "code" for those of one code, "read_ms" and
/// "write_ms" for latency, "ms" for delay. "times" is
/// a number of requests or "always"; unless given it is the row's, mostly 1. at_ms counts from the main window's
/// opening. A fault of the accessory is {"event": "refuse_writes" or "fail_open", "times": ...}, or {"event": "unplug",
/// "at_write": n}. A monitor with a "replay" answers what one was recorded to answer, that of the recording's monitors
/// by their order of appearance; where the program departs from the recording a warning tells so.
std::optional<DeskSetup> parseDeskScript(const QByteArray &json, QString &error,
                                         const DeskSetup &usual = defaultSetup());

/// The desk of this process: the default desk with realistic timing and something to be heard, changed by the file that
/// QUORVEL_DESK_SCRIPT names. A file that cannot be used is named in a warning and changes nothing. Over both, but for
/// what a script says of one monitor, wins QUORVEL_DESK_LATENCY ("realistic" or "none"). Files that a script names are
/// looked for in the working folder.
DeskSetup setupFromEnvironment();

} // namespace virtualdesk
