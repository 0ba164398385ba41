// Files named on the command line that never end, or are not files.

#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/odd_files.h"
#include "support/program_run.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QFileInfo>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_update_error_table_odd_files : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(writeBytes(m_folder.path(u"p.vcxproj"_s), "<Project/>"));
        QVERIFY(writeBytes(m_folder.path(u"t.xml"_s), "<messageTable/>"));
        QVERIFY(addIrregularFiles(m_folder.path()));
    }

    void fileThatIsNotRegularIsRefusedAtOnce_data() { addIrregularFileRows(m_folder.path()); }

    void fileThatIsNotRegularIsRefusedAtOnce()
    {
        QFETCH(const QString, file);
        QFETCH(const QString, reason);
        const QString error = u"%1: %2\n"_s.arg(file, reason);
        const QString loading =
            u"Loading message table \"%1\"...\nCould not load message table\n"_s.arg(file);
        run({u"-sync"_s, file, u"p.vcxproj"_s});
        QCOMPARE(m_run.exitCode, 1);
        QCOMPARE(m_run.output, loading);
        QCOMPARE(m_run.errors, error);

        run({u"-tr"_s, file, u"a.ts"_s});
        QCOMPARE(m_run.exitCode, 1);
        QCOMPARE(m_run.output, loading);
        QCOMPARE(m_run.errors, error);

        run({u"-tr"_s, u"t.xml"_s, file});
        QCOMPARE(m_run.exitCode, 1);
        QVERIFY2(m_run.output.endsWith(u"Could not save translation table\n"_s), qPrintable(m_run.output));
        QCOMPARE(m_run.errors, error);
        QVERIFY(!QFileInfo(QDir(m_folder.path()).filePath(file)).isFile());

        run({u"-sync"_s, u"t.xml"_s, file});
        QCOMPARE(m_run.exitCode, 1);
        QVERIFY2(m_run.output.endsWith(u"Could not parse \"%1\"\n"_s.arg(file)), qPrintable(m_run.output));
    }

private:
    void run(const QStringList &arguments)
    {
        m_run = runToEnd(inCheckout(UPDATE_ERROR_TABLE), arguments, m_folder.path());
    }

    TestFolder m_folder;
    ProgramRun m_run;
};

NVX_GUILESS_TEST(tst_update_error_table_odd_files)

#include "tst_update_error_table_odd_files.moc"
