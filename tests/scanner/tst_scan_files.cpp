#include "scanner/source_scanner.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QLoggingCategory>
#include <QTest>

using namespace Scan;

class tst_scan_files : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        for (int i = 0; i < fileCount; ++i) {
            const QString fileName = m_folder.path(QStringLiteral("%1.cpp").arg(i));
            const QByteArray filler(i % 7 == 0 ? 200'000 : 10, ' ');
            QVERIFY(writeBytes(fileName,
                               filler + "void f() { REPORT_ERROR(\"" + QByteArray::number(i) + "\"); }\n"));
            m_fileNames.append(fileName);
        }
    }

    void resultsComeInListOrder_data()
    {
        QTest::addColumn<int>("threads");
        QTest::newRow("one thread") << 1;
        QTest::newRow("two threads") << 2;
        QTest::newRow("nine threads") << 9;
        QTest::newRow("as many threads as processors") << 0;
    }

    void resultsComeInListOrder()
    {
        QFETCH(const int, threads);
        QStringList tags;
        QList<qsizetype> indices;
        const auto receive = [&](qsizetype index, const SourceScanner &scanner) {
            indices.append(index);
            for (const Clt::MessageKey &key : scanner.keys().keys(CallFamily::Error))
                tags.append(key.tag);
            return Continuation::GoOn;
        };
        scanFiles(QStringLiteral("client"), m_fileNames, receive, threads);
        QCOMPARE(tags.size(), fileCount);
        for (int i = 0; i < fileCount; ++i) {
            QCOMPARE(indices.at(i), i);
            QCOMPARE(tags.at(i), QString::number(i));
        }
    }

    void stopsWhenTheReceiverSaysSo()
    {
        int received = 0;
        const auto receive = [&](qsizetype, const SourceScanner &) {
            return ++received == 3 ? Continuation::Stop : Continuation::GoOn;
        };
        scanFiles(QStringLiteral("client"), m_fileNames, receive, 2);
        QCOMPARE(received, 3);
    }

    void noFilesGiveNothing()
    {
        const auto receive = [](qsizetype, const SourceScanner &) {
            qFatal("nothing was to be received");
            return Continuation::GoOn;
        };
        scanFiles(QStringLiteral("client"), {}, receive);
    }

    void keysAreCollectedByFamily()
    {
        const QString fileName = m_folder.path(QStringLiteral("families.txt"));
        QVERIFY(writeBytes(
            fileName,
            "void f() { REPORT_ERROR(\"A\"); REPORT_ERROR_WITH_ARGS(\"B\", 1); REPORT_MESSAGE(\"C\");"
            "REPORT_MESSAGE_WITH_ARG(\"D\", 1); ASK_QUESTION(\"E\", Ok, Ok);"
            "ASK_QUESTION_WITH_ARG(\"F\", Ok, Ok, 1); }"));
        SourceScanner scanner(QStringLiteral("client"), fileName);
        QVERIFY(scanner.scan());
        QVERIFY(!scanner.hasError());
        const QStringList tags = {QStringLiteral("A"),         QStringLiteral("B"),
                                  QStringLiteral("C"),         QStringLiteral("D"),
                                  QStringLiteral("E? Ok; Ok"), QStringLiteral("F? Ok; Ok")};
        for (int family = 0; family < tags.size(); ++family) {
            const QSet<Clt::MessageKey> expected = {
                {tags.at(family), QStringLiteral("f"), QStringLiteral("client")}};
            QCOMPARE(scanner.keys().keys(static_cast<CallFamily>(family)), expected);
        }
    }

    void aKeyHasThePlaceOfItsFirstCall()
    {
        const QString first = m_folder.path(QStringLiteral("first.txt"));
        const QString second = m_folder.path(QStringLiteral("second.txt"));
        QVERIFY(writeBytes(first, "void f() {\n  REPORT_MESSAGE(\"A\");\n  REPORT_ERROR(\n\"B\");\n"
                                  "  REPORT_MESSAGE(\"A\");\n  REPORT_ERROR(\"A\"); }"));
        QVERIFY(writeBytes(second, "void f() {\nREPORT_ERROR(\"A\");\nASK_QUESTION(\"C\", Yes, Yes); }"));
        FoundKeys found;
        const auto receive = [&found](qsizetype, const SourceScanner &scanner) {
            addKeys(found, scanner);
            return Continuation::GoOn;
        };
        scanFiles(QStringLiteral("client"), {first, second}, receive);
        QCOMPARE(placeOf(found, "A"), first + QStringLiteral(":2"));
        QCOMPARE(placeOf(found, "B"), first + QStringLiteral(":3"));
        QCOMPARE(placeOf(found, "C? Yes; Yes"), second + QStringLiteral(":3"));
        QCOMPARE(found.size(), 3);
    }

    void fileThatCannotBeOpenedIsAnError()
    {
        SourceScanner scanner(QStringLiteral("client"), m_folder.path(QStringLiteral("no.cpp")));
        QVERIFY(!scanner.scan());
        QVERIFY(scanner.hasError());
        QCOMPARE(scanner.errorText(), QStringLiteral("Cannot open file"));
    }

    // Opens and does not read, where there is such a file.
    void aFileThatFailsIsAnError()
    {
        SourceScanner scanner(QStringLiteral("client"), QStringLiteral("/proc/self/mem"));
        QVERIFY(!scanner.scan());
        QVERIFY2(scanner.errorText().startsWith(QStringLiteral("Cannot ")), qPrintable(scanner.errorText()));
    }

    void keysOfAFileWithAnErrorAreNotKept()
    {
        const QString fileName = m_folder.path(QStringLiteral("error.txt"));
        QVERIFY(writeBytes(fileName, "void f() { REPORT_ERROR(\"A\");\nREPORT_ERROR(\"\\1\"); }"));
        SourceScanner scanner(QStringLiteral("client"), fileName);
        QVERIFY(!scanner.scan());
        QCOMPARE(scanner.errorText(), QStringLiteral("Tag with a character that XML cannot carry (line 2)"));
        QVERIFY(scanner.keys().keys(CallFamily::Error).isEmpty());
    }

    void aScanKnowsNothingOfTheOneBefore()
    {
        const QString fileName = m_folder.path(QStringLiteral("again.txt"));
        SourceScanner scanner(QStringLiteral("client"), fileName);
        QVERIFY(writeBytes(fileName, "void f() { REPORT_ERROR(\"A\"); }"));
        QVERIFY(scanner.scan());
        QCOMPARE(scanner.keys().keys(CallFamily::Error).size(), 1);

        QVERIFY(writeBytes(fileName, "void f() { REPORT_ERROR(\"\\1\"); }"));
        QVERIFY(!scanner.scan());
        QVERIFY(scanner.keys().keys(CallFamily::Error).isEmpty());

        QVERIFY(writeBytes(fileName, "void f() { REPORT_ERROR(\"B\"); }"));
        QVERIFY(scanner.scan());
        QCOMPARE(scanner.errorText(), QString());
        const QSet<Clt::MessageKey> expected = {
            {QStringLiteral("B"), QStringLiteral("f"), QStringLiteral("client")}};
        QCOMPARE(scanner.keys().keys(CallFamily::Error), expected);
    }

    void debugLinesOfTheCategoryTellOfKeys()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("nvx.scanner.debug=true"));
        QTest::ignoreMessage(QtDebugMsg, "LeftBrace f depth=1");
        QTest::ignoreMessage(QtDebugMsg, "Key f 1 1");
        SourceScanner scanner(QStringLiteral("client"), m_fileNames.at(1));
        const bool scanned = scanner.scan();
        QLoggingCategory::setFilterRules(QString());
        QVERIFY(scanned);
    }

private:
    static QString placeOf(const FoundKeys &found, const char *tag)
    {
        const SourcePlace place =
            found.value({QString::fromLatin1(tag), QStringLiteral("f"), QStringLiteral("client")});
        return QStringLiteral("%1:%2").arg(place.file, QString::number(place.line));
    }

    static constexpr int fileCount = 60;
    TestFolder m_folder;
    QStringList m_fileNames;
};

NVX_GUILESS_TEST(tst_scan_files)

#include "tst_scan_files.moc"
