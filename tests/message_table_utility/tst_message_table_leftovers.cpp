// Tables of which not everything was understood.

#include "support/test_class.h"
#include "utility_fixture.h"

#include <QComboBox>
#include <QPlainTextEdit>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray messageWith(const QByteArray &tag, const QByteArray &element)
{
    return "<message severity=\"Critical\">\n<key><process>client</process><context>A::run</context><tag>" +
           tag + "</tag></key>\n<" + element + ">Text</" + element + ">\n</message>\n";
}

/// A table with a misspelt element in the first of three messages.
QByteArray misspeltTable()
{
    return "<messageTable>\n" + messageWith("One", "txet") + messageWith("Two", "text") +
           messageWith("Three", "text") + "</messageTable>\n";
}

/// Opens a table with that contents.
void prepare(UtilityFixture &f, const QByteArray &contents)
{
    if (!writeBytes(f.otherFile, contents) || !f.window.openFile(f.otherFile))
        qFatal("cannot prepare");
}

} // namespace

class tst_message_table_leftovers : public QObject
{
    Q_OBJECT

private slots:
    void openingShowsWhatSavingWouldDrop()
    {
        UtilityFixture f;
        prepare(f, misspeltTable());
        QCOMPARE(f.dialogs.warnings.size(), 1);
        QCOMPARE(f.dialogs.warnings.first().title, u"Open Message Table"_s);
        QCOMPARE(f.dialogs.warnings.first().text,
                 u"%1\n\nNot everything in the file was understood. Saving the table drops these parts: 4\n"
                 "Line 4: <txet> is not kept\n"
                 "Line 4: \"Text\" is not kept\n"
                 "Line 6: <message> is not kept\n"
                 "Line 10: <message> is not kept"_s.arg(f.window.fileName()));
    }

    void listIsCutAfterTenParts()
    {
        UtilityFixture f;
        prepare(f, "<messageTable>\n" + QByteArray("<!-- a -->\n").repeated(12) + "</messageTable>\n");
        const QString text = f.dialogs.warnings.value(0).text;
        QVERIFY2(text.contains(u"parts: 12\n"_s) &&
                     text.endsWith(u"Line 11: <!-- --> is not kept\n... and 2 more"_s),
                 qPrintable(text));
    }

    void tableThatWasUnderstoodIsSavedWithoutAQuestion()
    {
        UtilityFixture f;
        QVERIFY(f.window.openFile(f.tableFile));
        QVERIFY(f.dialogs.warnings.isEmpty());
        QVERIFY(f.window.save());
        QVERIFY(f.dialogs.confirmations.isEmpty());
        QVERIFY(!QFile::exists(f.tableFile + u".before"_s));
    }

    void savingAsksFirst()
    {
        UtilityFixture f;
        prepare(f, misspeltTable());
        QVERIFY(!f.window.save());
        QCOMPARE(f.dialogs.confirmations.size(), 1);
        QCOMPARE(f.dialogs.confirmations.first().title, u"Save Message Table"_s);
        QCOMPARE(
            f.dialogs.confirmations.first().text,
            u"Saving drops the parts of other.xml that were not understood (4). The old file is kept next to "
            "it.\n\nSave the table anyway?"_s);
        QCOMPARE(fileBytes(f.otherFile), misspeltTable());
        QVERIFY(!QFile::exists(f.otherFile + u".before"_s));
    }

    void everythingThatSavingLosesIsOneQuestion()
    {
        UtilityFixture f;
        f.dialogs.isConfirmed = true;
        prepare(f, misspeltTable() + "<!-- by another program -->");
        f.view()->selectRow(0);
        f.child<QPlainTextEdit>("titleField")->setPlainText(u"Title"_s);
        auto *severity = f.child<QComboBox>("severityChoice");
        severity->setCurrentText(u"Warning"_s);
        emit severity->activated(severity->currentIndex());
        QVERIFY(writeBytes(f.otherFile, misspeltTable()));
        QVERIFY(f.window.save());
        QCOMPARE(f.dialogs.confirmations.size(), 1);
        QCOMPARE(
            f.dialogs.confirmations.first().text,
            u"%1 was changed by another program.\n\n"
            "Messages with a title or an action that is not saved with their severity: 1\n\n"
            "Saving drops the parts of other.xml that were not understood (5). The old file is kept next to "
            "it.\n\nSave the table anyway?"_s.arg(f.window.fileName()));
    }

    void savingKeepsTheOldFileAndAsksOnce()
    {
        UtilityFixture f;
        f.dialogs.isConfirmed = true;
        prepare(f, misspeltTable());
        QVERIFY(f.window.save());
        QCOMPARE(f.status(),
                 u"Table saved   "
                 "Parts of the file were dropped; the previous file is kept as other.xml.before"_s);
        QCOMPARE(fileBytes(f.otherFile + u".before"_s), misspeltTable());
        QVERIFY(f.window.save());
        QCOMPARE(f.dialogs.confirmations.size(), 1);
        QCOMPARE(f.status(), u"Table saved"_s);
    }

    void savingElsewhereDoesNotAsk()
    {
        UtilityFixture f;
        prepare(f, misspeltTable());
        f.dialogs.fileToChoose = f.folder.path(u"third.xml"_s);
        QVERIFY(f.window.saveAs());
        QVERIFY(f.dialogs.confirmations.isEmpty());
        QCOMPARE(fileBytes(f.otherFile), misspeltTable());
    }

    void tableWithTheMarksOfAMergeIsNotOpened()
    {
        UtilityFixture f;
        QVERIFY(
            writeBytes(f.otherFile, "<messageTable>\n<<<<<<< HEAD\n=======\n>>>>>>> b\n</messageTable>\n"));
        QVERIFY(!f.window.openFile(f.otherFile));
        const QString text = f.dialogs.warnings.value(0).text;
        QVERIFY2(text.endsWith(u"Line 2: The marks of an unfinished merge"_s), qPrintable(text));
    }
};

NVX_TEST(tst_message_table_leftovers)
#include "tst_message_table_leftovers.moc"
