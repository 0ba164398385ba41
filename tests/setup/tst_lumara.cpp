#include "setup/lumara.h"
#include "setup/setup_fixture.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

class tst_lumara : public QObject
{
    Q_OBJECT

private slots:
    void anUninstallRemovesTheNotificationCentresFolder()
    {
        SetupFixture fixture;
        QString commandLine;
        fixture.machine.whileRunning = [&](const Nvx::Util::ProgramCall &call) {
            commandLine = QString::fromUtf8(readFile(call.arguments.last()));
        };
        cleanLumara(fixture.context(), RunMode::Uninstall);
        QCOMPARE(fixture.machine.calls.size(), 1);
        QCOMPARE(commandLine, text("rmdir /s /q \"%1\"").arg(fixture.installed("WebServices")));
    }

    void itsFilesInTheInstallDirStay()
    {
        SetupFixture fixture;
        const QStringList files = {text("Lumara.log"), text("lumara.xml"), text("Kelvane_2014_WF50.dll"),
                                   text("LUMARA.LOG")};
        for (const QString &file : files)
            writeFile(fixture.installed(file.toUtf8().constData()));
        cleanLumara(fixture.context(), RunMode::Uninstall);
        for (const QString &file : files)
            QVERIFY2(QFile::exists(fixture.installed(file.toUtf8().constData())), qPrintable(file));
        QVERIFY(fixture.reporter.lines.filter(text("Removing:")).isEmpty());
    }

    void inOtherModesNothingHappens_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("install") << int(RunMode::Install);
        QTest::newRow("stop services") << int(RunMode::StopServices);
    }

    void inOtherModesNothingHappens()
    {
        QFETCH(int, mode);
        SetupFixture fixture;
        cleanLumara(fixture.context(), static_cast<RunMode>(mode));
        QVERIFY(fixture.machine.calls.isEmpty());
        QVERIFY(fixture.reporter.lines.isEmpty());
    }
};

NVX_GUILESS_TEST(tst_lumara)
#include "tst_lumara.moc"
