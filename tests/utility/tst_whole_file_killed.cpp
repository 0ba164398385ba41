#include "nvx_util/whole_file.h"
#include "support/file_bytes.h"
#include "support/test_folder.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int size = 4 * 1024 * 1024;
constexpr int kills = 40;
const QString replaceOption = u"--replace"_s;
const QString contendOption = u"--contend"_s;
const QString copyOption = u"--copy"_s;

QByteArray contents(char letter)
{
    return QByteArray(size, letter);
}

/// The names of the other files in a file's folder.
QStringList namesBeside(const QString &fileName)
{
    const QFileInfo file(fileName);
    QStringList names = file.dir().entryList(QDir::Files | QDir::Hidden);
    names.removeAll(file.fileName());
    return names;
}

/// Replaces the file repeatedly until this program is killed.
int replaceForever(const QString &fileName)
{
    const QByteArray first = contents('a');
    const QByteArray second = contents('b');
    while (Nvx::Util::replaceWholeFile(fileName, first) && Nvx::Util::replaceWholeFile(fileName, second))
        ;
    return 1;
}

/// The same, but continues if another process was replacing the file.
int contendForever(const QString &fileName)
{
    for (char letter = 'a';; letter = letter == 'a' ? 'b' : 'a')
        static_cast<void>(Nvx::Util::replaceWholeFile(fileName, contents(letter)));
}

/// Copies the file and removes the copy repeatedly until this program is killed.
int copyForever(const QString &source, const QString &target)
{
    while (Nvx::Util::copyToFreeName(source, target) && QFile::remove(target))
        ;
    return 1;
}

} // namespace

class tst_whole_file_killed : public QObject
{
    Q_OBJECT

private slots:
    void killedWriterLeavesTheOldFileOrTheNewOne()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"file"_s);
        QVERIFY(Nvx::Util::replaceWholeFile(fileName, contents('a')));
        for (int kill = 0; kill < kills; ++kill) {
            const QDateTime before = QFileInfo(fileName).lastModified();
            QProcess writer;
            writer.start(QCoreApplication::applicationFilePath(), {replaceOption, fileName});
            QVERIFY2(writer.waitForStarted(), qPrintable(writer.errorString()));
            // The writer must be killed while it writes, each time at another point.
            QVERIFY(QTest::qWaitFor([&] { return QFileInfo(fileName).lastModified() != before; }, 20'000));
            QVERIFY(!writer.waitForFinished(7 * kill % 50));
            writer.kill();
            QVERIFY(writer.waitForFinished());
            const std::optional<QByteArray> left = fileBytes(fileName);
            QVERIFY(left == contents('a') || left == contents('b'));
        }
        // The next call removes the leftover of the last writer.
        QVERIFY(Nvx::Util::replaceWholeFile(fileName, "whole"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList(u"file"_s));
    }

    void concurrentWritersLeaveACompleteFile()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"file"_s);
        QVERIFY(Nvx::Util::replaceWholeFile(fileName, contents('a')));
        std::array<QProcess, 3> writers;
        for (QProcess &writer : writers) {
            writer.start(QCoreApplication::applicationFilePath(), {contendOption, fileName});
            QVERIFY2(writer.waitForStarted(), qPrintable(writer.errorString()));
        }
        QElapsedTimer clock;
        clock.start();
        int looks = 0;
        while (clock.elapsed() < 2000) {
            const std::optional<QByteArray> found = fileBytes(fileName);
            // On Windows the file cannot be opened while it is being renamed.
            QVERIFY(!found || found == contents('a') || found == contents('b'));
            looks += found ? 1 : 0;
        }
        for (QProcess &writer : writers) {
            QVERIFY(!writer.waitForFinished(1));
            writer.kill();
            QVERIFY(writer.waitForFinished());
        }
        QVERIFY(looks > 0);
    }

    void killedCopierLeavesACompleteCopyOrNone()
    {
        const TestFolder folder;
        const QString source = folder.path(u"source"_s);
        const QString target = folder.path(u"copy"_s);
        QVERIFY(writeBytes(source, contents('a')));
        for (int kill = 0; kill < kills; ++kill) {
            QProcess copier;
            copier.start(QCoreApplication::applicationFilePath(), {copyOption, source, target});
            QVERIFY2(copier.waitForStarted(), qPrintable(copier.errorString()));
            // The copy exists only for moments, the unfinished file nearly always.
            QVERIFY(QTest::qWaitFor([&] { return namesBeside(source).size() > 0; }, 20'000));
            QVERIFY(!copier.waitForFinished(7 * kill % 50));
            copier.kill();
            QVERIFY(copier.waitForFinished());
            QVERIFY(!QFile::exists(target) || fileBytes(target) == contents('a'));
            // The unfinished file may stay, but must not be used for the next copy.
            const QStringList left = namesBeside(source);
            for (const QString &name : left)
                QVERIFY(QFile::remove(folder.path(name)));
        }
    }
};

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == replaceOption)
        return replaceForever(arguments.value(2));
    if (arguments.value(1) == contendOption)
        return contendForever(arguments.value(2));
    if (arguments.value(1) == copyOption)
        return copyForever(arguments.value(2), arguments.value(3));
    tst_whole_file_killed test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_whole_file_killed.moc"
