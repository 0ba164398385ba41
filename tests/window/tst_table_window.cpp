#include "line_window.h"
#include "support/test_class.h"

#include <QTest>

using Window::UnsavedChoice;

class tst_table_window : public QObject
{
    Q_OBJECT

private slots:
    void atStartUpOnlyNewOpenAndExitAreEnabled();
    void newTableEnablesTheRest();
    void openedFileIsShownAndRemembered();
    void cancelledDialogChangesNothing();
    void failedOpeningKeepsTheTable();
    void cancelledLoadingKeepsTheTable();
    void folderOfARefusedFileIsWhereTheNextDialogStarts();
    void saveDialogStartsInTheFolderOfTheFileUsedLast();
    void savingAsksForANameOnce();
    void saveIsDisabledUntilTheTableChanges();
    void failedSavingKeepsTheTableUnsaved();
    void unsavedChangesAreAskedFor_data();
    void unsavedChangesAreAskedFor();
    void failedSavingKeepsTheWindowOpen();
};

void tst_table_window::atStartUpOnlyNewOpenAndExitAreEnabled()
{
    LineWindowFixture f;
    for (const char *name : {"actionNew", "actionOpen", "actionExit"})
        QVERIFY2(f.isEnabled(name), name);
    for (const char *name : {"actionSave", "actionSaveAs", "actionNumber"})
        QVERIFY2(!f.isEnabled(name), name);
    QVERIFY(!f.filter()->isEnabled());
    QVERIFY(!f.recentFiles()->isEnabled());
}

void tst_table_window::newTableEnablesTheRest()
{
    LineWindowFixture f;
    f.window.newTable();
    for (const char *name : {"actionSave", "actionSaveAs", "actionNumber"})
        QVERIFY2(f.isEnabled(name), name);
    QVERIFY(f.filter()->isEnabled());
    QVERIFY(!f.window.hasUnsavedChanges());
    QCOMPARE(f.status(), QStringLiteral("Created"));
    QCOMPARE(f.window.statusBar()->toolTip(), QStringLiteral("Created"));
    QCOMPARE(f.place(), QStringLiteral("Untitled   Rows: 0"));
}

void tst_table_window::openedFileIsShownAndRemembered()
{
    LineWindowFixture f;
    f.dialogs.fileToChoose = f.file;
    f.action("actionOpen")->trigger();
    QCOMPARE(f.dialogs.openQuestions.size(), 1);
    QCOMPARE(f.dialogs.openQuestions.first().title, QStringLiteral("Open Lines"));
    QCOMPARE(f.dialogs.openQuestions.first().filter, QStringLiteral("*.txt"));
    QCOMPARE(f.dialogs.openQuestions.first().folder, QString());
    QCOMPARE(f.window.fileName(), f.file);
    QCOMPARE(f.status(), QStringLiteral("Opened %1").arg(f.file));
    QCOMPARE(f.shownRows(), 2);
    QCOMPARE(f.place(), QStringLiteral("lines.txt   Rows: 2"));
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
    QCOMPARE(f.shownRows(), 2);
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_table_window::failedOpeningKeepsTheTable()
{
    LineWindowFixture f;
    QVERIFY(f.window.openFile(f.file));
    QVERIFY(!f.window.openFile(f.otherFile));
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, QStringLiteral("Open Lines"));
    QCOMPARE(f.dialogs.warnings.first().text,
             QStringLiteral("Could not load lines\n\n%1\nno such file").arg(f.otherFile));
    QCOMPARE(f.window.fileName(), f.file);
    QCOMPARE(f.shownRows(), 2);
}

void tst_table_window::cancelledLoadingKeepsTheTable()
{
    LineWindowFixture f;
    QVERIFY(f.window.openFile(f.file));
    QVERIFY(writeBytes(f.otherFile, ""));
    QVERIFY(!f.window.openFile(f.otherFile));
    QVERIFY(f.dialogs.warnings.isEmpty());
    QCOMPARE(f.window.fileName(), f.file);
    QCOMPARE(f.shownRows(), 2);
}

void tst_table_window::folderOfARefusedFileIsWhereTheNextDialogStarts()
{
    LineWindowFixture f;
    QVERIFY(f.window.openFile(f.file));
    QVERIFY(QDir().mkpath(f.folder.path(QStringLiteral("read/lines"))));
    f.dialogs.fileToChoose = f.folder.path(QStringLiteral("read/missing.txt"));
    f.window.open();
    QCOMPARE(f.dialogs.warnings.size(), 1);

    f.dialogs.fileToChoose = f.folder.path(QStringLiteral("read/lines")); // a folder cannot be written
    QVERIFY(!f.window.saveAs());
    QCOMPARE(f.dialogs.saveQuestions.last().folder, f.folder.path(QStringLiteral("read")));
    QCOMPARE(f.dialogs.warnings.size(), 2);

    f.dialogs.fileToChoose = f.folder.path(QStringLiteral("no such folder/lines.txt"));
    QVERIFY(!f.window.saveAs());
    f.window.open();
    QCOMPARE(f.dialogs.openQuestions.last().folder, f.folder.path(QStringLiteral("no such folder")));
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
    QVERIFY(QDir().mkpath(f.folder.path(QStringLiteral("written"))));
    f.dialogs.fileToChoose = f.folder.path(QStringLiteral("written/lines.txt"));
    QVERIFY(f.window.saveAs());
    f.window.newTable();
    f.dialogs.fileToChoose.clear();
    QVERIFY(!f.window.save());
    QCOMPARE(f.dialogs.saveQuestions.last().folder, f.folder.path(QStringLiteral("written")));
}

void tst_table_window::savingAsksForANameOnce()
{
    LineWindowFixture f;
    f.window.newTable();
    f.window.addLine("new");
    f.dialogs.fileToChoose = f.otherFile;
    f.action("actionSave")->trigger();
    QCOMPARE(f.dialogs.saveQuestions.size(), 1);
    QCOMPARE(f.dialogs.saveQuestions.first().title, QStringLiteral("Save Lines"));
    QCOMPARE(f.dialogs.saveQuestions.first().filter, QStringLiteral("*.txt"));
    QCOMPARE(f.status(), QStringLiteral("Saved"));
    QCOMPARE(f.window.fileName(), f.otherFile);
    QCOMPARE(fileBytes(f.otherFile), QByteArray("new"));

    f.window.addLine("newer");
    f.action("actionSave")->trigger();
    QCOMPARE(f.dialogs.saveQuestions.size(), 1);
    QCOMPARE(f.status(), QStringLiteral("Saved"));
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
    QVERIFY(f.place().startsWith(QStringLiteral("lines.txt (not saved)")));
    QVERIFY(f.window.save());
    QVERIFY(!f.window.hasUnsavedChanges());
    QVERIFY(f.place().startsWith(QStringLiteral("lines.txt  ")));
}

void tst_table_window::failedSavingKeepsTheTableUnsaved()
{
    LineWindowFixture f;
    QVERIFY(f.window.openFile(f.file));
    f.window.addLine("three");
    f.dialogs.fileToChoose = f.folder.path(QStringLiteral("no such folder/lines.txt"));
    QVERIFY(!f.window.saveAs());
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, QStringLiteral("Save Lines"));
    QVERIFY(f.dialogs.warnings.first().text.startsWith(
        QStringLiteral("Could not save %1\n").arg(f.dialogs.fileToChoose)));
    QVERIFY(f.window.hasUnsavedChanges());
    QVERIFY(f.isEnabled("actionSave"));
    QCOMPARE(f.window.fileName(), f.file);
    QCOMPARE(f.shownRows(), 3);
}

void tst_table_window::unsavedChangesAreAskedFor_data()
{
    QTest::addColumn<QString>("order");
    QTest::addColumn<UnsavedChoice>("choice");
    for (const char *order : {"new", "open", "drop", "recent", "exit"}) {
        QTest::addRow("%s, cancel", order) << QString::fromLatin1(order) << UnsavedChoice::Cancel;
        QTest::addRow("%s, discard", order) << QString::fromLatin1(order) << UnsavedChoice::Discard;
        QTest::addRow("%s, save", order) << QString::fromLatin1(order) << UnsavedChoice::Save;
    }
}

void tst_table_window::unsavedChangesAreAskedFor()
{
    QFETCH(QString, order);
    QFETCH(UnsavedChoice, choice);
    LineWindowFixture f;
    QVERIFY(writeBytes(f.otherFile, "other"));
    QVERIFY(f.window.openFile(f.file));
    f.window.show();
    f.window.addLine("three");
    f.dialogs.choice = choice;
    f.dialogs.fileToChoose = f.otherFile;

    if (order == QLatin1String("new")) {
        f.action("actionNew")->trigger();
    } else if (order == QLatin1String("open")) {
        f.action("actionOpen")->trigger();
    } else if (order == QLatin1String("drop")) {
        QVERIFY(drop(f.window, {QUrl::fromLocalFile(f.otherFile)}));
        QCoreApplication::processEvents();
    } else if (order == QLatin1String("recent")) {
        f.recentFiles()->actions().first()->trigger();
    } else {
        f.action("actionExit")->trigger();
    }

    QCOMPARE(f.dialogs.unsavedQuestions.size(), 1);
    QCOMPARE(f.dialogs.unsavedQuestions.first().title, QStringLiteral("Line Utility"));
    QVERIFY(f.dialogs.unsavedQuestions.first().text.startsWith(QStringLiteral("lines.txt ")));
    const bool isSaved = choice == UnsavedChoice::Save;
    QCOMPARE(fileBytes(f.file), QByteArray(isSaved ? "one\ntwo\nthree" : "one\ntwo"));
    const bool isKept = choice == UnsavedChoice::Cancel;
    QCOMPARE(f.window.hasUnsavedChanges(), isKept || (order == QLatin1String("exit") && !isSaved));
    if (order == QLatin1String("exit"))
        QCOMPARE(f.window.isVisible(), isKept);
    else
        QCOMPARE(f.window.lines().size() == 3 && !isSaved, isKept);
}

void tst_table_window::failedSavingKeepsTheWindowOpen()
{
    LineWindowFixture f;
    f.window.newTable();
    f.window.show();
    f.window.addLine("one");
    f.dialogs.choice = UnsavedChoice::Save;
    f.dialogs.fileToChoose = f.folder.path(QStringLiteral("no such folder/lines.txt"));
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
