// Updating a translation file from the window.

#include "support/shown_progress.h"
#include "support/test_class.h"
#include "utility_fixture.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

// Opens a table with two texts and chooses the translation file.
void prepare(UtilityFixture &f, const QByteArray &translation)
{
    Clt::MessageTable table;
    for (const char *tag : {"One", "Two"}) {
        Clt::Message message = messageOf("client", "A::run", tag);
        message.setText(u"Text %1"_s.arg(QString::fromLatin1(tag)));
        table.insert(message);
    }
    if (!table.save(f.otherFile) || !f.window.openFile(f.otherFile) ||
        !writeBytes(f.translationFile, translation))
        qFatal("cannot prepare");
    f.dialogs.fileToChoose = f.translationFile;
}

// A well-formed translation file that takes a while to read.
QByteArray largeTranslation()
{
    const QByteArray message = "<message><source>S</source><translation>T</translation></message>\n";
    return "<TS version=\"2.1\"><context><name>A</name>\n" + message.repeated(200'000) + "</context></TS>\n";
}

const QByteArray emptyTranslation = "<!DOCTYPE TS><TS version=\"2.1\" language=\"de_DE\"></TS>";

} // namespace

class tst_message_table_translation : public QObject
{
    Q_OBJECT

private slots:
    void dialogAsksForATranslationFile()
    {
        UtilityFixture f;
        f.window.newTable();
        f.action("actionTranslate")->trigger();
        QCOMPARE(f.dialogs.openQuestions.size(), 1);
        QCOMPARE(f.dialogs.openQuestions.first().title, u"Open Qt Translation File"_s);
        QCOMPARE(f.dialogs.openQuestions.first().filter, u"*.ts"_s);
    }

    void newTextsAreAdded()
    {
        UtilityFixture f;
        prepare(f, emptyTranslation);
        f.action("actionTranslate")->trigger();
        QCOMPARE(f.status(), u"Added 2 new strings to %1"_s.arg(f.translationFile));
        const QByteArray written = *fileBytes(f.translationFile);
        QVERIFY(written.contains("<source>Text One</source>"));
        QVERIFY(written.contains("<source>Text Two</source>"));
        QVERIFY(written.contains("language=\"de_DE\""));
        QVERIFY(!f.window.hasUnsavedChanges());
    }

    void textsAreAddedOnce()
    {
        UtilityFixture f;
        prepare(f, emptyTranslation);
        f.action("actionTranslate")->trigger();
        f.action("actionTranslate")->trigger();
        QCOMPARE(f.status(), u"Added 0 new strings to %1"_s.arg(f.translationFile));
    }

    void copyOfAFileWithPluralFormsIsReported()
    {
        UtilityFixture f;
        const QByteArray plural = "<TS><context><name>A</name><message numerus=\"yes\"><source>%n</source>"
                                  "<translation><numerusform>%n</numerusform></translation></message>"
                                  "</context></TS>";
        prepare(f, plural);
        f.action("actionTranslate")->trigger();
        QCOMPARE(f.status(),
                 u"Added 2 new strings to %1   "
                 "Parts of the file were dropped; the previous file is kept as client_de.ts.before"_s.arg(
                     f.translationFile));
        QCOMPARE(fileBytes(f.translationFile + u".before"_s), plural);
    }

    void fileThatCannotBeLoadedIsUnchanged_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        QTest::newRow("empty") << QByteArray() << u" at line 1"_s;
        QTest::newRow("not XML") << QByteArray("\x89PNG\r\n") << u" at line 1"_s;
        QTest::newRow("truncated") << QByteArray("<TS version=\"2.1\">\n<context>\n") << u" at line 3"_s;
    }
    void fileThatCannotBeLoadedIsUnchanged()
    {
        QFETCH(QByteArray, bytes);
        UtilityFixture f;
        prepare(f, bytes);
        f.action("actionTranslate")->trigger();
        QCOMPARE(f.dialogs.warnings.size(), 1);
        QCOMPARE(f.dialogs.warnings.first().title, u"Qt Translation File Error"_s);
        const QString text = f.dialogs.warnings.first().text;
        QVERIFY(text.startsWith(u"Could not load '%1': "_s.arg(f.translationFile)));
        QFETCH(QString, reason);
        QVERIFY2(text.endsWith(reason), qPrintable(text));
        QCOMPARE(fileBytes(f.translationFile), bytes);
    }

    void readingShowsItsProgressAndCanBeCancelled()
    {
        UtilityFixture f;
        const QByteArray translation = largeTranslation();
        prepare(f, translation);
        const ProgressCanceller canceller;
        f.action("actionTranslate")->trigger();
        QCOMPARE(canceller.title, u"Update translation"_s);
        QCOMPARE(canceller.label, u"Reading "_s + f.translationFile);
        QCOMPARE(f.status(), u"Update cancelled; the translation is unchanged"_s);
        QVERIFY(f.dialogs.warnings.isEmpty());
        QVERIFY(!f.window.isBusy());
        QVERIFY(fileBytes(f.translationFile) == translation);
    }

    void closingDuringReadingCancelsIt()
    {
        UtilityFixture f;
        const QByteArray translation = largeTranslation();
        prepare(f, translation);
        f.window.show();
        const UntilTrue close([&] { return f.window.isBusy() && !f.window.close(); });
        f.action("actionTranslate")->trigger();
        QVERIFY(close.isDone());
        QTRY_VERIFY(!f.window.isVisible());
        QVERIFY(fileBytes(f.translationFile) == translation);
    }

    void largeFileIsReadCompletely()
    {
        UtilityFixture f;
        prepare(f, largeTranslation());
        f.action("actionTranslate")->trigger();
        QCOMPARE(f.status(), u"Added 2 new strings to %1"_s.arg(f.translationFile));
        QCOMPARE(fileBytes(f.translationFile)->count("<source>S</source>"), 200'000);
    }

    void missingFileIsReported()
    {
        UtilityFixture f;
        prepare(f, emptyTranslation);
        QVERIFY(QFile::remove(f.translationFile));
        f.action("actionTranslate")->trigger();
        QCOMPARE(f.dialogs.warnings.size(), 1);
        QVERIFY(!QFile::exists(f.translationFile));
    }

    void protectedFileIsReplacedOnlyWithPermission()
    {
        UtilityFixture f;
        prepare(f, emptyTranslation);
        QVERIFY(QFile::setPermissions(f.translationFile, QFile::ReadOwner | QFile::ReadUser));
        const bool mayWrite = QFileInfo(f.translationFile).isWritable(); // root may write every file
        f.action("actionTranslate")->trigger();
        const QString outcome = mayWrite ? u"Added 2 new strings to %1"_s : u"Could not save %1"_s;
        QCOMPARE(f.status(), outcome.arg(f.translationFile));
        QCOMPARE(fileBytes(f.translationFile) == emptyTranslation, !mayWrite);
    }
};

NVX_TEST(tst_message_table_translation)
#include "tst_message_table_translation.moc"
