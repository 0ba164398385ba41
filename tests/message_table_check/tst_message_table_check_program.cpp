#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/program_run.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QJsonDocument>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// The real program with its output in pipes.
class tst_message_table_check_program : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        QVERIFY(writeBytes(m_folder->path(u"good.xml"_s), "<messageTable/>"));
        QVERIFY(writeBytes(m_folder->path(QString::fromUtf8("gr\xC3\xB6\xC3\x9F"
                                                            "e.xml")),
                           "<messageTable>\n<message severity=\"Status\"><key><process>p</process>"
                           "<context>c</context><tag>t</tag></key><text>x</text><state>New</state>"
                           "</message></messageTable>"));
        QVERIFY(writeBytes(m_folder->path(u"broken.xml"_s), "<messageTable>"));
    }

    void cleanFilesExitWithZero()
    {
        run({u"good.xml"_s});
        QCOMPARE(m_run.exitCode, 0);
        QCOMPARE(m_run.output, QString());
        QCOMPARE(m_run.errors, QString());
    }

    void findingsExitWithOne()
    {
        const QString name = QString::fromUtf8("gr\xC3\xB6\xC3\x9F"
                                               "e.xml");
        run({u"--status"_s, u"good.xml"_s, name});
        QCOMPARE(m_run.exitCode, 1);
        QCOMPARE(m_run.output, name + u":2: (p, c, t): not reviewed yet [new]\n"_s);
        QCOMPARE(m_run.errors, u"good.xml: 0 messages, 0 new, 0 obsolete, 0 incomplete\n"_s + name +
                                   u": 1 messages, 1 new, 0 obsolete, 0 incomplete\n"_s);
    }

    void unusableFilesExitWithTwoAfterTheOthersAreChecked()
    {
        const QString name = QString::fromUtf8("gr\xC3\xB6\xC3\x9F"
                                               "e.xml");
        run({u"broken.xml"_s, u"missing.xml"_s, name});
        QCOMPARE(m_run.exitCode, 2);
        QVERIFY(m_run.output.startsWith(name));
        QVERIFY2(m_run.errors.startsWith(u"broken.xml: line 1: "_s), qPrintable(m_run.errors));
        QVERIFY2(m_run.errors.contains(u"\nmissing.xml: "_s), qPrintable(m_run.errors));
    }

    void wrongArgumentsExitWithTwo()
    {
        run({u"--only"_s, u"old"_s, u"good.xml"_s});
        QCOMPARE(m_run.exitCode, 2);
        QCOMPARE(m_run.output, QString());
        QCOMPARE(m_run.errors,
                 u"There is no rule 'old'.\nMessageTableCheck --help explains the options.\n"_s);
    }

    void reportIsWrittenIntoAFile()
    {
        run({u"--format"_s, u"sarif"_s, u"-o"_s, u"out.sarif"_s, u"good.xml"_s});
        QCOMPARE(m_run.exitCode, 0);
        QCOMPARE(m_run.output, QString());
        const QByteArray report = readFile(m_folder->path(u"out.sarif"_s));
        QCOMPARE(QJsonDocument::fromJson(report)[u"version"].toString(), u"2.1.0"_s);
    }

    void reportThatCannotBeWrittenExitsWithTwo()
    {
        run({u"-o"_s, u"missing/out.txt"_s, u"good.xml"_s});
        QCOMPARE(m_run.exitCode, 2);
        QCOMPARE(m_run.errors, u"missing/out.txt: could not be written\n"_s);
    }

    void helpExitsWithZero()
    {
        run({u"--help"_s});
        QCOMPARE(m_run.exitCode, 0);
        QVERIFY(m_run.output.startsWith(u"Usage: "_s));
        QVERIFY(m_run.output.contains(u"\nRules:\n  new "_s));
    }

private:
    void run(const QStringList &arguments)
    {
        m_run = runToEnd(inCheckout(MESSAGE_TABLE_CHECK), arguments, m_folder->path());
    }

    std::unique_ptr<TestFolder> m_folder;
    ProgramRun m_run;
};

NVX_GUILESS_TEST(tst_message_table_check_program)
#include "tst_message_table_check_program.moc"
