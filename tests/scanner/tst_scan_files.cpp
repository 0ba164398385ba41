#include "scanner/scan_files.h"
#include "scanner/source_scanner.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QLoggingCategory>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Scan;

class tst_scan_files : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        for (int i = 0; i < fileCount; ++i) {
            const QString fileName = m_folder.path(u"%1.cpp"_s.arg(i));
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
        QTest::newRow("one thread for each processor") << 0;
    }

    void resultsComeInListOrder()
    {
        QFETCH(const int, threads);
        QStringList tags;
        QList<qsizetype> indices;
        const auto receive = [&](qsizetype index, const SourceScanner &scanner) {
            indices.append(index);
            for (const Clt::MessageKey &key : scanner.keys(CallFamily::Error))
                tags.append(key.tag);
            return Continuation::Continue;
        };
        scanFiles(u"client"_s, m_fileNames, receive, threads);
        QCOMPARE(tags.size(), fileCount);
        for (int i = 0; i < fileCount; ++i) {
            QCOMPARE(indices.at(i), i);
            QCOMPARE(tags.at(i), QString::number(i));
        }
    }

    void receiverStopsTheScan()
    {
        int received = 0;
        const auto receive = [&](qsizetype, const SourceScanner &) {
            return ++received == 3 ? Continuation::Stop : Continuation::Continue;
        };
        scanFiles(u"client"_s, m_fileNames, receive, 2);
        QCOMPARE(received, 3);
    }

    void noFilesAreNotReceived()
    {
        const auto receive = [](qsizetype, const SourceScanner &) {
            qFatal("received a file of an empty list");
            return Continuation::Continue;
        };
        scanFiles(u"client"_s, {}, receive);
    }

    void keysAreCollectedByFamily()
    {
        const QString fileName = m_folder.path(u"families.txt"_s);
        QVERIFY(writeBytes(
            fileName,
            "void f() { REPORT_ERROR(\"A\"); REPORT_ERROR_WITH_ARGS(\"B\", 1); REPORT_MESSAGE(\"C\");"
            "REPORT_MESSAGE_WITH_ARG(\"D\", 1); ASK_QUESTION(\"E\", Ok, Ok);"
            "ASK_QUESTION_WITH_ARG(\"F\", Ok, Ok, 1); }"));
        SourceScanner scanner(u"client"_s, fileName);
        QVERIFY(scanner.scan());
        QVERIFY(!scanner.hasError());
        const QStringList tags = {u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E? Ok; Ok"_s, u"F? Ok; Ok"_s};
        for (int family = 0; family < tags.size(); ++family) {
            const QSet<Clt::MessageKey> expected = {{tags.at(family), u"f"_s, u"client"_s}};
            QCOMPARE(scanner.keys(static_cast<CallFamily>(family)), expected);
        }
    }

    void keyHasThePlaceOfItsFirstCall()
    {
        const QString first = m_folder.path(u"first.txt"_s);
        const QString second = m_folder.path(u"second.txt"_s);
        QVERIFY(writeBytes(first, "void f() {\n  REPORT_MESSAGE(\"A\");\n  REPORT_ERROR(\n\"B\");\n"
                                  "  REPORT_MESSAGE(\"A\");\n  REPORT_ERROR(\"A\");\n"
                                  "  REPORT_ERROR(\"D\");\n  REPORT_MESSAGE(\"D\"); }"));
        QVERIFY(writeBytes(second, "void f() { REPORT_ERROR(\"A\");\n\nASK_QUESTION(\"C\", Yes, Yes); }"));
        FoundKeys found;
        const auto receive = [&found](qsizetype, const SourceScanner &scanner) {
            addKeys(found, scanner);
            return Continuation::Continue;
        };
        scanFiles(u"client"_s, {first, second}, receive);
        QCOMPARE(placeOf(found, "A"), first + u":2"_s);
        QCOMPARE(placeOf(found, "B"), first + u":3"_s);
        QCOMPARE(placeOf(found, "C? Yes; Yes"), second + u":3"_s);
        QCOMPARE(placeOf(found, "D"), first + u":7"_s);
        QCOMPARE(found.size(), 4);
    }

    void fileThatCannotBeOpenedIsAnError()
    {
        SourceScanner scanner(u"client"_s, m_folder.path(u"no.cpp"_s));
        QVERIFY(!scanner.scan());
        QVERIFY(scanner.hasError());
        QCOMPARE(scanner.errorText(), u"Cannot open file"_s);
        QCOMPARE(scanner.openProblem(), u"the file does not exist"_s);
    }

    void foldersAndDevicesAreNotOpened_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("a folder") << u"."_s;
        // These are devices on Windows, in every folder.
        QTest::newRow("the console") << u"CON"_s;
        QTest::newRow("a file that takes everything") << u"NUL.cpp"_s;
        QTest::newRow("a serial port") << u"COM1.cpp"_s;
    }

    void foldersAndDevicesAreNotOpened()
    {
        QFETCH(const QString, name);
        SourceScanner scanner(u"client"_s, m_folder.path(name));
        QVERIFY(!scanner.scan());
        QCOMPARE(scanner.errorText(), u"Cannot open file"_s);
        QVERIFY(!scanner.openProblem().isEmpty());
    }

    void filesOfMoreThanTheLimitAreNotOpened()
    {
        const QString fileName = m_folder.path(u"large.cpp"_s);
        QFile file(fileName);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.write("void f() { REPORT_ERROR(\"A\"); }") > 0);
        QVERIFY(file.resize(qint64{64} * 1024 * 1024));
        SourceScanner scanner(u"client"_s, fileName);
        QVERIFY(scanner.scan());
        QCOMPARE(scanner.keys(CallFamily::Error).size(), 1);

        QVERIFY(file.resize(file.size() + 1));
        QVERIFY(!scanner.scan());
        QCOMPARE(scanner.errorText(), u"Cannot open file"_s);
        QCOMPARE(scanner.openProblem(), u"the file is larger than 64 MiB"_s);
        QVERIFY(scanner.keys(CallFamily::Error).isEmpty());
    }

    // On Linux this file can be opened, but not read.
    void fileThatCannotBeReadIsAnError()
    {
        SourceScanner scanner(u"client"_s, u"/proc/self/mem"_s);
        QVERIFY(!scanner.scan());
        QVERIFY2(scanner.errorText().startsWith(u"Cannot "_s), qPrintable(scanner.errorText()));
    }

    void fileWithAnErrorHasNoKeys()
    {
        const QString fileName = m_folder.path(u"error.txt"_s);
        QVERIFY(writeBytes(fileName, "void f() { REPORT_ERROR(\"A\");\nREPORT_ERROR(\"\\1\"); }"));
        SourceScanner scanner(u"client"_s, fileName);
        QVERIFY(!scanner.scan());
        QCOMPARE(scanner.errorText(), u"Tag with a character that XML cannot represent (line 2)"_s);
        QVERIFY(scanner.keys(CallFamily::Error).isEmpty());
    }

    void scanForgetsThePreviousOne()
    {
        const QString fileName = m_folder.path(u"again.txt"_s);
        SourceScanner scanner(u"client"_s, fileName);
        QVERIFY(writeBytes(fileName, "void f() { REPORT_ERROR(\"A\"); }"));
        QVERIFY(scanner.scan());
        QCOMPARE(scanner.keys(CallFamily::Error).size(), 1);

        QVERIFY(writeBytes(fileName, "void f() { REPORT_ERROR(\"\\1\"); }"));
        QVERIFY(!scanner.scan());
        QVERIFY(scanner.keys(CallFamily::Error).isEmpty());

        QVERIFY(writeBytes(fileName, "void f() { REPORT_ERROR(\"B\"); }"));
        QVERIFY(scanner.scan());
        QCOMPARE(scanner.errorText(), QString());
        const QSet<Clt::MessageKey> expected = {{u"B"_s, u"f"_s, u"client"_s}};
        QCOMPARE(scanner.keys(CallFamily::Error), expected);
    }

    void debugMessagesOfTheCategoryShowKeys()
    {
        QLoggingCategory::setFilterRules(u"nvx.scanner.debug=true"_s);
        QTest::ignoreMessage(QtDebugMsg, "LeftBrace f depth=1");
        QTest::ignoreMessage(QtDebugMsg, "Key f 1 1");
        SourceScanner scanner(u"client"_s, m_fileNames.at(1));
        const bool scanned = bool(scanner.scan());
        QLoggingCategory::setFilterRules(QString());
        QVERIFY(scanned);
    }

private:
    static QString placeOf(const FoundKeys &found, const char *tag)
    {
        const SourcePlace place = found.value({QString::fromLatin1(tag), u"f"_s, u"client"_s});
        return u"%1:%2"_s.arg(place.file, QString::number(place.line));
    }

    static constexpr int fileCount = 60;
    TestFolder m_folder;
    QStringList m_fileNames;
};

NVX_GUILESS_TEST(tst_scan_files)

#include "tst_scan_files.moc"
