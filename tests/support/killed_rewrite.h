#pragma once

#include "nvx_util/whole_file.h"
#include "support/file_bytes.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QTest>
#include <QThread>

#include <functional>

/// A program's rewrite of a file, for tests that kill it half-way. Such a test starts its own program as the
/// writer.
struct KilledRewrite
{
    QString fileName;    ///< in a folder without other files
    QByteArray original; ///< takes some milliseconds to rewrite
    std::function<bool(const QString &fileName)> rewrite;
    bool makesCopy = true; ///< a part of the file is lost, so it is copied as NAME.before first

    QString copy() const { return fileName + QStringLiteral(".before"); }
};

/// The writer: rewrites the file again and again until this program is killed. Restores the file before it
/// removes the copy, and pauses after each rewrite; otherwise hardly any kill would find a copy.
inline int rewriteForever(const KilledRewrite &killed)
{
    while (Nvx::Util::replaceWholeFile(killed.fileName, killed.original) &&
           (!QFile::exists(killed.copy()) || QFile::remove(killed.copy())) && killed.rewrite(killed.fileName))
        QThread::msleep(50);
    return 1;
}

/// Starts the writer with these arguments and kills it, so many times. After each kill the file must be the
/// original or the rewritten one, and the copy must exist if the file was rewritten.
inline void checkKilledRewrite(const KilledRewrite &killed, const QStringList &arguments, int kills)
{
    QVERIFY(writeBytes(killed.fileName, killed.original));
    QVERIFY(killed.rewrite(killed.fileName));
    const QByteArray rewritten = readFile(killed.fileName);
    QVERIFY(rewritten != killed.original);

    int copiesFound = 0;
    for (int kill = 0; kill < kills; ++kill) {
        const QDateTime before = QFileInfo(killed.fileName).lastModified();
        QProcess writer;
        writer.start(QCoreApplication::applicationFilePath(), arguments);
        QVERIFY(writer.waitForStarted());
        // The writer must have started, and is killed at a different point each time. On Windows an open file
        // cannot be replaced, so this does not read it.
        QVERIFY(QTest::qWaitFor([&] { return QFileInfo(killed.fileName).lastModified() != before; }, 20'000));
        QVERIFY(!writer.waitForFinished(13 * kill % 100));
        writer.kill();
        QVERIFY(writer.waitForFinished());

        const QByteArray left = readFile(killed.fileName);
        const bool hasCopy = QFile::exists(killed.copy());
        QVERIFY(left == killed.original || (left == rewritten && hasCopy == killed.makesCopy));
        QVERIFY(!hasCopy || readFile(killed.copy()) == killed.original);
        copiesFound += hasCopy ? 1 : 0;
    }
    if (killed.makesCopy)
        qInfo("%d of %d kills found the copy", copiesFound, kills);
    QCOMPARE(copiesFound > 0, killed.makesCopy);

    // The next run completes the rewrite and removes unfinished files.
    QVERIFY(Nvx::Util::replaceWholeFile(killed.fileName, killed.original));
    QFile::remove(killed.copy());
    QVERIFY(killed.rewrite(killed.fileName));
    const QFileInfo file(killed.fileName);
    QStringList names{file.fileName()};
    if (killed.makesCopy)
        names.append(QFileInfo(killed.copy()).fileName());
    QCOMPARE(file.dir().entryList(QDir::Files | QDir::Hidden), names);
}
