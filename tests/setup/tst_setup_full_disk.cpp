// Steps that write a file for another program, on a full disk.

#include "run/command_runner.h"
#include "setup/file_associations.h"
#include "setup/setup_fixture.h"
#include "support/full_disk.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

using namespace Nvx::Run;
using namespace Nvx::Setup;
using namespace Qt::Literals::StringLiterals;

class tst_setup_full_disk : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture = std::make_unique<SetupFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void anIncompleteBatchFileIsNotRunAndIsRemoved_data() { addFreeBytes(); }

    void anIncompleteBatchFileIsNotRunAndIsRemoved()
    {
        QFETCH(const qint64, freeBytes);
        {
            const FullDisk disk(freeBytes);
            QVERIFY(CommandRunner(m_fixture->context()).removeDirectory(u"C:\\NVX 2017\\Python\\Lib"_s));
        }
        QVERIFY(m_fixture->machine.calls.isEmpty());
        const QString batchFile = m_fixture->state.installDir + u"work.bat"_s;
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList(u"1 Unable to create %1; this folder is not removed: C:\\NVX "
                             "2017\\Python\\Lib"_s.arg(batchFile)));
        QVERIFY(!QFile::exists(batchFile));
    }

    void anIncompleteRegistryScriptIsNotImportedAndIsRemoved_data() { addFreeBytes(); }

    void anIncompleteRegistryScriptIsNotImportedAndIsRemoved()
    {
        QFETCH(const qint64, freeBytes);
        m_fixture->state.installDirEscaped = u"C:\\\\NVX"_s;
        const RecordedDiagnostics diagnostics;
        {
            const FullDisk disk(freeBytes);
            QCOMPARE(createFileAssociations(m_fixture->context(), RunMode::Install), 0);
        }
        QVERIFY(m_fixture->machine.calls.isEmpty());
        const QString script = m_fixture->installed("FileAssociations.reg");
        QCOMPARE(m_fixture->reporter.lines.mid(2), QStringList());
        QCOMPARE(diagnostics.list(), QStringList(2, u"Unable to create "_s + script));
        QVERIFY(!QFile::exists(script));
    }

private:
    static void addFreeBytes()
    {
        QTest::addColumn<qint64>("freeBytes");
        QTest::newRow("no space") << qint64(0);
        QTest::newRow("space for a part of the file") << qint64(20);
    }

    std::unique_ptr<SetupFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_setup_full_disk)
#include "tst_setup_full_disk.moc"
