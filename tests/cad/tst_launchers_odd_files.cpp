// Files of CAD systems that cannot be read whole, and add-ins on a disk that is full.

#include "cad/foreign_file.h"
#include "cad/tamsel/tamsel_launcher.h"
#include "launcher_fixture.h"
#include "support/full_disk.h"
#include "support/odd_files.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"

#include <QTest>

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

class tst_launchers_odd_files : public QObject
{
    Q_OBJECT

private slots:
    void whatCannotBeReadWholeIsNotTakenForTheFile_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("it breaks when it is read") << breakingFile();
        QTest::newRow("it is shorter than it says") << boastingFile();
    }

    void whatCannotBeReadWholeIsNotTakenForTheFile()
    {
        QFETCH(const QString, path);
        QVERIFY(QFile::exists(path));
        const RecordedDiagnostics diagnostics;
        QVERIFY(!readForeignFile(path));
        QCOMPARE(diagnostics.list(), QStringList(text("Unable to read ") + path));
    }

    void aManifestThatIsNotWholeIsNotInTheLog_data()
    {
        QTest::addColumn<qint64>("freeBytes");
        QTest::newRow("nothing is free") << qint64(0);
        QTest::newRow("room for its beginning") << qint64(20);
    }

    void aManifestThatIsNotWholeIsNotInTheLog()
    {
        QFETCH(const qint64, freeBytes);
        LauncherFixture fixture;
        QVERIFY(QDir().mkpath(fixture.installed("Launchers/Tamsel")));
        const RecordedDiagnostics diagnostics;
        {
            const FullDisk disk(freeBytes);
            installTamselAddin(fixture.context(), fixture.folders, RunMode::Install, 2017);
        }
        QVERIFY(fixture.takeLines().filter(QRegularExpression(text("^[^0]"))).isEmpty());
        QCOMPARE(diagnostics.list().size(), 1);
        QVERIFY2(diagnostics.list().first().startsWith(text("Unable to write ") +
                                                       fixture.installed("Launchers/Tamsel/")),
                 qPrintable(diagnostics.list().first()));
    }
};

NVX_GUILESS_TEST(tst_launchers_odd_files)
#include "tst_launchers_odd_files.moc"
