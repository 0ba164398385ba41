#include "support/test_class.h"
#include "utility_fixture.h"
#include "window/row_mark.h"

#include <QHeaderView>
#include <QLayout>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

class tst_message_table_utility : public QObject
{
    Q_OBJECT

private slots:
    void windowHasItsNames();
    void actionsAreAsStated_data();
    void actionsAreAsStated();
    void menusAndToolBarHaveTheActions();
    void tableHasFourColumns();
    void atStartUpOnlyNewOpenAndExitAreEnabled();
    void newTableForgetsTheOldOne();
    void openShowsTheMessagesInKeyOrder();
    void fileWithoutATableGivesAnEmptyOne();
    void cancelledDialogsChangeNothing();
    void saveWritesTheTable();
    void newTableIsSavedUnderANewName();
    void saveAsTakesTheNewName();
    void dialogsStartInTheFolderOfTheFileChosenLast();
    void newAndObsoleteRowsAreMarked();
    void rowsAreReadableOnADarkPalette();
    void filterFindsStatesAndContexts();
    void sortedRowsReturnToKeyOrder();
    void widthsOfColumnsAreKept();
    void tableOfManyMessagesIsShownWhole();
};

void tst_message_table_utility::windowHasItsNames()
{
    const UtilityFixture f;
    QCOMPARE(f.window.objectName(), QStringLiteral("MessageTableUtilityClass"));
    QCOMPARE(f.window.windowTitle(), QStringLiteral("Message Table Utility"));
    QVERIFY(!f.window.windowIcon().pixmap(16).isNull());
    QCOMPARE(f.window.centralWidget()->objectName(), QStringLiteral("centralWidget"));
    QCOMPARE(f.window.centralWidget()->layout()->objectName(), QStringLiteral("horizontalLayout"));
    QCOMPARE(f.window.centralWidget()->layout()->itemAt(0)->widget()->objectName(),
             QStringLiteral("tableWidget"));
    QCOMPARE(f.window.menuBar()->objectName(), QStringLiteral("menuBar"));
    QCOMPARE(f.window.statusBar()->objectName(), QStringLiteral("statusBar"));
    QVERIFY(f.window.findChild<QToolBar *>(QStringLiteral("mainToolBar")));
    QCOMPARE(f.window.findChild<QMenu *>(QStringLiteral("menuFile"))->title(), QStringLiteral("&File"));
    QCOMPARE(f.window.findChild<QMenu *>(QStringLiteral("menuHelp"))->title(), QStringLiteral("Help"));
}

void tst_message_table_utility::actionsAreAsStated_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("toolTip");
    const auto row = [](const char *name, const char *text, const char *shortcut, const char *picture,
                        const char *toolTip) {
        QTest::newRow(name) << QString::fromLatin1(text) << QString::fromLatin1(shortcut)
                            << QString::fromLatin1(picture) << QString::fromLatin1(toolTip);
    };
    row("actionNew", "New", "Ctrl+N", ":/ErrorTableUtility/images/new.png", "New");
    row("actionOpen", "Open...", "Ctrl+O", ":/ErrorTableUtility/images/open.png", "Open");
    row("actionSave", "Save", "Ctrl+S", ":/ErrorTableUtility/images/save.png", "Save");
    row("actionSaveAs", "Save As...", "", "", "Save As");
    row("actionExit", "Exit", "", "", "Exit");
    row("actionSynchronize", "Synchronize...", "", ":/ErrorTableUtility/images/synchronize.png",
        "Synchronize with source code");
    row("actionTranslate", "Update Translation...", "", "", "Update translation");
}

void tst_message_table_utility::actionsAreAsStated()
{
    UtilityFixture f;
    const QAction *action = f.action(QTest::currentDataTag());
    QVERIFY(action);
    QTEST(action->text(), "text");
    QTEST(action->shortcut().toString(), "shortcut");
    QTEST(action->toolTip(), "toolTip");
    QFETCH(const QString, picture);
    QVERIFY(picture.isEmpty() || QFile::exists(picture));
    QCOMPARE(action->icon().pixmap(16).toImage(), QIcon(picture).pixmap(16).toImage());
    if (action == f.action("actionTranslate"))
        QCOMPARE(action->iconText(), QStringLiteral("tr"));
}

void tst_message_table_utility::menusAndToolBarHaveTheActions()
{
    UtilityFixture f;
    const auto namesOf = [](const QWidget *widget) {
        QStringList names;
        const QList<QAction *> actions = widget->actions();
        for (const QAction *action : actions) {
            if (action->objectName().startsWith(QStringLiteral("action")))
                names.append(action->objectName().mid(6));
        }
        return names.join(u' ');
    };
    QCOMPARE(namesOf(f.window.findChild<QMenu *>(QStringLiteral("menuFile"))),
             QStringLiteral("New Open Save SaveAs Exit"));
    auto *bar = f.window.findChild<QToolBar *>(QStringLiteral("mainToolBar"));
    QCOMPARE(namesOf(bar), QStringLiteral("New Open Save Synchronize Translate"));
    QCOMPARE(qobject_cast<QToolButton *>(bar->widgetForAction(f.action("actionTranslate")))->text(),
             QStringLiteral("tr"));
}

void tst_message_table_utility::tableHasFourColumns()
{
    UtilityFixture f;
    const QAbstractItemModel *model = f.view()->model();
    QStringList headings;
    for (int column = 0; column < model->columnCount(); ++column)
        headings.append(model->headerData(column, Qt::Horizontal).toString());
    QCOMPARE(headings.join(u' '), QStringLiteral("Process Context Tag State"));
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(!(model->index(0, 0).flags() & Qt::ItemIsEditable));
    QCOMPARE(f.view()->editTriggers(), QAbstractItemView::NoEditTriggers);
}

void tst_message_table_utility::atStartUpOnlyNewOpenAndExitAreEnabled()
{
    UtilityFixture f;
    for (const char *name : {"actionNew", "actionOpen", "actionExit"})
        QVERIFY2(f.isEnabled(name), name);
    for (const char *name : {"actionSave", "actionSaveAs", "actionSynchronize", "actionTranslate"})
        QVERIFY2(!f.isEnabled(name), name);
}

void tst_message_table_utility::newTableForgetsTheOldOne()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(f.window.save());
    f.action("actionNew")->trigger();
    QVERIFY(f.window.messages().isEmpty());
    QCOMPARE(f.window.fileName(), QString());
    QCOMPARE(f.shownRows(), QStringList());
    QCOMPARE(f.status(), QString());
    for (const char *name : {"actionSave", "actionSaveAs", "actionSynchronize", "actionTranslate"})
        QVERIFY2(f.isEnabled(name), name);
}

void tst_message_table_utility::openShowsTheMessagesInKeyOrder()
{
    UtilityFixture f;
    QVERIFY(writeBytes(f.otherFile,
                       "<messageTable>"
                       "<message severity=\"Warning\"><key><process>B</process><context>a</context>"
                       "<tag>a</tag></key><text>t</text></message>"
                       "<message severity=\"Warning\"><key><process>A</process><context>z</context>"
                       "<tag>z</tag></key><text>t</text></message>"
                       "<message severity=\"Warning\"><key><process>A</process><context>z</context>"
                       "<tag>b</tag></key><text>t</text><state>New</state></message>"
                       "</messageTable>"));
    f.dialogs.fileToChoose = f.otherFile;
    f.action("actionOpen")->trigger();
    QCOMPARE(f.dialogs.openQuestions.size(), 1);
    QCOMPARE(f.dialogs.openQuestions.first().title, QStringLiteral("Open Message Table"));
    QCOMPARE(f.dialogs.openQuestions.first().filter, QStringLiteral("*.xml"));
    QCOMPARE(f.shownRows(), (QStringList{QStringLiteral("A|z|b|New"), QStringLiteral("A|z|z|InSync"),
                                         QStringLiteral("B|a|a|InSync")}));
    QCOMPARE(f.status(), QString());
    for (const char *name : {"actionSave", "actionSaveAs", "actionSynchronize", "actionTranslate"})
        QVERIFY2(f.isEnabled(name), name);
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_message_table_utility::fileWithoutATableGivesAnEmptyOne()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(writeBytes(f.otherFile, "<other><message severity=\"Warning\"/></other>"));
    QVERIFY(f.window.openFile(f.otherFile));
    QVERIFY(f.window.messages().isEmpty());
    QCOMPARE(f.shownRows(), QStringList());
    QCOMPARE(f.window.fileName(), f.otherFile);
}

void tst_message_table_utility::cancelledDialogsChangeNothing()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    for (const char *name : {"actionOpen", "actionSaveAs", "actionSynchronize", "actionTranslate"})
        f.action(name)->trigger();
    QCOMPARE(f.dialogs.openQuestions.size(), 3);
    QCOMPARE(f.dialogs.saveQuestions.size(), 1);
    QCOMPARE(f.shownRows(), UtilityFixture::tableRows());
    QCOMPARE(f.window.fileName(), f.tableFile);
    QVERIFY(!f.window.hasUnsavedChanges());
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_message_table_utility::saveWritesTheTable()
{
    UtilityFixture f;
    const std::optional<QByteArray> before = fileBytes(f.tableFile);
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(writeBytes(f.tableFile, "overwritten by somebody"));
    f.action("actionSave")->trigger();
    QCOMPARE(f.status(), QStringLiteral("Table saved"));
    QCOMPARE(fileBytes(f.tableFile), before);
    QVERIFY(!f.isEnabled("actionSave"));
    QVERIFY(f.isEnabled("actionSaveAs"));
}

void tst_message_table_utility::newTableIsSavedUnderANewName()
{
    UtilityFixture f;
    f.window.newTable();
    f.action("actionSave")->trigger();
    QCOMPARE(f.dialogs.saveQuestions.size(), 1);
    QVERIFY(f.isEnabled("actionSave"));
    f.dialogs.fileToChoose = f.otherFile;
    f.action("actionSave")->trigger();
    QCOMPARE(f.status(), QStringLiteral("Table saved"));
    QVERIFY(fileBytes(f.otherFile)->contains("<messageTable "));
    QVERIFY(!f.isEnabled("actionSave"));
}

void tst_message_table_utility::saveAsTakesTheNewName()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.dialogs.fileToChoose = f.otherFile;
    f.action("actionSaveAs")->trigger();
    QCOMPARE(f.dialogs.saveQuestions.first().title, QStringLiteral("Save Message Table"));
    QCOMPARE(f.dialogs.saveQuestions.first().filter, QStringLiteral("*.xml"));
    QCOMPARE(f.status(), QStringLiteral("Table saved as %1").arg(f.otherFile));
    QCOMPARE(f.window.fileName(), f.otherFile);
    QCOMPARE(fileBytes(f.otherFile), fileBytes(f.tableFile));
}

void tst_message_table_utility::dialogsStartInTheFolderOfTheFileChosenLast()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.dialogs.fileToChoose = f.folder.path(QStringLiteral("project/broken.xml"));
    QVERIFY(writeBytes(f.dialogs.fileToChoose, "<messageTable>"));
    f.action("actionOpen")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);

    f.dialogs.fileToChoose.clear();
    for (const char *name : {"actionOpen", "actionSynchronize", "actionTranslate", "actionSaveAs"})
        f.action(name)->trigger();
    QStringList folders;
    for (const Window::FileQuestion &question : f.dialogs.openQuestions + f.dialogs.saveQuestions)
        folders.append(question.folder);
    const QString chosen = f.folder.path(QStringLiteral("project"));
    QCOMPARE(folders, QStringList({f.folder.path(), chosen, chosen, chosen, chosen}));
}

void tst_message_table_utility::newAndObsoleteRowsAreMarked()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.window));
    const QImage image = f.view()->grab().toImage();
    const auto colour = [&](int row) {
        const QRect cell = f.view()->visualRect(f.view()->model()->index(row, 3));
        return image.pixelColor(f.view()->viewport()->mapTo(f.view(), cell.center() + QPoint(60, 0))).rgb();
    };
    const auto toolTip = [&](int row) {
        return f.view()->model()->index(row, 2).data(Qt::ToolTipRole).toString();
    };
    const QPalette palette = f.view()->palette();
    QCOMPARE(colour(0), markColor(palette, Window::RowMark::Obsolete).rgb());
    QCOMPARE(colour(1), markColor(palette, Window::RowMark::New).rgb());
    QCOMPARE(colour(2), palette.color(QPalette::Base).rgb());
    QCOMPARE(toolTip(0), QStringLiteral("Not found in the sources any more"));
    QCOMPARE(toolTip(1), QStringLiteral("Found in the sources, not reviewed yet"));
    QCOMPARE(toolTip(2), QString());
}

void tst_message_table_utility::rowsAreReadableOnADarkPalette()
{
    UtilityFixture f;
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::Text, QColor(0xf0, 0xf0, 0xf0));
    f.window.setPalette(dark);
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.window));
    const QImage image = f.view()->grab().toImage();
    const QRect cell = f.view()->visualRect(f.view()->model()->index(0, 3));
    const QPoint place = f.view()->viewport()->mapTo(f.view(), cell.center() + QPoint(60, 0));
    QCOMPARE(image.pixelColor(place).rgb(), markColor(dark, Window::RowMark::Obsolete).rgb());
}

void tst_message_table_utility::filterFindsStatesAndContexts()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    auto *field = f.window.findChild<QLineEdit *>(QStringLiteral("filterField"));
    QTest::keyClicks(field, QStringLiteral("obso"));
    QCOMPARE(f.shownRows(), QStringList(UtilityFixture::tableRows().at(0)));
    field->setText(QStringLiteral("a::RUN"));
    QCOMPARE(f.shownRows(),
             (QStringList{UtilityFixture::tableRows().at(0), UtilityFixture::tableRows().at(2)}));
    field->clear();
    QCOMPARE(f.shownRows(), UtilityFixture::tableRows());
}

void tst_message_table_utility::sortedRowsReturnToKeyOrder()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.window));
    QHeaderView *header = f.view()->horizontalHeader();
    const auto click = [header](int column) {
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                          {header->sectionViewportPosition(column) + 10, header->height() / 2});
    };
    click(2);
    QCOMPARE(f.shownRows().first(), UtilityFixture::tableRows().at(1));
    click(2);
    QCOMPARE(f.shownRows().first(), UtilityFixture::tableRows().at(2));
    click(2);
    QCOMPARE(f.shownRows(), UtilityFixture::tableRows());
}

void tst_message_table_utility::widthsOfColumnsAreKept()
{
    UtilityFixture f;
    for (int column = 0; column < 3; ++column)
        QVERIFY(f.view()->columnWidth(column) >= 100);
    QVERIFY(f.view()->columnWidth(1) > f.view()->columnWidth(0));
    f.view()->setColumnWidth(1, 222);
    QVERIFY(f.window.close());
    const MessageTableUtility next(f.dialogs, f.settings);
    QCOMPARE(next.findChild<QTableView *>(QStringLiteral("tableWidget"))->columnWidth(1), 222);
}

void tst_message_table_utility::tableOfManyMessagesIsShownWhole()
{
    constexpr int count = 100'000;
    UtilityFixture f;
    QVERIFY(tableOf(count).save(f.otherFile));
    QVERIFY(f.window.openFile(f.otherFile));
    QCOMPARE(f.view()->model()->rowCount(), count);
    QCOMPARE(f.view()->model()->index(count - 1, 2).data().toString(), QStringLiteral("Tag0099999"));
    auto *field = f.window.findChild<QLineEdit *>(QStringLiteral("filterField"));
    field->setText(QStringLiteral("tag00123"));
    QCOMPARE(f.view()->model()->rowCount(), 100);
}

NVX_TEST(tst_message_table_utility)
#include "tst_message_table_utility.moc"
