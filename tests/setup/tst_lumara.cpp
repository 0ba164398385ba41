#include "setup/setup_fixture.h"
#include "setup/user_files.h"
#include "support/test_class.h"

#include <QTest>

using namespace Nvx::Run;
using namespace Nvx::Setup;
using namespace Qt::Literals::StringLiterals;

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
        UserFiles(fixture.context()).cleanLumara(RunMode::Uninstall);
        QCOMPARE(fixture.machine.calls.size(), 1);
        QCOMPARE(commandLine, u"rmdir /s /q \"%1\""_s.arg(fixture.installed("WebServices")));
    }

    void theNotificationCentresFilesStay()
    {
        SetupFixture fixture;
        const QStringList files = {u"Lumara.log"_s, u"lumara.xml"_s, u"Kelvane_2014_WF50.dll"_s,
                                   u"LUMARA.LOG"_s};
        for (const QString &file : files)
            writeFile(fixture.installed(file.toUtf8().constData()));
        UserFiles(fixture.context()).cleanLumara(RunMode::Uninstall);
        for (const QString &file : files)
            QVERIFY2(QFile::exists(fixture.installed(file.toUtf8().constData())), qPrintable(file));
        QVERIFY(fixture.reporter.lines.filter(u"Removing:"_s).isEmpty());
    }

    void inOtherModesNothingIsRemoved_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("install") << int(RunMode::Install);
        QTest::newRow("stop services") << int(RunMode::StopServices);
    }

    void inOtherModesNothingIsRemoved()
    {
        QFETCH(int, mode);
        SetupFixture fixture;
        UserFiles(fixture.context()).cleanLumara(static_cast<RunMode>(mode));
        QVERIFY(fixture.machine.calls.isEmpty());
        QVERIFY(fixture.reporter.lines.isEmpty());
    }
};

NVX_GUILESS_TEST(tst_lumara)
#include "tst_lumara.moc"
