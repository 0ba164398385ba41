// The operations of the engine that are called by themselves, outside a run.

#include "engine/engine_fixture.h"
#include "nvx_util/shell_link.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

class tst_single_operations : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<EngineFixture>();
        m_engine = &m_fixture->start(text("-I"));
        m_fixture->machine.calls.clear(); // those of the start
    }
    void cleanup() { m_fixture.reset(); }

    void whatOthersConnectToIsASlot_data()
    {
        QTest::addColumn<QByteArray>("signature");
        for (const char *signature : {"ProcessInstallation()", "initLocalizationTool()", "getLtool()"})
            QTest::newRow(signature) << QByteArray(signature);
    }

    void whatOthersConnectToIsASlot()
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

    void aCommandIsRunAndItsExitCodeAnswered()
    {
        m_fixture->machine.programResult = {Nvx::Util::ProgramResult::Outcome::Exited, 7, {}};
        QCOMPARE(m_engine->runCommand(text("C:\\a.exe"), {text("-x")}, text("C:\\work"), 500), 7);
        QCOMPARE(m_fixture->machine.calls.size(), 1);
        const Nvx::Util::ProgramCall &call = m_fixture->machine.calls.first();
        QCOMPARE(call.program, text("C:\\a.exe"));
        QCOMPARE(call.arguments, QStringList(text("-x")));
        QCOMPARE(call.workFolder, text("C:\\work"));
        QCOMPARE(call.timeoutMs, 500);
    }

    void aFolderIsRemovedByTheCommandInterpreter()
    {
        QByteArray batch;
        m_fixture->machine.whileRunning = [&batch](const Nvx::Util::ProgramCall &call) {
            batch = readFile(call.arguments.last());
        };
        QVERIFY(m_engine->removeDirectory(text("C:\\a b")));
        QCOMPARE(m_fixture->machine.calls.size(), 1);
        QCOMPARE(m_fixture->machine.calls.first().program, text("cmd.exe"));
        QCOMPARE(batch, QByteArray("rmdir /s /q \"C:\\a b\""));
    }

    void matchingFilesAreRemovedAndOthersStay()
    {
        const QString folder = m_fixture->installed("cache");
        writeFile(m_fixture->installed("cache/a.pyc"));
        writeFile(m_fixture->installed("cache/a.py"));
        QVERIFY(m_engine->removeMatchingFiles(folder, text(".PYC")));
        QCOMPARE(namesIn(folder), QStringList(text("a.py")));
        QVERIFY(!m_engine->removeMatchingFiles(m_fixture->installed("missing"), text(".PYC")));
    }

    void theViewerIsConfigured()
    {
        QCOMPARE(m_engine->configureViewer(RunMode::Install), 0);
        QCOMPARE(m_fixture->machine.calls.size(), 1);
        QVERIFY(m_fixture->machine.calls.first().program.endsWith(text("NVXViewerConfig.exe")));
        QCOMPARE(m_fixture->machine.calls.first().arguments, QStringList(text("-i")));
    }

    void aShortcutIsMadeAsItIsDescribed()
    {
        QCOMPARE(m_engine->createShortcut(text("C:\\NVX.exe"), text("C:\\a.lnk"), text("NVX"),
                                          text("C:\\nvx.ico"), text("-x")),
                 0);
        QCOMPARE(m_fixture->machine.shellLinks.size(), 1);
        const Nvx::Util::ShellLink &link = m_fixture->machine.shellLinks.first();
        QCOMPARE(link.target, text("C:\\NVX.exe"));
        QCOMPARE(link.linkPath, text("C:\\a.lnk"));
        QCOMPARE(link.description, text("NVX"));
        QCOMPARE(link.workFolder, m_fixture->test.installDir());
        QCOMPARE(link.iconPath, text("C:\\nvx.ico"));
        QCOMPARE(link.arguments, text("-x"));
    }

    void aRunMayBeginAnewWithoutAPageThatShowsIt()
    {
        m_engine->ProcessInstallation();
        QVERIFY(m_engine->state().runComplete);
        m_engine->clearRunComplete();
        QVERIFY(!m_engine->state().runComplete);
    }

    void theLogStaysWhenOldFilesAreRemovedAndEndsThere_data()
    {
        QTest::addColumn<QString>("options");
        QTest::newRow("shown") << text("-I");
        QTest::newRow("silent") << text("-I -S");
    }

    void theLogStaysWhenOldFilesAreRemovedAndEndsThere()
    {
        QFETCH(const QString, options);
        cfg_utilitys &engine = m_fixture->start(options);
        writeFile(m_fixture->installed("matprop.new"));
        engine.removeOldFiles(OldFiles::Remove);
        QVERIFY(!QFile::exists(m_fixture->installed("matprop.new")));
        const QStringList before = m_fixture->lines();
        QVERIFY(!before.isEmpty());
        engine.log(0, text("lost"));
        QCOMPARE(m_fixture->lines(), before);
    }

private:
    std::unique_ptr<EngineFixture> m_fixture;
    cfg_utilitys *m_engine = nullptr;
};

NVX_GUILESS_TEST(tst_single_operations)
#include "tst_single_operations.moc"
