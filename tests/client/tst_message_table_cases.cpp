#include "message_table_case.h"
#include "support/case_folders.h"
#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_message_table_cases : public QObject
{
    Q_OBJECT

private slots:
    void filesReadAndWriteAsExpected_data() { addCaseRows(inCheckout(CASES_FOLDER)); }

    void filesReadAndWriteAsExpected()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        const MessageTableCase result = runMessageTableCase(folder, work.path());
        QCOMPARE(QString::fromUtf8(result.lines),
                 QString::fromUtf8(fileLines(folder + u"/expected.txt"_s).value_or("missing")));
        QCOMPARE(QString::fromUtf8(result.saved),
                 QString::fromUtf8(fileLines(folder + u"/expected.xml"_s).value_or("missing")));
    }

    // A missing folder of cases must not pass as an empty one.
    void thereAreCases()
    {
        const QDir cases(inCheckout(CASES_FOLDER));
        QVERIFY(cases.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() >= 40);
    }
};

NVX_GUILESS_TEST(tst_message_table_cases)
#include "tst_message_table_cases.moc"
