#include "scanner/project_folders.h"
#include "scanner/scan_files.h"
#include "support/file_bytes.h"
#include "support/odd_files.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Scan;

/// Sources that never end or cannot be read, as a project can name them on Unix.
class tst_odd_sources : public QObject
{
    Q_OBJECT

private slots:
    void sourcesThatAreNoRegularFilesAreNotOpened_data()
    {
        QTest::addColumn<QString>("fileName");
        QTest::newRow("a device without an end") << endlessFile();
        QTest::newRow("a terminal") << u"/dev/tty"_s;
        QTest::newRow("a pipe that nobody writes to") << pipe();
        QTest::newRow("a link to a device") << linkToDevice();
    }

    void sourcesThatAreNoRegularFilesAreNotOpened()
    {
        QFETCH(const QString, fileName);
        SourceScanner scanner(u"client"_s, fileName);
        QVERIFY(!scanner.scan());
        QCOMPARE(scanner.errorText(), u"Cannot open file"_s);
        QCOMPARE(scanner.openProblem(), u"it is not a regular file"_s);
    }

    void filesAfterAPipeAreScanned()
    {
        const QString source = m_folder.path(u"a.cpp"_s);
        QVERIFY(writeBytes(source, "void f() { REPORT_ERROR(\"A\"); }"));
        QList<bool> errors;
        const auto receive = [&errors](qsizetype, const SourceScanner &scanner) {
            errors.append(scanner.hasError());
            return Continuation::Continue;
        };
        scanFiles(u"client"_s, {pipe(), source}, receive);
        QCOMPARE(errors, QList<bool>({true, false}));
    }

    void fileThatBreaksWhileItIsReadIsAnError()
    {
        SourceScanner scanner(u"client"_s, breakingFile());
        QVERIFY(!scanner.scan());
        QCOMPARE(scanner.errorText(), u"Cannot read file"_s);
        QCOMPARE(scanner.openProblem(), QString());
        QVERIFY(!NativeProjectFolders().contents(breakingFile()));
    }

    void fileThatClaimsALargerSizeIsReadToItsEnd()
    {
        const auto contents = NativeProjectFolders().contents(boastingFile());
        QVERIFY(contents);
        QVERIFY(contents->endsWith('\n'));
        QVERIFY(contents->size() < 100);
    }

    void fileWithoutASizeIsReadToItsEnd()
    {
        const auto contents = NativeProjectFolders().contents(protectedFile());
        QVERIFY(contents);
        QVERIFY(contents->startsWith("Name:"));
    }

private:
    QString pipe()
    {
        const QString path = m_folder.path(u"pipe.cpp"_s);
        return QFile::exists(path) ? path : waitingPipe(path);
    }

    QString linkToDevice()
    {
        const QString path = m_folder.path(u"link.cpp"_s);
        QFile::link(endlessFile(), path);
        return path;
    }

    TestFolder m_folder;
};

NVX_GUILESS_TEST(tst_odd_sources)

#include "tst_odd_sources.moc"
