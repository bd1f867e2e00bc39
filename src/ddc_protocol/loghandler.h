#pragma once

#include <QtGlobal>

class QMessageLogContext;
class QString;

/// The toolkit's message handler: appends one line to "./QUORVEL_<yyyy-MM-dd>.log" in the working directory. Safe from
/// any thread. The file is opened and closed for every message, so it may be read or deleted at any time; a folder
/// that cannot be written, or a link in the file's place, loses the line silently.
void logMessageHandler(QtMsgType type, const QMessageLogContext &context, const QString &text);
