#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QStringList>

#include <optional>

/// The bytes of a file; `std::nullopt` if it cannot be read.
inline std::optional<QByteArray> fileBytes(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

/// The bytes of a file; a null array if it cannot be read.
inline QByteArray readFile(const QString &fileName)
{
    return fileBytes(fileName).value_or(QByteArray());
}

/// The bytes of a file with "\n" as its line ends; `std::nullopt` if it cannot be read.
inline std::optional<QByteArray> fileLines(const QString &fileName)
{
    std::optional<QByteArray> bytes = fileBytes(fileName);
    if (bytes)
        bytes->replace("\r\n", "\n");
    return bytes;
}

/// Writes a file; false if that fails.
inline bool writeBytes(const QString &fileName, const QByteArray &bytes)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

/// Sets the time of a file's last change; false if that fails.
inline bool setChangeTime(const QString &fileName, const QDateTime &time)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadWrite) && file.setFileTime(time, QFileDevice::FileModificationTime);
}

/// Writes a file and creates its folders. Ends the test program if that fails, since it could test nothing.
inline void writeFile(const QString &fileName, const QByteArray &contents = QByteArray())
{
    QDir().mkpath(QFileInfo(fileName).path());
    if (!writeBytes(fileName, contents))
        qFatal("cannot write %s", qPrintable(fileName));
}

/// The names of everything in a folder, sorted; includes links whose targets do not exist.
inline QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
                                  QDir::Name);
}
