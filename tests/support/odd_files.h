#pragma once

#include <QFile>
#include <QString>

// Files of the operating system that answer in ways which ordinary ones have only when something goes wrong.
// For Unix only.

/// Can be opened, and breaks when it is read.
inline QString breakingFile()
{
    return QStringLiteral("/proc/self/mem");
}

/// Cannot be opened for reading, by nobody.
inline QString closedFile()
{
    return QStringLiteral("/sys/bus/cpu/uevent");
}

/// What the operating system says when the file is read.
inline QString errorOf(const QString &fileName)
{
    QFile file(fileName);
    if (file.open(QIODevice::ReadOnly))
        file.readAll();
    return file.errorString();
}

/// Cannot be written, and nobody can change that.
inline QString protectedFile()
{
    return QStringLiteral("/proc/self/status");
}

/// Makes the path another name of one of these files.
inline bool linkTo(const QString &file, const QString &path)
{
    return QFile::exists(file) && QFile::link(file, path);
}

/// Says that it is longer than what there is to read of it, which is one line.
inline QString boastingFile()
{
    return QStringLiteral("/sys/devices/system/cpu/online");
}
