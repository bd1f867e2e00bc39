#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

// The one door that files go through: read whole with a bound, written whole with a checked flush and an atomic
// replacement. No write follows a link: the program may have more rights than whoever put the link there.

/// What was read of a file.
struct WholeFile
{
    QByteArray bytes;    ///< as many as were asked for at most
    bool exists = false; ///< something has that name, even if it cannot be read
    bool more = false;   ///< the file goes on behind the bytes
    QString error;       ///< why nothing could be read; empty otherwise, also when there is no such file
};

/// Reads the first bytes of a regular file, @p maximum at most.
WholeFile readWhole(const QString &fileName, qint64 maximum);

/// A file that is to take the place of another, or to be new: written under a scratch name beside it and put in place
/// when it is whole. Whatever happens meanwhile, the name stands for the old file or for the new one.
class Replacement
{
public:
    explicit Replacement(const QString &fileName);
    /// Takes the scratch file away unless it was put in place.
    ~Replacement();
    Q_DISABLE_COPY_MOVE(Replacement)

    /// Makes the empty scratch file. False when the file may not be replaced or the scratch file cannot be made.
    bool open();

    /// Adds bytes to the scratch file.
    bool write(const QByteArray &bytes);

    /// Leaves the scratch file to somebody else, who writes it until putInPlace: its name. It is closed first, as an
    /// open one cannot be replaced on every system.
    QString handOver();

    /// Makes sure that the scratch file has reached the disk and holds exactly these bytes, and gives it the name.
    /// False when not; the old file is then untouched.
    bool putInPlace(const QByteArray &whole);

    /// Why the last call failed.
    QString error() const { return m_error; }

private:
    bool mayReplace();
    bool makeScratch();
    void makeTimeDiffer();
    bool fail(const QString &error);
    bool failAsSystem();

    QString m_fileName;
    QString m_scratch; ///< empty while there is none
    QFile m_file;
    QString m_error;
};

/// Writes a file in one go by a Replacement: the error's text, empty when written.
QString writeWhole(const QString &fileName, const QByteArray &bytes);

/// Opens a file to read and to write at its end; it is made when there is none. False for a link and whatever cannot be
/// opened.
bool openToAppend(QFile &file, const QString &fileName);

/// Adds bytes to the end of a file, which is made when there is none: the error's text, empty when written.
QString appendTo(const QString &fileName, const QByteArray &bytes);
