#include "name_utility_fixture.h"
#include "support/test_class.h"
#include "window/marked_table_view.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>

using Window::UnsavedChoice;

class tst_material_name_utility : public QObject
{
    Q_OBJECT

private slots:
    void windowIsLaidOutAsItsUsersKnowIt();
    void actionsHaveTheirTextsAndPictures_data();
    void actionsHaveTheirTextsAndPictures();
    void toolTipTellsWithWhatIsSynchronized();
    void atStartUpOnlyNewOpenAndExitAreEnabled();
    void newTableIsEmpty();
    void openedTableIsShownInNameOrder();
    void tableWithoutMaterialNamesIsEmpty();
    void cancelledDialogChangesNothing();
    void tableIsSavedWithEverythingInIt();
    void theCopyOfAFileWithPluralFormsIsNamed();
    void newTableIsSavedUnderAName();
    void failedOpeningKeepsTheTable();
    void rowsAreFilteredAndCopied();
    void columnsSortByAClickAndReturnToNameOrder();
    void exitClosesTheWindow();
};

void tst_material_name_utility::windowIsLaidOutAsItsUsersKnowIt()
{
    NameUtilityFixture f;
    QCOMPARE(f.window.windowTitle(), QStringLiteral("Material Name Utility"));
    QVERIFY(!f.window.windowIcon().isNull());
    QCOMPARE(f.window.findChild<QMenu *>(QStringLiteral("menuFile"))->title(), QStringLiteral("&File"));
    QCOMPARE(f.window.findChild<QMenu *>(QStringLiteral("menuHelp"))->title(), QStringLiteral("Help"));
    QStringList menu;
    const QList<QAction *> entries = f.window.findChild<QMenu *>(QStringLiteral("menuFile"))->actions();
    for (const QAction *entry : entries) {
        if (!entry->objectName().isEmpty())
            menu.append(entry->objectName());
    }
    QVERIFY(menu.endsWith(QStringLiteral("actionExit")));
    QVERIFY(f.window.findChild<QToolBar *>(QStringLiteral("mainToolBar")));
    QVERIFY(f.window.findChild<QStatusBar *>(QStringLiteral("statusBar")));
    const QAbstractItemModel *model = f.view()->model();
    QCOMPARE(model->columnCount(), 2);
    QCOMPARE(model->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Name"));
    QCOMPARE(model->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Translation"));
}

void tst_material_name_utility::actionsHaveTheirTextsAndPictures_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<QString>("picture");
    const auto row = [](const char *name, const char *text, const char *shortcut, const char *picture) {
        QTest::newRow(name) << QString::fromLatin1(text) << QString::fromLatin1(shortcut)
                            << QStringLiteral(":/MaterialNameUtility/images/") + QLatin1String(picture);
    };
    row("actionNew", "New", "Ctrl+N", "new.png");
    row("actionOpen", "Open...", "Ctrl+O", "open.png");
    row("actionSave", "Save", "Ctrl+S", "save.png");
    row("actionSaveAs", "Save As...", "", "saveas.png");
    row("actionExit", "Exit", "", "exit.png");
    row("actionSynchronize", "Synchronize...", "", "synchronize.png");
}

void tst_material_name_utility::actionsHaveTheirTextsAndPictures()
{
    NameUtilityFixture f;
    const QAction *action = f.action(QTest::currentDataTag());
    QVERIFY(action);
    QTEST(action->text(), "text");
    QTEST(action->shortcut().toString(QKeySequence::PortableText), "shortcut");
    const QImage shown = action->icon().pixmap(16, 16).toImage();
    QFETCH(const QString, picture);
    QVERIFY(!shown.isNull());
    QCOMPARE(shown, QIcon(picture).pixmap(16, 16).toImage());
    QImage nothing(shown.size(), shown.format());
    nothing.fill(Qt::transparent);
    QVERIFY(shown != nothing);
}

void tst_material_name_utility::toolTipTellsWithWhatIsSynchronized()
{
    NameUtilityFixture f;
    QCOMPARE(f.action("actionSynchronize")->toolTip(), QStringLiteral("Synchronize with material database"));
    QVERIFY(f.window.findChild<QToolBar *>(QStringLiteral("mainToolBar"))
                ->actions()
                .contains(f.action("actionSynchronize")));
}

void tst_material_name_utility::atStartUpOnlyNewOpenAndExitAreEnabled()
{
    NameUtilityFixture f;
    for (const char *name : {"actionNew", "actionOpen", "actionExit"})
        QVERIFY2(f.isEnabled(name), name);
    for (const char *name : {"actionSave", "actionSaveAs", "actionSynchronize"})
        QVERIFY2(!f.isEnabled(name), name);
}

void tst_material_name_utility::newTableIsEmpty()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.action("actionNew")->trigger();
    QCOMPARE(f.status(), QStringLiteral("Created new translation table"));
    QCOMPARE(f.shownRows(), QStringList());
    QCOMPARE(f.window.fileName(), QString());
    QVERIFY(f.window.table().contexts().empty());
    for (const char *name : {"actionSave", "actionSaveAs", "actionSynchronize"})
        QVERIFY2(f.isEnabled(name), name);
}

void tst_material_name_utility::openedTableIsShownInNameOrder()
{
    NameUtilityFixture f;
    f.dialogs.fileToChoose = f.tableFile;
    f.action("actionOpen")->trigger();
    QCOMPARE(f.dialogs.openQuestions.size(), 1);
    QCOMPARE(f.dialogs.openQuestions.first().title, QStringLiteral("Open Translation Table"));
    QCOMPARE(f.dialogs.openQuestions.first().filter, QStringLiteral("*.ts"));
    QCOMPARE(f.status(), QStringLiteral("Opened ") + f.tableFile);
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
    QCOMPARE(f.status(), QStringLiteral("Opened ") + f.tableFile);
    QCOMPARE(f.window.databaseFile(), QString());
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_material_name_utility::tableIsSavedWithEverythingInIt()
{
    NameUtilityFixture f;
    const std::optional<QByteArray> before = fileBytes(f.tableFile);
    QVERIFY(f.window.openFile(f.tableFile));
    f.dialogs.fileToChoose = f.otherFile;
    f.action("actionSaveAs")->trigger();
    QCOMPARE(f.dialogs.saveQuestions.first().title, QStringLiteral("Save Translation Table"));
    QCOMPARE(f.dialogs.saveQuestions.first().filter, QStringLiteral("*.ts"));
    QCOMPARE(f.status(), QStringLiteral("Saved translation table as ") + f.otherFile);
    QCOMPARE(f.window.fileName(), f.otherFile);
    QCOMPARE(fileBytes(f.otherFile), before);

    f.window.synchronize(f.databaseFile);
    f.action("actionSave")->trigger();
    QCOMPARE(f.status(), QStringLiteral("Saved translation table"));
    QCOMPARE(f.dialogs.saveQuestions.size(), 1);
    QVERIFY(fileBytes(f.otherFile) != before);
    QCOMPARE(fileBytes(f.tableFile), before);
    QVERIFY(!f.isEnabled("actionSave"));
}

void tst_material_name_utility::theCopyOfAFileWithPluralFormsIsNamed()
{
    NameUtilityFixture f;
    const QByteArray plural =
        "<TS><context><name>Clt::Material</name><message><source>Oil</source><translation>"
        "<lengthvariant>Oil</lengthvariant></translation></message></context></TS>";
    QVERIFY(writeBytes(f.otherFile, plural));
    QVERIFY(f.window.openFile(f.otherFile));
    f.action("actionSave")->trigger();
    QCOMPARE(f.status(),
             QStringLiteral(
                 "Saved translation table   Plural forms were dropped; the old file is other.ts.before"));
    QCOMPARE(fileBytes(f.otherFile + QStringLiteral(".before")), plural);
    QVERIFY(f.window.save());
    QCOMPARE(f.status(), QStringLiteral("Saved translation table"));
}

void tst_material_name_utility::newTableIsSavedUnderAName()
{
    NameUtilityFixture f;
    f.window.newTable();
    f.window.synchronize(f.databaseFile);
    f.dialogs.fileToChoose = f.otherFile;
    f.action("actionSave")->trigger();
    QCOMPARE(f.dialogs.saveQuestions.size(), 1);
    QCOMPARE(f.dialogs.saveQuestions.first().folder, f.folder.path());
    QCOMPARE(f.status(), QStringLiteral("Saved translation table"));
    QCOMPARE(f.window.fileName(), f.otherFile);
    f.window.newTable();
    QVERIFY(f.window.openFile(f.otherFile));
    QCOMPARE(f.shownRows(), QStringList({QStringLiteral("Iron|Iron"), QStringLiteral("Steel|Steel"),
                                         QStringLiteral("Water|Water")}));
}

void tst_material_name_utility::failedOpeningKeepsTheTable()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.otherFile = f.folder.path(QStringLiteral("damaged/other.ts"));
    QVERIFY(QDir().mkpath(f.folder.path(QStringLiteral("damaged"))));
    QVERIFY(writeBytes(f.otherFile, "<TS>\n<context>"));
    f.dialogs.fileToChoose = f.otherFile;
    f.window.open();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, QStringLiteral("Open Translation Table"));
    QVERIFY(f.dialogs.warnings.first().text.startsWith(
        QStringLiteral("Could not load translation table\n\n%1\n").arg(f.otherFile)));
    QVERIFY(f.dialogs.warnings.first().text.endsWith(QStringLiteral(" at line 2")));
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
    QCOMPARE(f.window.fileName(), f.tableFile);

    f.dialogs.fileToChoose.clear();
    f.window.synchronize();
    QCOMPARE(f.dialogs.openQuestions.last().folder, f.folder.path(QStringLiteral("damaged")));
}

void tst_material_name_utility::rowsAreFilteredAndCopied()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    auto *filter = f.window.findChild<QLineEdit *>(QStringLiteral("filterField"));
    QTest::keyClicks(filter, QStringLiteral("wass"));
    QCOMPARE(f.shownRows(), QStringList(QStringLiteral("Water|Wasser")));
    const auto *view = qobject_cast<Window::MarkedTableView *>(f.view());
    QCOMPARE(copiedText(view->rowsModel(), {view->model()->index(0, 0)}), QStringLiteral("Water\tWasser\n"));
}

void tst_material_name_utility::columnsSortByAClickAndReturnToNameOrder()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.show();
    QHeaderView *heading = f.view()->horizontalHeader();
    const auto click = [heading] {
        QTest::mouseClick(heading->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(heading->sectionViewportPosition(1) + 20, heading->height() / 2));
    };
    const auto first = [&f] { return f.view()->model()->index(0, 0).data().toString(); };
    click();
    QCOMPARE(first(), QStringLiteral("Air"));
    click();
    QCOMPARE(first(), QStringLiteral("Oil"));
    click();
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
    QCOMPARE(f.dialogs.unsavedQuestions.first().title, QStringLiteral("Material Name Utility"));
    f.dialogs.choice = UnsavedChoice::Discard;
    f.action("actionExit")->trigger();
    QVERIFY(!f.window.isVisible());
}

NVX_TEST(tst_material_name_utility)
#include "tst_material_name_utility.moc"
