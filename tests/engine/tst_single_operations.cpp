// The operations of the engine that can be called outside a run.

#include "engine/engine_fixture.h"
#include "nvx_util/shell_link.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

using namespace Nvx::Engine;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

class tst_single_operations : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<EngineFixture>();
        m_engine = &m_fixture->start(u"-I"_s);
        m_fixture->machine.calls.clear(); // those of the start
    }
    void cleanup() { m_fixture.reset(); }

    void theseMembersAreSlots_data()
    {
        QTest::addColumn<QByteArray>("signature");
        for (const char *signature : {"ProcessInstallation()", "initLocalizationTool()", "getLtool()"})
            QTest::newRow(signature) << QByteArray(signature);
    }

    void theseMembersAreSlots()
    {
        QFETCH(QByteArray, signature);
        QVERIFY(cfg_utilitys::staticMetaObject.indexOfSlot(signature.constData()) >= 0);
    }

    void theLocalizationToolIsReachedThroughItsSlot()
    {
        const auto tool = [this] {
            util::util_localization_tool *found = nullptr;
            const bool called = QMetaObject::invokeMethod(
                m_engine, "getLtool", Q_RETURN_ARG(util::util_localization_tool *, found));
            return std::pair(called, found);
        };
        QCOMPARE(tool(), std::pair(true, static_cast<util::util_localization_tool *>(nullptr)));
        QVERIFY(QMetaObject::invokeMethod(m_engine, "initLocalizationTool"));
        QVERIFY(m_engine->getLtool());
        QCOMPARE(tool(), std::pair(true, m_engine->getLtool()));
    }

    void aCommandIsRunAndItsExitCodeReturned()
    {
        m_fixture->machine.programResult = {Nvx::Util::ProgramResult::Outcome::Exited, 7, {}};
        QCOMPARE(m_engine->runCommand(u"C:\\a.exe"_s, {u"-x"_s}, u"C:\\work"_s, 500), 7);
        QCOMPARE(m_fixture->machine.calls.size(), 1);
        const Nvx::Util::ProgramCall &call = m_fixture->machine.calls.first();
        QCOMPARE(call.program, u"C:\\a.exe"_s);
        QCOMPARE(call.arguments, QStringList(u"-x"_s));
        QCOMPARE(call.workFolder, u"C:\\work"_s);
        QCOMPARE(call.timeoutMs, 500);
    }

    void aFolderIsRemovedByTheCommandInterpreter()
    {
        QByteArray batch;
        m_fixture->machine.whileRunning = [&batch](const Nvx::Util::ProgramCall &call) {
            batch = readFile(call.arguments.last());
        };
        QVERIFY(m_engine->removeDirectory(u"C:\\a b"_s));
        QCOMPARE(m_fixture->machine.calls.size(), 1);
        QCOMPARE(m_fixture->machine.calls.first().program, u"cmd.exe"_s);
        QCOMPARE(batch, QByteArray("rmdir /s /q \"C:\\a b\""));
    }

    void matchingFilesAreRemovedAndOthersStay()
    {
        const QString folder = m_fixture->installed("cache");
        writeFile(m_fixture->installed("cache/a.pyc"));
        writeFile(m_fixture->installed("cache/a.py"));
        QVERIFY(m_engine->removeMatchingFiles(folder, u".PYC"_s));
        QCOMPARE(namesIn(folder), QStringList(u"a.py"_s));
        QVERIFY(!m_engine->removeMatchingFiles(m_fixture->installed("missing"), u".PYC"_s));
    }

    void theViewerIsConfigured()
    {
        QCOMPARE(m_engine->configureViewer(RunMode::Install), 0);
        QCOMPARE(m_fixture->machine.calls.size(), 1);
        QVERIFY(m_fixture->machine.calls.first().program.endsWith(u"NVXViewerConfig.exe"_s));
        QCOMPARE(m_fixture->machine.calls.first().arguments, QStringList(u"-i"_s));
    }

    void aShortcutHasTheGivenProperties()
    {
        QCOMPARE(
            m_engine->createShortcut(u"C:\\NVX.exe"_s, u"C:\\a.lnk"_s, u"NVX"_s, u"C:\\nvx.ico"_s, u"-x"_s),
            0);
        QCOMPARE(m_fixture->machine.shellLinks.size(), 1);
        const Nvx::Util::ShellLink &link = m_fixture->machine.shellLinks.first();
        QCOMPARE(link.target, u"C:\\NVX.exe"_s);
        QCOMPARE(link.linkPath, u"C:\\a.lnk"_s);
        QCOMPARE(link.description, u"NVX"_s);
        QCOMPARE(link.workFolder, m_fixture->test.installDir());
        QCOMPARE(link.iconPath, u"C:\\nvx.ico"_s);
        QCOMPARE(link.arguments, u"-x"_s);
    }

    void aRunCanBeRepeatedWithoutAPage()
    {
        m_engine->ProcessInstallation();
        QVERIFY(m_engine->state().runComplete);
        m_engine->clearRunComplete();
        QVERIFY(!m_engine->state().runComplete);
    }

    void removingOldFilesClosesTheLogAndKeepsIt_data()
    {
        QTest::addColumn<QString>("options");
        QTest::newRow("with a window") << u"-I"_s;
        QTest::newRow("silent") << u"-I -S"_s;
    }

    void removingOldFilesClosesTheLogAndKeepsIt()
    {
        QFETCH(const QString, options);
        cfg_utilitys &engine = m_fixture->start(options);
        writeFile(m_fixture->installed("matprop.new"));
        engine.removeOldFiles(OldFiles::Remove);
        QVERIFY(!QFile::exists(m_fixture->installed("matprop.new")));
        const QStringList before = m_fixture->lines();
        QVERIFY(!before.isEmpty());
        engine.log(0, u"lost"_s);
        QCOMPARE(m_fixture->lines(), before);
    }

private:
    std::unique_ptr<EngineFixture> m_fixture;
    cfg_utilitys *m_engine = nullptr;
};

NVX_GUILESS_TEST(tst_single_operations)
#include "tst_single_operations.moc"
