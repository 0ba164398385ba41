#include "nvx_util/whole_file.h"
#include "support/file_bytes.h"
#include "support/test_folder.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

namespace {

constexpr int size = 4 * 1024 * 1024;
constexpr int kills = 40;
const QString replaceOption = QStringLiteral("--replace");
const QString copyOption = QStringLiteral("--copy");

QByteArray contents(char letter)
{
    return QByteArray(size, letter);
}

/// Replaces the file again and again until somebody kills this program.
int replaceForever(const QString &fileName)
{
    const QByteArray first = contents('a');
    const QByteArray second = contents('b');
    while (Nvx::Util::replaceWholeFile(fileName, first) && Nvx::Util::replaceWholeFile(fileName, second))
        ;
    return 1;
}

/// Copies the file and removes the copy, again and again until somebody kills this program.
int copyForever(const QString &source, const QString &target)
{
    while (Nvx::Util::copyToFreeName(source, target) && QFile::remove(target))
        ;
    return 1;
}

} // namespace

class TestWholeFileKilled : public QObject
{
    Q_OBJECT

private slots:
    void killedWriterLeavesTheOldFileOrTheNew()
    {
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("file"));
        QVERIFY(Nvx::Util::replaceWholeFile(fileName, contents('a')));
        for (int kill = 0; kill < kills; ++kill) {
            QProcess writer;
            writer.start(QCoreApplication::applicationFilePath(), {replaceOption, fileName});
            QVERIFY(writer.waitForStarted());
            // The writer must still be at it when it is killed, at another point each time.
            QVERIFY(!writer.waitForFinished(30 + 7 * kill % 50));
            writer.kill();
            QVERIFY(writer.waitForFinished());
            const std::optional<QByteArray> left = fileBytes(fileName);
            QVERIFY(left == contents('a') || left == contents('b'));
        }
    }

    void killedCopierLeavesAWholeCopyOrNone()
    {
        const TestFolder folder;
        const QString source = folder.path(QStringLiteral("source"));
        const QString target = folder.path(QStringLiteral("copy"));
        QVERIFY(writeFile(source, contents('a')));
        for (int kill = 0; kill < kills; ++kill) {
            QProcess copier;
            copier.start(QCoreApplication::applicationFilePath(), {copyOption, source, target});
            QVERIFY(copier.waitForStarted());
            QVERIFY(!copier.waitForFinished(30 + 7 * kill % 50));
            copier.kill();
            QVERIFY(copier.waitForFinished());
            QVERIFY(!QFile::exists(target) || fileBytes(target) == contents('a'));
            QFile::remove(target); // what was being written may stay, and must not be in the next one's way
        }
    }
};

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == replaceOption)
        return replaceForever(arguments.value(2));
    if (arguments.value(1) == copyOption)
        return copyForever(arguments.value(2), arguments.value(3));
    TestWholeFileKilled test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_whole_file_killed.moc"
