#pragma once

#include "nvx_util/regular_file.h"

#include <QDir>
#include <QFile>
#include <QString>
#include <QTest>

#include <sys/stat.h>

// Files of the operating system that always fail as ordinary files do only after a fault. For Unix only.

/// Can be opened, but not read.
inline QString breakingFile()
{
    return QStringLiteral("/proc/self/mem");
}

/// Cannot be opened for reading, not even by root.
inline QString closedFile()
{
    return QStringLiteral("/sys/bus/cpu/uevent");
}

/// Never ends.
inline QString endlessFile()
{
    return QStringLiteral("/dev/zero");
}

/// A named pipe that nobody writes to; whoever opens it waits for ever. Empty if it cannot be created.
inline QString waitingPipe(const QString &path)
{
    return mkfifo(QFile::encodeName(path).constData(), 0600) == 0 ? path : QString();
}

/// The rows "file" of a test with files that cannot be read.
inline void addUnreadableFileRows()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("cannot be opened") << closedFile();
    QTest::newRow("reading fails") << breakingFile();
    QTest::newRow("never ends") << endlessFile();
}

/// The error message when the file is read, of the operating system if it can be opened.
inline QString errorOf(const QString &fileName)
{
    Nvx::Util::RegularFile file(fileName);
    if (file.open(QIODevice::ReadOnly))
        file.readAll();
    return file.errorString();
}

/// Creates "pipe" and "folder" in a folder, for the rows below.
inline bool addIrregularFiles(const QString &folder)
{
    return !waitingPipe(folder + QStringLiteral("/pipe")).isEmpty() &&
           QDir(folder).mkdir(QStringLiteral("folder"));
}

/// The rows "file", seen from that folder, and "reason" of a test with what is not a regular file.
inline void addIrregularFileRows(const QString &folder)
{
    const QString reason = QStringLiteral("it is not a regular file");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    QTest::newRow("a pipe that nobody writes to") << QStringLiteral("pipe") << reason;
    QTest::newRow("a device without an end") << endlessFile() << reason;
    QTest::newRow("a device without contents") << QStringLiteral("/dev/null") << reason;
    QTest::newRow("a folder") << QStringLiteral("folder") << errorOf(folder + QStringLiteral("/folder"));
}

/// Cannot be written, not even by root.
inline QString protectedFile()
{
    return QStringLiteral("/proc/self/status");
}

/// Makes the path a link to one of these files.
inline bool linkTo(const QString &file, const QString &path)
{
    return QFile::exists(file) && QFile::link(file, path);
}

/// Reports a larger size than its contents, which are one line.
inline QString boastingFile()
{
    return QStringLiteral("/sys/devices/system/cpu/online");
}
