#include "name_utility_fixture.h"
#include "support/keyboard_walk.h"
#include "support/test_class.h"
#include "window/marked_table_view.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>

using namespace Qt::Literals::StringLiterals;

using Window::UnsavedChoice;

class tst_material_name_utility : public QObject
{
    Q_OBJECT

private slots:
    void windowHasItsMenusBarsAndColumns();
    void actionsHaveTheirTextsAndIcons_data();
    void actionsHaveTheirTextsAndIcons();
    void synchronizeHasItsToolTip();
    void atStartUpOnlyNewOpenAndExitAreEnabled();
    void newTableIsEmpty();
    void openedTableIsShownInNameOrder();
    void tableWithoutMaterialNamesIsEmpty();
    void cancelledDialogChangesNothing();
    void tableIsSavedCompletely();
    void copyOfAFileWithPluralFormsIsReported();
    void newTableIsSavedUnderANewName();
    void failedOpeningPreservesTheTable();
    void rowsAreFilteredAndCopied();
    void thirdClickRestoresTheNameOrder();
    void exitClosesTheWindow();
    void everyControlIsNamedAndReachedWithTheTabKey();
};

void tst_material_name_utility::windowHasItsMenusBarsAndColumns()
{
    NameUtilityFixture f;
    QCOMPARE(f.window.windowTitle(), u"Material Name Utility"_s);
    QVERIFY(!f.window.windowIcon().isNull());
    QCOMPARE(f.child<QMenu>("menuFile")->title(), u"&File"_s);
    QCOMPARE(f.child<QMenu>("menuHelp")->title(), u"Help"_s);
    QStringList menu;
    const QList<QAction *> entries = f.child<QMenu>("menuFile")->actions();
    for (const QAction *entry : entries) {
        if (!entry->objectName().isEmpty())
            menu.append(entry->objectName());
    }
    QVERIFY(menu.endsWith(u"actionExit"_s));
    QVERIFY(f.child<QToolBar>("mainToolBar"));
    QVERIFY(f.child<QStatusBar>("statusBar"));
    QCOMPARE(headingsOf(*f.view()->model()), QStringList({u"Name"_s, u"Translation"_s}));
}

void tst_material_name_utility::actionsHaveTheirTextsAndIcons_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<QString>("icon");
    const auto row = [](const char *name, const char *text, const char *shortcut, const char *icon) {
        QTest::newRow(name) << QString::fromLatin1(text) << QString::fromLatin1(shortcut)
                            << u":/MaterialNameUtility/images/"_s + QLatin1String(icon);
    };
    row("actionNew", "New", "Ctrl+N", "new.png");
    row("actionOpen", "Open...", "Ctrl+O", "open.png");
    row("actionSave", "Save", "Ctrl+S", "save.png");
    row("actionSaveAs", "Save As...", "", "saveas.png");
    row("actionExit", "Exit", "", "exit.png");
    row("actionSynchronize", "Synchronize...", "", "synchronize.png");
}

void tst_material_name_utility::actionsHaveTheirTextsAndIcons()
{
    NameUtilityFixture f;
    const QAction *action = f.action(QTest::currentDataTag());
    QVERIFY(action);
    QTEST(action->text(), "text");
    QTEST(action->shortcut().toString(QKeySequence::PortableText), "shortcut");
    const QImage shown = action->icon().pixmap(16, 16).toImage();
    QFETCH(const QString, icon);
    QVERIFY(!shown.isNull());
    QCOMPARE(shown, QIcon(icon).pixmap(16, 16).toImage());
    QImage transparent(shown.size(), shown.format());
    transparent.fill(Qt::transparent);
    QVERIFY(shown != transparent);
}

void tst_material_name_utility::synchronizeHasItsToolTip()
{
    NameUtilityFixture f;
    QCOMPARE(f.action("actionSynchronize")->toolTip(), u"Synchronize with material database"_s);
    QVERIFY(f.child<QToolBar>("mainToolBar")->actions().contains(f.action("actionSynchronize")));
}

void tst_material_name_utility::atStartUpOnlyNewOpenAndExitAreEnabled()
{
    NameUtilityFixture f;
    QVERIFY(f.areTableActionsEnabled(false));
}

void tst_material_name_utility::newTableIsEmpty()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.action("actionNew")->trigger();
    QCOMPARE(f.status(), u"Created new translation table"_s);
    QCOMPARE(f.shownRows(), QStringList());
    QCOMPARE(f.window.fileName(), QString());
    QVERIFY(f.window.table().contexts().empty());
    QVERIFY(f.areTableActionsEnabled(true));
}

void tst_material_name_utility::openedTableIsShownInNameOrder()
{
    NameUtilityFixture f;
    f.dialogs.fileToChoose = f.tableFile;
    f.action("actionOpen")->trigger();
    QCOMPARE(f.dialogs.openQuestions.size(), 1);
    QCOMPARE(f.dialogs.openQuestions.first().title, u"Open Translation Table"_s);
    QCOMPARE(f.dialogs.openQuestions.first().filter, u"*.ts"_s);
    QCOMPARE(f.status(), u"Opened "_s + f.tableFile);
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
    QVERIFY(f.isEnabled("actionSynchronize"));
    QVERIFY(!f.window.hasUnsavedChanges());

    f.action("actionOpen")->trigger();
    QCOMPARE(f.dialogs.openQuestions.last().folder, f.folder.path());
}

void tst_material_name_utility::tableWithoutMaterialNamesIsEmpty()
{
    NameUtilityFixture f;
    QVERIFY(writeBytes(f.otherFile, "<TS version=\"2.1\"/>"));
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(f.window.openFile(f.otherFile));
    QCOMPARE(f.shownRows(), QStringList());
    QCOMPARE(f.window.fileName(), f.otherFile);
}

void tst_material_name_utility::cancelledDialogChangesNothing()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.open();
    QVERIFY(!f.window.saveAs());
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.openQuestions.size(), 2);
    QCOMPARE(f.dialogs.saveQuestions.size(), 1);
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
    QCOMPARE(f.status(), u"Opened "_s + f.tableFile);
    QCOMPARE(f.window.databaseFile(), QString());
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_material_name_utility::tableIsSavedCompletely()
{
    NameUtilityFixture f;
    const std::optional<QByteArray> before = fileBytes(f.tableFile);
    QVERIFY(f.window.openFile(f.tableFile));
    f.dialogs.fileToChoose = f.otherFile;
    f.action("actionSaveAs")->trigger();
    QCOMPARE(f.dialogs.saveQuestions.first().title, u"Save Translation Table"_s);
    QCOMPARE(f.dialogs.saveQuestions.first().filter, u"*.ts"_s);
    QCOMPARE(f.status(), u"Saved translation table as "_s + f.otherFile);
    QCOMPARE(f.window.fileName(), f.otherFile);
    QCOMPARE(fileBytes(f.otherFile), before);

    f.window.synchronize(f.databaseFile);
    f.action("actionSave")->trigger();
    QCOMPARE(f.status(), u"Saved translation table"_s);
    QCOMPARE(f.dialogs.saveQuestions.size(), 1);
    QVERIFY(fileBytes(f.otherFile) != before);
    QCOMPARE(fileBytes(f.tableFile), before);
    QVERIFY(!f.isEnabled("actionSave"));
}

void tst_material_name_utility::copyOfAFileWithPluralFormsIsReported()
{
    NameUtilityFixture f;
    const QByteArray plural =
        "<TS><context><name>Clt::Material</name><message><source>Oil</source><translation>"
        "<lengthvariant>Oil</lengthvariant></translation></message></context></TS>";
    QVERIFY(writeBytes(f.otherFile, plural));
    f.dialogs.isConfirmed = true;
    QVERIFY(f.window.openFile(f.otherFile));
    f.action("actionSave")->trigger();
    QCOMPARE(f.status(), u"Saved translation table   "
                         "Parts of the file were dropped; the previous file is kept as other.ts.before"_s);
    QCOMPARE(fileBytes(f.otherFile + u".before"_s), plural);
    QVERIFY(f.window.save());
    QCOMPARE(f.status(), u"Saved translation table"_s);
}

void tst_material_name_utility::newTableIsSavedUnderANewName()
{
    NameUtilityFixture f;
    f.window.newTable();
    f.window.synchronize(f.databaseFile);
    f.dialogs.fileToChoose = f.otherFile;
    f.action("actionSave")->trigger();
    QCOMPARE(f.dialogs.saveQuestions.size(), 1);
    QCOMPARE(f.dialogs.saveQuestions.first().folder, f.folder.path());
    QCOMPARE(f.status(), u"Saved translation table"_s);
    QCOMPARE(f.window.fileName(), f.otherFile);
    f.window.newTable();
    QVERIFY(f.window.openFile(f.otherFile));
    QCOMPARE(f.shownRows(), QStringList({u"Iron|Iron"_s, u"Steel|Steel"_s, u"Water|Water"_s}));
}

void tst_material_name_utility::failedOpeningPreservesTheTable()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.otherFile = f.folder.path(u"damaged/other.ts"_s);
    QVERIFY(QDir().mkpath(f.folder.path(u"damaged"_s)));
    QVERIFY(writeBytes(f.otherFile, "<TS>\n<context>"));
    f.dialogs.fileToChoose = f.otherFile;
    f.window.open();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, u"Open Translation Table"_s);
    QVERIFY(f.dialogs.warnings.first().text.startsWith(
        u"Could not load translation table\n\n%1\n"_s.arg(f.otherFile)));
    QVERIFY(f.dialogs.warnings.first().text.endsWith(u" at line 2"_s));
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
    QCOMPARE(f.window.fileName(), f.tableFile);

    f.dialogs.fileToChoose.clear();
    f.window.synchronize();
    QCOMPARE(f.dialogs.openQuestions.last().folder, f.folder.path(u"damaged"_s));
}

void tst_material_name_utility::rowsAreFilteredAndCopied()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QTest::keyClicks(f.filter(), u"wass"_s);
    QCOMPARE(f.shownRows(), QStringList(u"Water|Wasser"_s));
    const auto *view = qobject_cast<Window::MarkedTableView *>(f.view());
    QCOMPARE(copiedText(view->rowsModel(), {view->model()->index(0, 0)}), u"Water\tWasser\n"_s);
}

void tst_material_name_utility::thirdClickRestoresTheNameOrder()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.show();
    const auto first = [&f] { return f.view()->model()->index(0, 0).data().toString(); };
    clickHeading(*f.view(), 1);
    QCOMPARE(first(), u"Air"_s);
    clickHeading(*f.view(), 1);
    QCOMPARE(first(), u"Oil"_s);
    clickHeading(*f.view(), 1);
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
}

void tst_material_name_utility::exitClosesTheWindow()
{
    NameUtilityFixture f;
    f.window.show();
    f.window.synchronize(f.databaseFile);
    f.action("actionExit")->trigger();
    QVERIFY(f.window.isVisible());
    QCOMPARE(f.dialogs.unsavedQuestions.size(), 1);
    QCOMPARE(f.dialogs.unsavedQuestions.first().title, u"Material Name Utility"_s);
    f.dialogs.choice = UnsavedChoice::Discard;
    f.action("actionExit")->trigger();
    QVERIFY(!f.window.isVisible());
}

void tst_material_name_utility::everyControlIsNamedAndReachedWithTheTabKey()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.show();
    f.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&f.window));
    f.view()->setFocus();
    QCOMPARE(namelessControls(f.window), QString());
    QCOMPARE(controlsOf(f.window, Qt::TabFocus).size(), 3);
    QCOMPARE(unreachableControls(f.window), QString());
}

NVX_TEST(tst_material_name_utility)
#include "tst_material_name_utility.moc"
