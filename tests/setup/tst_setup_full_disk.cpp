// Steps that write a file for another program, on a disk that is full.

#include "run/command_runner.h"
#include "setup/file_associations.h"
#include "setup/setup_fixture.h"
#include "support/full_disk.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

} // namespace

class tst_setup_full_disk : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture = std::make_unique<SetupFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void aBatchFileThatIsNotWholeIsNotRunAndGoes_data() { addFreeBytes(); }

    void aBatchFileThatIsNotWholeIsNotRunAndGoes()
    {
        QFETCH(const qint64, freeBytes);
        {
            const FullDisk disk(freeBytes);
            QVERIFY(CommandRunner(m_fixture->context()).removeDirectory(text("C:\\NVX 2017\\Python\\Lib")));
        }
        QVERIFY(m_fixture->machine.calls.isEmpty());
        const QString batchFile = m_fixture->state.installDir + text("work.bat");
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList(text("1 Unable to create %1, this folder is not removed: C:\\NVX "
                                  "2017\\Python\\Lib")
                                 .arg(batchFile)));
        QVERIFY(!QFile::exists(batchFile));
    }

    void aRegistryScriptThatIsNotWholeIsNotImportedAndGoes_data() { addFreeBytes(); }

    void aRegistryScriptThatIsNotWholeIsNotImportedAndGoes()
    {
        QFETCH(const qint64, freeBytes);
        m_fixture->state.installDirEscaped = text("C:\\\\NVX");
        const RecordedDiagnostics diagnostics;
        {
            const FullDisk disk(freeBytes);
            QCOMPARE(createFileAssociations(m_fixture->context(), RunMode::Install), 0);
        }
        QVERIFY(m_fixture->machine.calls.isEmpty());
        const QString script = m_fixture->installed("FileAssociations.reg");
        QCOMPARE(m_fixture->reporter.lines.mid(2), QStringList());
        QCOMPARE(diagnostics.list(), QStringList(2, text("Unable to create ") + script));
        QVERIFY(!QFile::exists(script));
    }

private:
    static void addFreeBytes()
    {
        QTest::addColumn<qint64>("freeBytes");
        QTest::newRow("nothing is free") << qint64(0);
        QTest::newRow("room for its beginning") << qint64(20);
    }

    std::unique_ptr<SetupFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_setup_full_disk)
#include "tst_setup_full_disk.moc"
