#include "line_window.h"
#include "support/test_class.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Longer than the watch waits for a file to be complete.
constexpr int longEnough = 1500;

/// Replaces the file by another one with these lines, as a program does that replaces it whole.
void replace(const QString &file, const QByteArray &lines)
{
    const QString next = file + u".next"_s;
    QFile::remove(next);
    if (!writeBytes(next, lines) || !QFile::remove(file) || !QFile::rename(next, file))
        qFatal("cannot replace the file");
}

} // namespace

/// A file that is changed by another program while a window shows it.
class tst_file_watch : public QObject
{
    Q_OBJECT

private slots:
    void changedFileIsLoadedAgainIfTheUserWants()
    {
        LineWindowFixture f;
        QVERIFY(f.window.openFile(f.file));
        f.dialogs.isConfirmed = true;
        QVERIFY(writeBytes(f.file, "one\ntwo\nthree"));
        QTRY_COMPARE(f.rowCount(), 3);
        QCOMPARE(f.dialogs.confirmations.size(), 1);
        QCOMPARE(f.dialogs.confirmations.first().title, u"Open Lines"_s);
        QCOMPARE(f.dialogs.confirmations.first().text,
                 f.file + u" was changed by another program. Load it again?"_s);
        QVERIFY(!f.window.hasUnsavedChanges());
    }

    void refusedFileIsNotOfferedAgainAndCountsAsUnsaved()
    {
        LineWindowFixture f;
        QVERIFY(f.window.openFile(f.file));
        QVERIFY(writeBytes(f.file, "one\ntwo\nthree"));
        QTRY_COMPARE(f.dialogs.confirmations.size(), 1);
        QTest::qWait(longEnough);
        QCOMPARE(f.dialogs.confirmations.size(), 1);
        QCOMPARE(f.rowCount(), 2);
        QVERIFY(f.window.hasUnsavedChanges());
        QVERIFY(f.window.save());
        QCOMPARE(f.dialogs.confirmations.size(), 1);
        QCOMPARE(readFile(f.file), QByteArray("one\ntwo"));
    }

    void questionSaysThatUnsavedChangesWouldBeLost()
    {
        LineWindowFixture f;
        QVERIFY(f.window.openFile(f.file));
        f.window.addLine("mine");
        QVERIFY(writeBytes(f.file, "one\ntwo\nthree"));
        QTRY_COMPARE(f.dialogs.confirmations.size(), 1);
        QVERIFY(f.dialogs.confirmations.first().text.endsWith(u"\n\nYour unsaved changes will be lost."_s));
        QCOMPARE(f.window.lines().size(), 3);
        QCOMPARE(f.window.lines().last(), QByteArray("mine"));
    }

    void fileThatIsReplacedTwiceIsOfferedTwice()
    {
        LineWindowFixture f;
        QVERIFY(f.window.openFile(f.file));
        f.dialogs.isConfirmed = true;
        replace(f.file, "1\n2\n3");
        QTRY_COMPARE(f.rowCount(), 3);
        replace(f.file, "1\n2\n3\n4");
        QTRY_COMPARE(f.rowCount(), 4);
        QCOMPARE(f.dialogs.confirmations.size(), 2);
    }

    void ownSavesAreNotOffered()
    {
        LineWindowFixture f;
        QVERIFY(f.window.openFile(f.file));
        f.window.addLine("three");
        QVERIFY(f.window.save());
        QTest::qWait(longEnough);
        QVERIFY(f.dialogs.confirmations.isEmpty());
    }

    void savingOverAnotherProgramsChangeAsks_data()
    {
        QTest::addColumn<bool>("isConfirmed");
        QTest::newRow("refused") << false;
        QTest::newRow("confirmed") << true;
    }

    void savingOverAnotherProgramsChangeAsks()
    {
        QFETCH(const bool, isConfirmed);
        LineWindowFixture f;
        QVERIFY(f.window.openFile(f.file));
        f.window.addLine("mine");
        QVERIFY(writeBytes(f.file, "theirs, not seen yet"));
        f.dialogs.isConfirmed = isConfirmed;
        QCOMPARE(f.window.save(), isConfirmed);
        QCOMPARE(f.dialogs.confirmations.size(), 1);
        QCOMPARE(f.dialogs.confirmations.first().text,
                 f.file + u" was changed by another program.\n\nSave the table anyway?"_s);
        QCOMPARE(readFile(f.file), isConfirmed ? "one\ntwo\nmine" : "theirs, not seen yet");
        QCOMPARE(f.window.hasUnsavedChanges(), !isConfirmed);
    }

    void fileThatDisappearedIsNoChange()
    {
        LineWindowFixture f;
        QVERIFY(f.window.openFile(f.file));
        QVERIFY(QFile::remove(f.file));
        QTest::qWait(longEnough);
        QVERIFY(f.dialogs.confirmations.isEmpty());
        QVERIFY(f.window.save());
        QVERIFY(QFile::exists(f.file));
    }

    void titleMarksUnsavedChanges()
    {
        LineWindowFixture f;
        QVERIFY(f.window.openFile(f.file));
        QCOMPARE(f.window.windowTitle(), u"Line Utility"_s);
        QVERIFY(!f.window.isWindowModified());
        f.window.addLine("three");
        QCOMPARE(f.window.windowTitle(), u"Line Utility[*]"_s);
        QVERIFY(f.window.isWindowModified());
        QVERIFY(f.window.save());
        QCOMPARE(f.window.windowTitle(), u"Line Utility"_s);
        QVERIFY(!f.window.isWindowModified());
    }
};

NVX_TEST(tst_file_watch)
#include "tst_file_watch.moc"
