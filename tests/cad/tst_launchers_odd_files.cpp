// Files of CAD systems that cannot be read completely, and add-ins on a full disk.

#include "cad/foreign_file.h"
#include "cad/tamsel/tamsel.h"
#include "launcher_fixture.h"
#include "support/full_disk.h"
#include "support/odd_files.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"

#include <QTest>

using namespace Nvx::Cad;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

class tst_launchers_odd_files : public QObject
{
    Q_OBJECT

private slots:
    void aFileThatCannotBeReadCompletelyIsNotRead_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("reading fails") << breakingFile();
        QTest::newRow("shorter than its reported size") << boastingFile();
    }

    void aFileThatCannotBeReadCompletelyIsNotRead()
    {
        QFETCH(const QString, path);
        QVERIFY(QFile::exists(path));
        const RecordedDiagnostics diagnostics;
        QVERIFY(!readForeignFile(path));
        QCOMPARE(diagnostics.list(), QStringList(u"Unable to read "_s + path));
    }

    void anIncompleteManifestIsADiagnosticWarning_data()
    {
        QTest::addColumn<qint64>("freeBytes");
        QTest::newRow("no free space") << qint64(0);
        QTest::newRow("space for its beginning") << qint64(20);
    }

    void anIncompleteManifestIsADiagnosticWarning()
    {
        QFETCH(const qint64, freeBytes);
        LauncherFixture fixture;
        QVERIFY(QDir().mkpath(fixture.installed("Launchers/Tamsel")));
        const RecordedDiagnostics diagnostics;
        {
            const FullDisk disk(freeBytes);
            installTamselAddin(fixture.step(RunMode::Install), 2017);
        }
        QVERIFY(fixture.takeLines().filter(QRegularExpression(u"^[^0]"_s)).isEmpty());
        QCOMPARE(diagnostics.list().size(), 1);
        QVERIFY2(diagnostics.list().first().startsWith(u"Unable to write "_s +
                                                       fixture.installed("Launchers/Tamsel/")),
                 qPrintable(diagnostics.list().first()));
    }
};

NVX_GUILESS_TEST(tst_launchers_odd_files)
#include "tst_launchers_odd_files.moc"
