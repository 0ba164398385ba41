// Bringing a translation file up to date from the window.

#include "support/shown_progress.h"
#include "support/test_class.h"
#include "utility_fixture.h"

#include <QTest>

namespace {

// Opens a table with two texts and chooses the translation file.
void prepare(UtilityFixture &f, const QByteArray &translation)
{
    Clt::MessageTable table;
    for (const char *tag : {"One", "Two"}) {
        Clt::Message message = messageOf("client", "A::run", tag);
        message.setText(QStringLiteral("Text %1").arg(QString::fromLatin1(tag)));
        table.insert(message);
    }
    if (!table.save(f.otherFile) || !f.window.openFile(f.otherFile) ||
        !writeBytes(f.translationFile, translation))
        qFatal("cannot prepare");
    f.dialogs.fileToChoose = f.translationFile;
}

// A well-formed translation file that is long enough to be read for a while.
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
        QCOMPARE(f.dialogs.openQuestions.first().title, QStringLiteral("Open Qt Translation File"));
        QCOMPARE(f.dialogs.openQuestions.first().filter, QStringLiteral("*.ts"));
    }

    void newTextsAreAdded()
    {
        UtilityFixture f;
        prepare(f, emptyTranslation);
        f.action("actionTranslate")->trigger();
        QCOMPARE(f.status(), QStringLiteral("Added 2 new strings to %1").arg(f.translationFile));
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
        QCOMPARE(f.status(), QStringLiteral("Added 0 new strings to %1").arg(f.translationFile));
    }

    void theCopyOfAFileWithPluralFormsIsNamed()
    {
        UtilityFixture f;
        const QByteArray plural = "<TS><context><name>A</name><message numerus=\"yes\"><source>%n</source>"
                                  "<translation><numerusform>%n</numerusform></translation></message>"
                                  "</context></TS>";
        prepare(f, plural);
        f.action("actionTranslate")->trigger();
        QCOMPARE(
            f.status(),
            QStringLiteral(
                "Added 2 new strings to %1   Plural forms were dropped; the old file is client_de.ts.before")
                .arg(f.translationFile));
        QCOMPARE(fileBytes(f.translationFile + QStringLiteral(".before")), plural);
    }

    void fileThatCannotBeLoadedIsLeft_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason");
        QTest::newRow("empty") << QByteArray() << QStringLiteral(" at line 1");
        QTest::newRow("no XML") << QByteArray("\x89PNG\r\n") << QStringLiteral(" at line 1");
        QTest::newRow("truncated") << QByteArray("<TS version=\"2.1\">\n<context>\n")
                                   << QStringLiteral(" at line 3");
    }
    void fileThatCannotBeLoadedIsLeft()
    {
        QFETCH(QByteArray, bytes);
        UtilityFixture f;
        prepare(f, bytes);
        f.action("actionTranslate")->trigger();
        QCOMPARE(f.dialogs.warnings.size(), 1);
        QCOMPARE(f.dialogs.warnings.first().title, QStringLiteral("Qt Translation File Error"));
        const QString text = f.dialogs.warnings.first().text;
        QVERIFY(text.startsWith(QStringLiteral("Could not load '%1': ").arg(f.translationFile)));
        QFETCH(QString, reason);
        QVERIFY2(text.endsWith(reason), qPrintable(text));
        QCOMPARE(fileBytes(f.translationFile), bytes);
    }

    void readingShowsItsProgressAndIsCancelled()
    {
        UtilityFixture f;
        const QByteArray translation = largeTranslation();
        prepare(f, translation);
        const ProgressCanceller canceller;
        f.action("actionTranslate")->trigger();
        QCOMPARE(canceller.title, QStringLiteral("Update translation"));
        QCOMPARE(canceller.label, QStringLiteral("Reading ") + f.translationFile);
        QCOMPARE(f.status(), QStringLiteral("Update cancelled, the translation is as it was"));
        QVERIFY(f.dialogs.warnings.isEmpty());
        QVERIFY(!f.window.isBusy());
        QVERIFY(fileBytes(f.translationFile) == translation);
    }

    void closingDuringReadingEndsIt()
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

    void largeFileIsReadToItsEnd()
    {
        UtilityFixture f;
        prepare(f, largeTranslation());
        f.action("actionTranslate")->trigger();
        QCOMPARE(f.status(), QStringLiteral("Added 2 new strings to %1").arg(f.translationFile));
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

    void aProtectedFileIsReplacedByThoseOnlyWhoMay()
    {
        UtilityFixture f;
        prepare(f, emptyTranslation);
        QVERIFY(QFile::setPermissions(f.translationFile, QFile::ReadOwner | QFile::ReadUser));
        const bool mayWrite = QFileInfo(f.translationFile).isWritable(); // the superuser writes every file
        f.action("actionTranslate")->trigger();
        const QString outcome =
            mayWrite ? QStringLiteral("Added 2 new strings to %1") : QStringLiteral("Could not save %1");
        QCOMPARE(f.status(), outcome.arg(f.translationFile));
        QCOMPARE(fileBytes(f.translationFile) == emptyTranslation, !mayWrite);
    }
};

NVX_TEST(tst_message_table_translation)
#include "tst_message_table_translation.moc"
