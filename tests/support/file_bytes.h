#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <optional>

/// The bytes of a file; nothing when it cannot be read.
inline std::optional<QByteArray> fileBytes(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

/// The text of a file with the line ends of every system as "\n"; nothing when it cannot be read.
inline std::optional<QByteArray> fileLines(const QString &fileName)
{
    std::optional<QByteArray> bytes = fileBytes(fileName);
    if (bytes)
        bytes->replace("\r\n", "\n");
    return bytes;
}

/// True when the file then holds the bytes.
inline bool writeBytes(const QString &fileName, const QByteArray &bytes)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}
