#include "line_window.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Window::UnsavedChoice;

class tst_table_window : public QObject
{
    Q_OBJECT

private slots:
    void atStartUpOnlyNewOpenAndExitAreEnabled();
    void newTableEnablesAllActions();
    void openedFileIsShownAndItsFolderStored();
    void cancelledDialogChangesNothing();
    void failedOpeningPreservesTheTable();
    void cancelledLoadingPreservesTheTable();
    void nextDialogStartsInTheFolderOfAFailedFile();
    void saveDialogStartsInTheFolderOfTheFileUsedLast();
    void savingAsksForANameOnlyOnce();
    void saveIsDisabledUntilTheTableChanges();
    void tableRemainsUnsavedAfterAFailedSave();
    void userIsAskedAboutUnsavedChanges_data();
    void userIsAskedAboutUnsavedChanges();
    void windowRemainsOpenAfterAFailedSave();
};

void tst_table_window::atStartUpOnlyNewOpenAndExitAreEnabled()
{
    LineWindowFixture f;
    QVERIFY(f.areTableActionsEnabled(false, {"actionNumber"}));
    QVERIFY(!f.filter()->isEnabled());
    QVERIFY(!f.recentFiles()->isEnabled());
}

void tst_table_window::newTableEnablesAllActions()
{
    LineWindowFixture f;
    f.window.newTable();
    QVERIFY(f.areTableActionsEnabled(true, {"actionNumber"}));
    QVERIFY(f.filter()->isEnabled());
    QVERIFY(!f.window.hasUnsavedChanges());
    QCOMPARE(f.status(), u"Created"_s);
    QCOMPARE(f.window.statusBar()->toolTip(), u"Created"_s);
    QCOMPARE(f.place(), u"Untitled   Rows: 0"_s);
}

void tst_table_window::openedFileIsShownAndItsFolderStored()
{
    LineWindowFixture f;
    f.dialogs.fileToChoose = f.file;
    f.action("actionOpen")->trigger();
    QCOMPARE(f.dialogs.openQuestions.size(), 1);
    QCOMPARE(f.dialogs.openQuestions.first().title, u"Open Lines"_s);
    QCOMPARE(f.dialogs.openQuestions.first().filter, u"*.txt"_s);
    QCOMPARE(f.dialogs.openQuestions.first().folder, QString());
    QCOMPARE(f.window.fileName(), f.file);
    QCOMPARE(f.status(), u"Opened %1"_s.arg(f.file));
    QCOMPARE(f.rowCount(), 2);
    QCOMPARE(f.place(), u"lines.txt   Rows: 2"_s);
    QVERIFY(f.isEnabled("actionSave"));
    QVERIFY(f.isEnabled("actionNumber"));

    f.action("actionOpen")->trigger();
    QCOMPARE(f.dialogs.openQuestions.last().folder, f.folder.path());
}

void tst_table_window::cancelledDialogChangesNothing()
{
    LineWindowFixture f;
    QVERIFY(f.window.openFile(f.file));
    f.dialogs.fileToChoose.clear();
    f.window.open();
    QVERIFY(!f.window.saveAs());
    QCOMPARE(f.window.fileName(), f.file);
    QCOMPARE(f.rowCount(), 2);
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_table_window::failedOpeningPreservesTheTable()
{
    LineWindowFixture f;
    QVERIFY(f.window.openFile(f.file));
    QVERIFY(!f.window.openFile(f.otherFile));
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, u"Open Lines"_s);
    QCOMPARE(f.dialogs.warnings.first().text, u"Could not load lines\n\n%1\nno such file"_s.arg(f.otherFile));
    QCOMPARE(f.window.fileName(), f.file);
    QCOMPARE(f.rowCount(), 2);
}

void tst_table_window::cancelledLoadingPreservesTheTable()
{
    LineWindowFixture f;
    QVERIFY(f.window.openFile(f.file));
    QVERIFY(writeBytes(f.otherFile, ""));
    QVERIFY(!f.window.openFile(f.otherFile));
    QVERIFY(f.dialogs.warnings.isEmpty());
    QCOMPARE(f.window.fileName(), f.file);
    QCOMPARE(f.rowCount(), 2);
}

void tst_table_window::nextDialogStartsInTheFolderOfAFailedFile()
{
    LineWindowFixture f;
    QVERIFY(f.window.openFile(f.file));
    QVERIFY(QDir().mkpath(f.folder.path(u"read/lines"_s)));
    f.dialogs.fileToChoose = f.folder.path(u"read/missing.txt"_s);
    f.window.open();
    QCOMPARE(f.dialogs.warnings.size(), 1);

    f.dialogs.fileToChoose = f.folder.path(u"read/lines"_s); // a folder cannot be written
    QVERIFY(!f.window.saveAs());
    QCOMPARE(f.dialogs.saveQuestions.last().folder, f.folder.path(u"read"_s));
    QCOMPARE(f.dialogs.warnings.size(), 2);

    f.dialogs.fileToChoose = f.folder.path(u"no such folder/lines.txt"_s);
    QVERIFY(!f.window.saveAs());
    f.window.open();
    QCOMPARE(f.dialogs.openQuestions.last().folder, f.folder.path(u"no such folder"_s));
}

void tst_table_window::saveDialogStartsInTheFolderOfTheFileUsedLast()
{
    LineWindowFixture f;
    f.window.newTable();
    f.window.saveAs();
    QCOMPARE(f.dialogs.saveQuestions.last().folder, QString());
    QVERIFY(f.window.openFile(f.file));
    f.window.saveAs();
    QCOMPARE(f.dialogs.saveQuestions.last().folder, f.folder.path());

    f.window.newTable();
    QVERIFY(QDir().mkpath(f.folder.path(u"written"_s)));
    f.dialogs.fileToChoose = f.folder.path(u"written/lines.txt"_s);
    QVERIFY(f.window.saveAs());
    f.window.newTable();
    f.dialogs.fileToChoose.clear();
    QVERIFY(!f.window.save());
    QCOMPARE(f.dialogs.saveQuestions.last().folder, f.folder.path(u"written"_s));
}

void tst_table_window::savingAsksForANameOnlyOnce()
{
    LineWindowFixture f;
    f.window.newTable();
    f.window.addLine("new");
    f.dialogs.fileToChoose = f.otherFile;
    f.action("actionSave")->trigger();
    QCOMPARE(f.dialogs.saveQuestions.size(), 1);
    QCOMPARE(f.dialogs.saveQuestions.first().title, u"Save Lines"_s);
    QCOMPARE(f.dialogs.saveQuestions.first().filter, u"*.txt"_s);
    QCOMPARE(f.status(), u"Saved"_s);
    QCOMPARE(f.window.fileName(), f.otherFile);
    QCOMPARE(fileBytes(f.otherFile), QByteArray("new"));

    f.window.addLine("newer");
    f.action("actionSave")->trigger();
    QCOMPARE(f.dialogs.saveQuestions.size(), 1);
    QCOMPARE(f.status(), u"Saved"_s);
    QCOMPARE(fileBytes(f.otherFile), QByteArray("new\nnewer"));
}

void tst_table_window::saveIsDisabledUntilTheTableChanges()
{
    LineWindowFixture f;
    QVERIFY(f.window.openFile(f.file));
    QVERIFY(f.window.save());
    QVERIFY(!f.isEnabled("actionSave"));
    QVERIFY(f.isEnabled("actionSaveAs"));
    f.window.addLine("three");
    QVERIFY(f.isEnabled("actionSave"));
    QVERIFY(f.place().startsWith(u"lines.txt (not saved)"_s));
    QVERIFY(f.window.save());
    QVERIFY(!f.window.hasUnsavedChanges());
    QVERIFY(f.place().startsWith(u"lines.txt  "_s));
}

void tst_table_window::tableRemainsUnsavedAfterAFailedSave()
{
    LineWindowFixture f;
    QVERIFY(f.window.openFile(f.file));
    f.window.addLine("three");
    f.dialogs.fileToChoose = f.folder.path(u"no such folder/lines.txt"_s);
    QVERIFY(!f.window.saveAs());
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, u"Save Lines"_s);
    QVERIFY(f.dialogs.warnings.first().text.startsWith(u"Could not save %1\n"_s.arg(f.dialogs.fileToChoose)));
    QVERIFY(f.window.hasUnsavedChanges());
    QVERIFY(f.isEnabled("actionSave"));
    QCOMPARE(f.window.fileName(), f.file);
    QCOMPARE(f.rowCount(), 3);
}

void tst_table_window::userIsAskedAboutUnsavedChanges_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<UnsavedChoice>("choice");
    for (const char *command : {"new", "open", "drop", "recent", "exit"}) {
        QTest::addRow("%s, cancel", command) << QString::fromLatin1(command) << UnsavedChoice::Cancel;
        QTest::addRow("%s, discard", command) << QString::fromLatin1(command) << UnsavedChoice::Discard;
        QTest::addRow("%s, save", command) << QString::fromLatin1(command) << UnsavedChoice::Save;
    }
}

void tst_table_window::userIsAskedAboutUnsavedChanges()
{
    QFETCH(QString, command);
    QFETCH(UnsavedChoice, choice);
    LineWindowFixture f;
    QVERIFY(writeBytes(f.otherFile, "other"));
    QVERIFY(f.window.openFile(f.file));
    f.window.show();
    f.window.addLine("three");
    f.dialogs.choice = choice;
    f.dialogs.fileToChoose = f.otherFile;

    if (command == "new"_L1) {
        f.action("actionNew")->trigger();
    } else if (command == "open"_L1) {
        f.action("actionOpen")->trigger();
    } else if (command == "drop"_L1) {
        QVERIFY(drop(f.window, {QUrl::fromLocalFile(f.otherFile)}));
        QCoreApplication::processEvents();
    } else if (command == "recent"_L1) {
        f.recentFiles()->actions().first()->trigger();
    } else {
        f.action("actionExit")->trigger();
    }

    QCOMPARE(f.dialogs.unsavedQuestions.size(), 1);
    QCOMPARE(f.dialogs.unsavedQuestions.first().title, u"Line Utility"_s);
    QVERIFY(f.dialogs.unsavedQuestions.first().text.startsWith(u"lines.txt "_s));
    const bool isSaved = choice == UnsavedChoice::Save;
    QCOMPARE(fileBytes(f.file), QByteArray(isSaved ? "one\ntwo\nthree" : "one\ntwo"));
    const bool remains = choice == UnsavedChoice::Cancel;
    QCOMPARE(f.window.hasUnsavedChanges(), remains || (command == "exit"_L1 && !isSaved));
    if (command == "exit"_L1)
        QCOMPARE(f.window.isVisible(), remains);
    else
        QCOMPARE(f.window.lines().size() == 3 && !isSaved, remains);
}

void tst_table_window::windowRemainsOpenAfterAFailedSave()
{
    LineWindowFixture f;
    f.window.newTable();
    f.window.show();
    f.window.addLine("one");
    f.dialogs.choice = UnsavedChoice::Save;
    f.dialogs.fileToChoose = f.folder.path(u"no such folder/lines.txt"_s);
    QVERIFY(!f.window.close());
    QVERIFY(f.window.isVisible());
    f.dialogs.fileToChoose.clear();
    QVERIFY(!f.window.close());
    QCOMPARE(f.window.lines().size(), 1);
    f.dialogs.choice = UnsavedChoice::Discard;
    QVERIFY(f.window.close());
}

NVX_TEST(tst_table_window)
#include "tst_table_window.moc"
