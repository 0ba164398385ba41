#include "nvx_io/nvx2_config_file.h"
#include "nvx_util/code_page.h"
#include "support/checkout.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QProcess>
#include <QTest>

using Nvx::Io::Nvx2ConfigFile;
using Nvx::Util::toStdString;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray saved(const Nvx2ConfigFile &file, const QString &path)
{
    return file.saveTo(toStdString(path)) ? readFile(path).replace("\r\n", "\n") : QByteArray();
}

} // namespace

class tst_nvx2_config_file : public QObject
{
    Q_OBJECT

private slots:
    void settingsAreLinesInTheOrderOfTheirFirstUse()
    {
        const TestFolder folder;
        Nvx2ConfigFile file;
        file.setting("b").setValue("1");
        file.setting("a").setValue("2");
        file.setting("b").setValue("3");
        QCOMPARE(saved(file, folder.path(u"x.nvxcfg"_s)), QByteArray("b = 3\na = 2\n"));
    }

    void theNamesAreThoseThatTheSolverReads()
    {
        QCOMPARE(Nvx2ConfigFile::DefaultName, "NVX2_config.nvxcfg");
        QCOMPARE(Nvx2ConfigFile::AnalyzePath, "AnalyzePath");
        QCOMPARE(Nvx2ConfigFile::ExePath, "ExePath");
        QCOMPARE(Nvx2ConfigFile::Mpi, "Mpi");
        QCOMPARE(Nvx2ConfigFile::NumberOfThreads, "NumberOfThreads");
        QCOMPARE(Nvx2ConfigFile::SocketsPerNode, "SocketsPerNode");
    }

    void valuesAreConvertedFromTheCodePageToUtf8()
    {
        const TestFolder folder;
        Nvx2ConfigFile file;
        file.setting(Nvx2ConfigFile::ExePath).setValue(toStdString(u"C:\\Größe"_s));
        QCOMPARE(saved(file, folder.path(u"x.nvxcfg"_s)), u"ExePath = C:\\Größe\n"_s.toUtf8());
    }

    void anExistingFileIsReplacedCompletely()
    {
        const TestFolder folder;
        const QString path = folder.path(u"Größe.nvxcfg"_s);
        writeFile(path, QByteArray(10000, 'x'));
        Nvx2ConfigFile file;
        file.setting("a").setValue("1");
        QCOMPARE(saved(file, path), QByteArray("a = 1\n"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }

    void aFileWithoutSettingsIsEmpty()
    {
        const TestFolder folder;
        const QString path = folder.path(u"x.nvxcfg"_s);
        QVERIFY(Nvx2ConfigFile().saveTo(toStdString(path)));
        QVERIFY(QFile::exists(path));
        QCOMPARE(readFile(path), QByteArray());
    }

    void aValueWithALineBreakIsRejectedAndTheOldFileStays_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("line feed") << QByteArray("a\nMpi = 99");
        QTest::newRow("carriage return") << QByteArray("a\rMpi = 99");
    }

    void aValueWithALineBreakIsRejectedAndTheOldFileStays()
    {
        QFETCH(QByteArray, value);
        const TestFolder folder;
        const QString path = folder.path(u"x.nvxcfg"_s);
        writeFile(path, "old");
        Nvx2ConfigFile file;
        file.setting("a").setValue(value.toStdString());
        QVERIFY(!file.saveTo(toStdString(path)));
        QCOMPARE(readFile(path), QByteArray("old"));
    }

    void aPathThatCannotBeWrittenReturnsFalse()
    {
        const TestFolder folder;
        Nvx2ConfigFile file;
        file.setting("a").setValue("1");
        QVERIFY(!file.saveTo(toStdString(folder.path(u"missing/x.nvxcfg"_s))));
        QVERIFY(QDir().mkdir(folder.path(u"taken"_s)));
        QVERIFY(!file.saveTo(toStdString(folder.path(u"taken"_s))));
        QVERIFY(QDir(folder.path(u"taken"_s)).exists());
    }

    void aWriterEndedAtAnyMomentLeavesACompleteFile()
    {
        const TestFolder folder;
        const QString path = folder.path(u"x.nvxcfg"_s);
        const QByteArray first = QByteArray("ExePath = ") + QByteArray(200000, 'x');
        const QList<QByteArray> wholeFiles{first + "\nMpi = 8\n", first + "\nMpi = -16\n"};
        for (int moment = 0; moment < 20; ++moment) {
            QProcess writer;
            writer.start(inCheckout(CONFIGURATION_WRITER), {path});
            QVERIFY2(writer.waitForStarted(), qPrintable(writer.errorString()));
            QTRY_VERIFY(QFile::exists(path));
            QTest::qSleep(moment);
            writer.kill();
            QVERIFY(writer.waitForFinished());
            QVERIFY(wholeFiles.contains(readFile(path).replace("\r\n", "\n")));
        }
    }
};

NVX_GUILESS_TEST(tst_nvx2_config_file)
#include "tst_nvx2_config_file.moc"
