#pragma once

#include <QByteArray>
#include <QFile>
#include <QTest>

/// The rows "bytes" of files that are not well formed. The incomplete ones begin with `root`, an element that
/// the reader knows, and `child`, one that is complete in it.
inline void addFaultyFileRows(const QByteArray &root, const QByteArray &child)
{
    const QByteArray begin = '<' + root + '>';
    const QByteArray end = "</" + root + '>';
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("not a table\n");
    QTest::newRow("picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    QTest::newRow("binary database") << QByteArray("\0\1\0\0Standard Jet DB\0", 20);
    QTest::newRow("truncated in a tag") << begin + child.left(child.size() / 2);
    QTest::newRow("truncated between elements") << begin + child;
    QTest::newRow("wrong nesting") << begin + "<material>" + end + "</material>";
    QTest::newRow("two documents") << begin + end + begin + end;
    QTest::newRow("recursive entity")
        << "<!DOCTYPE t [<!ENTITY a \"&b;&b;\"><!ENTITY b \"&a;&a;\">]>" + begin + "&a;" + end;
}

/// Writes a well-formed file of at least that size: `part` again and again between `begin` and `end`.
inline void writeLargeFile(const QString &fileName, const QByteArray &begin, const QByteArray &part,
                           const QByteArray &end, qint64 bytes)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write");
    file.write(begin);
    const QByteArray parts = part.repeated(100);
    while (file.pos() < bytes)
        file.write(parts);
    file.write(end);
}

/// Writes a file of that size that has only NULs.
inline bool writeNuls(const QString &fileName, qint64 bytes)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.resize(bytes);
}
