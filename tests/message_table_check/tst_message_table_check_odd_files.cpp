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

class tst_message_table_check_odd_files : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(writeBytes(m_folder.path(u"good.ts"_s), "<TS version=\"2.1\" language=\"de_DE\"/>"));
        QVERIFY(addIrregularFiles(m_folder.path()));
    }

    void fileThatIsNotRegularIsRefusedAtOnce_data() { addIrregularFileRows(m_folder.path()); }

    void fileThatIsNotRegularIsRefusedAtOnce()
    {
        QFETCH(const QString, file);
        QFETCH(const QString, reason);
        const QString error = u"%1: %2\n"_s.arg(file, reason);
        const QList<QStringList> calls = {
            {file},
            {u"--for-qt6"_s, file, u"out.ts"_s},
            {u"--for-qt6"_s, file, u"out.xlf"_s},
            {u"--from-qt6"_s, file, u"good.ts"_s},
            {u"--from-qt6"_s, u"good.ts"_s, file},
        };
        for (const QStringList &arguments : calls) {
            run(arguments);
            QCOMPARE(m_run.exitCode, 2);
            QCOMPARE(m_run.errors, error);
        }
        QVERIFY(!QFileInfo::exists(m_folder.path(u"out.ts"_s)));
        QVERIFY(!QFileInfo::exists(m_folder.path(u"out.xlf"_s)));
    }

    void nothingButARegularFileIsReplaced_data() { fileThatIsNotRegularIsRefusedAtOnce_data(); }

    void nothingButARegularFileIsReplaced()
    {
        QFETCH(const QString, file);
        run({u"-o"_s, file, u"good.ts"_s});
        QCOMPARE(m_run.exitCode, 2);
        QCOMPARE(m_run.errors, u"%1: could not be written\n"_s.arg(file));
        QVERIFY(!QFileInfo(QDir(m_folder.path()).filePath(file)).isFile());
    }

    void outputOfAProgramMustBeInAFile()
    {
        const ProgramRun run =
            runToEnd(u"bash"_s, {u"-c"_s, u"\"$0\" <(cat good.ts)"_s, inCheckout(MESSAGE_TABLE_CHECK)},
                     m_folder.path());
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.errors.endsWith(u": it is not a regular file\n"_s), qPrintable(run.errors));
    }

private:
    void run(const QStringList &arguments)
    {
        m_run = runToEnd(inCheckout(MESSAGE_TABLE_CHECK), arguments, m_folder.path());
    }

    TestFolder m_folder;
    ProgramRun m_run;
};

NVX_GUILESS_TEST(tst_message_table_check_odd_files)
#include "tst_message_table_check_odd_files.moc"
