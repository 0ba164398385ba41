#include "support/test_class.h"
#include "utility_fixture.h"
#include "window/marked_rows.h"

#include <QHeaderView>
#include <QLayout>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A point in the last cell of a row where there is no text.
QPoint emptyPlace(const QTableView &view, int row)
{
    const QRect cell = view.visualRect(view.model()->index(row, 3));
    return view.viewport()->mapTo(&view, cell.center() + QPoint(60, 0));
}

} // namespace

class tst_message_table_utility : public QObject
{
    Q_OBJECT

private slots:
    void windowAndItsPartsHaveTheirNames();
    void actionsHaveTheirTextsAndIcons_data();
    void actionsHaveTheirTextsAndIcons();
    void menusAndToolBarHaveTheActions();
    void tableHasFourColumns();
    void atStartUpOnlyNewOpenAndExitAreEnabled();
    void newTableReplacesTheOldOne();
    void openShowsTheMessagesInKeyOrder();
    void fileWithoutATableGivesAnEmptyTable();
    void cancelledDialogsChangeNothing();
    void saveWritesTheTable();
    void newTableIsSavedUnderANewName();
    void saveAsChangesTheFileName();
    void dialogsStartInTheFolderOfTheLastChosenFile();
    void newAndObsoleteRowsAreMarked();
    void rowsAreReadableOnADarkPalette();
    void filterMatchesStatesAndContexts();
    void thirdClickRestoresTheKeyOrder();
    void columnWidthsAreRestored();
    void largeTableIsShownCompletely();
};

void tst_message_table_utility::windowAndItsPartsHaveTheirNames()
{
    UtilityFixture f;
    QCOMPARE(f.window.objectName(), u"MessageTableUtilityClass"_s);
    QCOMPARE(f.window.windowTitle(), u"Message Table Utility"_s);
    QVERIFY(!f.window.windowIcon().pixmap(16).isNull());
    QCOMPARE(f.window.centralWidget()->objectName(), u"centralWidget"_s);
    QCOMPARE(f.window.centralWidget()->layout()->objectName(), u"horizontalLayout"_s);
    QCOMPARE(f.window.centralWidget()->layout()->itemAt(0)->widget()->objectName(), u"tableWidget"_s);
    QCOMPARE(f.window.menuBar()->objectName(), u"menuBar"_s);
    QCOMPARE(f.window.statusBar()->objectName(), u"statusBar"_s);
    QVERIFY(f.child<QToolBar>("mainToolBar"));
    QCOMPARE(f.child<QMenu>("menuFile")->title(), u"&File"_s);
    QCOMPARE(f.child<QMenu>("menuHelp")->title(), u"Help"_s);
}

void tst_message_table_utility::actionsHaveTheirTextsAndIcons_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("toolTip");
    const auto row = [](const char *name, const char *text, const char *shortcut, const char *icon,
                        const char *toolTip) {
        QTest::newRow(name) << QString::fromLatin1(text) << QString::fromLatin1(shortcut)
                            << QString::fromLatin1(icon) << QString::fromLatin1(toolTip);
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

void tst_message_table_utility::actionsHaveTheirTextsAndIcons()
{
    UtilityFixture f;
    const QAction *action = f.action(QTest::currentDataTag());
    QVERIFY(action);
    QTEST(action->text(), "text");
    QTEST(action->shortcut().toString(), "shortcut");
    QTEST(action->toolTip(), "toolTip");
    QFETCH(const QString, icon);
    QVERIFY(icon.isEmpty() || QFile::exists(icon));
    QCOMPARE(action->icon().pixmap(16).toImage(), QIcon(icon).pixmap(16).toImage());
    if (action == f.action("actionTranslate"))
        QCOMPARE(action->iconText(), u"tr"_s);
}

void tst_message_table_utility::menusAndToolBarHaveTheActions()
{
    UtilityFixture f;
    const auto namesOf = [](const QWidget *widget) {
        QStringList names;
        const QList<QAction *> actions = widget->actions();
        for (const QAction *action : actions) {
            if (action->objectName().startsWith(u"action"_s))
                names.append(action->objectName().mid(6));
        }
        return names.join(u' ');
    };
    QCOMPARE(namesOf(f.child<QMenu>("menuFile")), u"New Open Save SaveAs Exit Synchronize Translate"_s);
    auto *bar = f.child<QToolBar>("mainToolBar");
    QCOMPARE(namesOf(bar), u"New Open Save Synchronize Translate"_s);
    QCOMPARE(qobject_cast<QToolButton *>(bar->widgetForAction(f.action("actionTranslate")))->text(), u"tr"_s);
}

void tst_message_table_utility::tableHasFourColumns()
{
    UtilityFixture f;
    const QAbstractItemModel *model = f.view()->model();
    QCOMPARE(headingsOf(*model).join(u' '), u"Process Context Tag State"_s);
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(!(model->index(0, 0).flags() & Qt::ItemIsEditable));
    QCOMPARE(f.view()->editTriggers(), QAbstractItemView::NoEditTriggers);
}

void tst_message_table_utility::atStartUpOnlyNewOpenAndExitAreEnabled()
{
    UtilityFixture f;
    QVERIFY(f.areTableActionsEnabled(false));
}

void tst_message_table_utility::newTableReplacesTheOldOne()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(f.window.save());
    f.action("actionNew")->trigger();
    QVERIFY(f.window.messages().isEmpty());
    QCOMPARE(f.window.fileName(), QString());
    QCOMPARE(f.shownRows(), QStringList());
    QCOMPARE(f.status(), QString());
    QVERIFY(f.areTableActionsEnabled(true));
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
    QCOMPARE(f.dialogs.openQuestions.first().title, u"Open Message Table"_s);
    QCOMPARE(f.dialogs.openQuestions.first().filter, u"*.xml"_s);
    QCOMPARE(f.shownRows(), (QStringList{u"A|z|b|New"_s, u"A|z|z|InSync"_s, u"B|a|a|InSync"_s}));
    QCOMPARE(f.status(), QString());
    QVERIFY(f.areTableActionsEnabled(true));
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_message_table_utility::fileWithoutATableGivesAnEmptyTable()
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
    QVERIFY(writeBytes(f.tableFile, "overwritten"));
    f.dialogs.isConfirmed = true;
    f.action("actionSave")->trigger();
    QCOMPARE(f.status(), u"Table saved"_s);
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
    QCOMPARE(f.status(), u"Table saved"_s);
    QVERIFY(fileBytes(f.otherFile)->contains("<messageTable "));
    QVERIFY(!f.isEnabled("actionSave"));
}

void tst_message_table_utility::saveAsChangesTheFileName()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.dialogs.fileToChoose = f.otherFile;
    f.action("actionSaveAs")->trigger();
    QCOMPARE(f.dialogs.saveQuestions.first().title, u"Save Message Table"_s);
    QCOMPARE(f.dialogs.saveQuestions.first().filter, u"*.xml"_s);
    QCOMPARE(f.status(), u"Table saved as %1"_s.arg(f.otherFile));
    QCOMPARE(f.window.fileName(), f.otherFile);
    QCOMPARE(fileBytes(f.otherFile), fileBytes(f.tableFile));
}

void tst_message_table_utility::dialogsStartInTheFolderOfTheLastChosenFile()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.dialogs.fileToChoose = f.folder.path(u"project/broken.xml"_s);
    QVERIFY(writeBytes(f.dialogs.fileToChoose, "<messageTable>"));
    f.action("actionOpen")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);

    f.dialogs.fileToChoose.clear();
    for (const char *name : {"actionOpen", "actionSynchronize", "actionTranslate", "actionSaveAs"})
        f.action(name)->trigger();
    QStringList folders;
    for (const Window::FileQuestion &question : f.dialogs.openQuestions + f.dialogs.saveQuestions)
        folders.append(question.folder);
    const QString chosen = f.folder.path(u"project"_s);
    QCOMPARE(folders, QStringList({f.folder.path(), chosen, chosen, chosen, chosen}));
}

void tst_message_table_utility::newAndObsoleteRowsAreMarked()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.window));
    const QImage image = f.view()->grab().toImage();
    const auto colour = [&](int row) { return image.pixelColor(emptyPlace(*f.view(), row)).rgb(); };
    const auto toolTip = [&](int row) {
        return f.view()->model()->index(row, 2).data(Qt::ToolTipRole).toString();
    };
    const QPalette palette = f.view()->palette();
    QCOMPARE(colour(0), markColor(palette, Window::RowMark::Obsolete).rgb());
    QCOMPARE(colour(1), markColor(palette, Window::RowMark::New).rgb());
    QCOMPARE(colour(2), palette.color(QPalette::Base).rgb());
    QCOMPARE(toolTip(0), u"No longer found in the sources"_s);
    QCOMPARE(toolTip(1), u"Found in the sources, not reviewed yet"_s);
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
    QCOMPARE(image.pixelColor(emptyPlace(*f.view(), 0)).rgb(),
             markColor(dark, Window::RowMark::Obsolete).rgb());
}

void tst_message_table_utility::filterMatchesStatesAndContexts()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QLineEdit *field = f.filter();
    QTest::keyClicks(field, u"obso"_s);
    QCOMPARE(f.shownRows(), QStringList(UtilityFixture::tableRows().at(0)));
    field->setText(u"a::RUN"_s);
    QCOMPARE(f.shownRows(),
             (QStringList{UtilityFixture::tableRows().at(0), UtilityFixture::tableRows().at(2)}));
    field->clear();
    QCOMPARE(f.shownRows(), UtilityFixture::tableRows());
}

void tst_message_table_utility::thirdClickRestoresTheKeyOrder()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.window));
    clickHeading(*f.view(), 2);
    QCOMPARE(f.shownRows().first(), UtilityFixture::tableRows().at(1));
    clickHeading(*f.view(), 2);
    QCOMPARE(f.shownRows().first(), UtilityFixture::tableRows().at(2));
    clickHeading(*f.view(), 2);
    QCOMPARE(f.shownRows(), UtilityFixture::tableRows());
}

void tst_message_table_utility::columnWidthsAreRestored()
{
    UtilityFixture f;
    for (int column = 0; column < 3; ++column)
        QVERIFY(f.view()->columnWidth(column) >= 100);
    QVERIFY(f.view()->columnWidth(1) > f.view()->columnWidth(0));
    f.view()->setColumnWidth(1, 222);
    QVERIFY(f.window.close());
    const MessageTableUtility next(f.dialogs, f.settings);
    QCOMPARE(next.findChild<QTableView *>(u"tableWidget"_s)->columnWidth(1), 222);
}

void tst_message_table_utility::largeTableIsShownCompletely()
{
    constexpr int count = 100'000;
    UtilityFixture f;
    QVERIFY(tableOf(count).save(f.otherFile));
    QVERIFY(f.window.openFile(f.otherFile));
    QCOMPARE(f.rowCount(), count);
    QCOMPARE(f.view()->model()->index(count - 1, 2).data().toString(), u"Tag0099999"_s);
    QLineEdit *field = f.filter();
    field->setText(u"tag00123"_s);
    QCOMPARE(f.rowCount(), 100);
}

NVX_TEST(tst_message_table_utility)
#include "tst_message_table_utility.moc"
