#pragma once

#include <QFile>
#include <QString>
#include <QTest>

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

/// The rows "file" of a test with files that cannot be read.
inline void addUnreadableFileRows()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("cannot be opened") << closedFile();
    QTest::newRow("reading fails") << breakingFile();
}

/// The error message of the operating system when the file is read.
inline QString errorOf(const QString &fileName)
{
    QFile file(fileName);
    if (file.open(QIODevice::ReadOnly))
        file.readAll();
    return file.errorString();
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
