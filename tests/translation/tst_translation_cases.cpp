#include "support/case_folders.h"
#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "translation_case.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_translation_cases : public QObject
{
    Q_OBJECT

private slots:
    void filesReadAndWriteAsExpected_data() { addCaseRows(inCheckout(CASES_FOLDER)); }

    void filesReadAndWriteAsExpected()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        const TranslationCase result = runTranslationCase(folder, work.path());
        QCOMPARE(QString::fromUtf8(result.report),
                 QString::fromUtf8(fileLines(folder + u"/expected.txt"_s).value_or("missing")));
        QCOMPARE(QString::fromUtf8(result.saved.value_or("missing")),
                 QString::fromUtf8(fileLines(folder + u"/expected.ts"_s).value_or("missing")));
        QCOMPARE(result.damaged, fileBytes(folder + u"/expected.damaged"_s));
    }

    // Loading and saving a file that we wrote does not change it.
    void writtenFilesAreSavedUnchanged_data() { addCaseRows(inCheckout(CASES_FOLDER)); }

    void writtenFilesAreSavedUnchanged()
    {
        QFETCH(const QString, folder);
        const std::optional<QByteArray> written = fileBytes(folder + u"/expected.ts"_s);
        QVERIFY(written);
        const TestFolder again;
        QVERIFY(writeBytes(again.path(u"table.ts"_s), *written));
        const TestFolder work;
        const TranslationCase result = runTranslationCase(again.path(), work.path());
        QCOMPARE(result.report, QByteArray("loaded\n"));
        QCOMPARE(result.saved, fileLines(folder + u"/expected.ts"_s));
    }

    void updatingAgainAddsNothing_data()
    {
        addCaseRows(inCheckout(CASES_FOLDER), [](const QDir &folder) {
            return fileLines(folder.filePath(u"expected.txt"_s)).value_or(QByteArray()).endsWith("done\n");
        });
    }

    void updatingAgainAddsNothing()
    {
        QFETCH(const QString, folder);
        const TestFolder again;
        QVERIFY(QFile::copy(folder + u"/messages.xml"_s, again.path(u"messages.xml"_s)));
        QVERIFY(QFile::copy(folder + u"/expected.ts"_s, again.path(u"table.ts"_s)));
        const TestFolder work;
        const TranslationCase result = runTranslationCase(again.path(), work.path());
        QVERIFY(result.report.contains("\nAdded 0 new strings to the translation table\ndone\n"));
        QCOMPARE(result.saved, fileLines(folder + u"/expected.ts"_s));
        QVERIFY(!result.damaged);
    }

    // Without the folder of the cases, the tests above would have no rows.
    void thereAreCases()
    {
        const QDir cases(inCheckout(CASES_FOLDER));
        QVERIFY(cases.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() >= 40);
    }
};

NVX_GUILESS_TEST(tst_translation_cases)
#include "tst_translation_cases.moc"
