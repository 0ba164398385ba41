#include "support/test_class.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_test_program : public QObject
{
    Q_OBJECT

private slots:
    void withoutAKnownNameTheClassesAreListed_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("no name") << QStringList();
        QTest::newRow("another program's class") << QStringList(u"tst_creo_names"_s);
        QTest::newRow("a part of a name") << QStringList(u"tst_test"_s);
    }

    void withoutAKnownNameTheClassesAreListed()
    {
        QFETCH(const QStringList, arguments);
        run(arguments);
        QCOMPARE(m_exitCode, 2);
        QVERIFY(m_errors.contains("  tst_assertion"));
        QVERIFY(m_errors.contains("  tst_test_program"));
        QVERIFY(!m_errors.contains("tst_creo_names"));
        QCOMPARE(m_output, QByteArray());
    }

    void theClassGetsTheRemainingArguments()
    {
        run({u"tst_test_program"_s, u"-functions"_s});
        QCOMPARE(m_exitCode, 0);
        QVERIFY(m_output.contains("theClassGetsTheRemainingArguments()"));
        run({u"tst_test_program"_s, u"noSuchFunction"_s});
        QCOMPARE(m_exitCode, 1);
    }

private:
    void run(const QStringList &arguments)
    {
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(), arguments);
        QVERIFY(program.waitForFinished());
        m_exitCode = program.exitCode();
        m_output = program.readAllStandardOutput();
        m_errors = program.readAllStandardError();
    }

    int m_exitCode = -1;
    QByteArray m_output;
    QByteArray m_errors;
};

NVX_GUILESS_TEST(tst_test_program)

#include "tst_test_program.moc"
