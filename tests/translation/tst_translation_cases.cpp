#include "support/case_folders.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "translation_case.h"

#include <QTest>

class tst_translation_cases : public QObject
{
    Q_OBJECT

private slots:
    void filesReadAndWriteAsExpected_data() { addCaseRows(QStringLiteral(CASES_FOLDER)); }

    void filesReadAndWriteAsExpected()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        const TranslationCase result = runTranslationCase(folder, work.path());
        QCOMPARE(QString::fromUtf8(result.told),
                 QString::fromUtf8(fileLines(folder + QStringLiteral("/expected.txt")).value_or("missing")));
        QCOMPARE(QString::fromUtf8(result.saved.value_or("missing")),
                 QString::fromUtf8(fileLines(folder + QStringLiteral("/expected.ts")).value_or("missing")));
        QCOMPARE(result.damaged, fileBytes(folder + QStringLiteral("/expected.damaged")));
    }

    // What is written is read as it was, whatever the file was like at first.
    void filesWrittenAreWrittenAgainTheSame_data() { addCaseRows(QStringLiteral(CASES_FOLDER)); }

    void filesWrittenAreWrittenAgainTheSame()
    {
        QFETCH(const QString, folder);
        const std::optional<QByteArray> written = fileBytes(folder + QStringLiteral("/expected.ts"));
        QVERIFY(written);
        const TestFolder again;
        QVERIFY(writeBytes(again.path(QStringLiteral("table.ts")), *written));
        const TestFolder work;
        const TranslationCase result = runTranslationCase(again.path(), work.path());
        QCOMPARE(result.told, QByteArray("loaded\n"));
        QCOMPARE(result.saved, fileLines(folder + QStringLiteral("/expected.ts")));
    }

    void updatingAgainAddsNothing_data()
    {
        addCaseRows(QStringLiteral(CASES_FOLDER), [](const QDir &folder) {
            return fileLines(folder.filePath(QStringLiteral("expected.txt")))
                .value_or(QByteArray())
                .endsWith("done\n");
        });
    }

    void updatingAgainAddsNothing()
    {
        QFETCH(const QString, folder);
        const TestFolder again;
        QVERIFY(QFile::copy(folder + QStringLiteral("/messages.xml"),
                            again.path(QStringLiteral("messages.xml"))));
        QVERIFY(QFile::copy(folder + QStringLiteral("/expected.ts"), again.path(QStringLiteral("table.ts"))));
        const TestFolder work;
        const TranslationCase result = runTranslationCase(again.path(), work.path());
        QVERIFY(result.told.contains("\nAdded 0 new strings to the translation table\ndone\n"));
        QCOMPARE(result.saved, fileLines(folder + QStringLiteral("/expected.ts")));
        QVERIFY(!result.damaged);
    }

    // A folder of cases that is not found must not pass as no cases at all.
    void thereAreCases()
    {
        const QDir cases(QStringLiteral(CASES_FOLDER));
        QVERIFY(cases.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() >= 40);
    }
};

NVX_GUILESS_TEST(tst_translation_cases)
#include "tst_translation_cases.moc"
