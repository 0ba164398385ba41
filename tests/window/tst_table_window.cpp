#include "support/file_bytes.h"
#include "support/recording_dialogs.h"
#include "support/test_folder.h"
#include "window/marked_table_view.h"
#include "window/table_window.h"
#include "window/window_program.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>

using Window::Loading;
using Window::MarkedRows;
using Window::RowMark;
using Window::TableWindow;
using Window::UnsavedChoice;

namespace {

Window::TableWindowTexts sampleTexts()
{
    Window::TableWindowTexts texts;
    texts.title = QStringLiteral("Line Utility");
    texts.headings = QStringList{QStringLiteral("Line")};
    texts.openTitle = QStringLiteral("Open Lines");
    texts.saveTitle = QStringLiteral("Save Lines");
    texts.filter = QStringLiteral("*.txt");
    texts.notLoaded = QStringLiteral("Could not load lines");
    texts.created = QStringLiteral("Created");
    texts.opened = QStringLiteral("Opened %1");
    texts.saved = QStringLiteral("Saved");
    texts.savedAs = QStringLiteral("Saved as %1");
    return texts;
}

/// A window on the lines of a text file.
class LineWindow : public TableWindow
{
public:
    LineWindow(Window::Dialogs &dialogs, QSettings &settings)
        : TableWindow(dialogs, settings, sampleTexts())
        , m_number(new QAction(QStringLiteral("Number"), this))
    {
        m_number->setObjectName(QStringLiteral("actionNumber"));
        addTableAction(m_number);
    }

    void addLine(const QByteArray &line)
    {
        m_lines.append(line);
        setUnsaved();
        showTable();
    }

    // Works until it is cancelled or the time is over.
    void work(int milliseconds)
    {
        Window::WindowWork work(*this, QStringLiteral("Work"), QStringLiteral("Working"));
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < milliseconds && work.report(timer.elapsed(), milliseconds))
            continue;
    }

    const QList<QByteArray> &lines() const { return m_lines; }

protected:
    void clearTable() override { m_lines.clear(); }

    Loading loadTable(const QString &fileName) override
    {
        const std::optional<QByteArray> bytes = fileBytes(fileName);
        if (!bytes)
            return {Loading::Outcome::Failed, QStringLiteral("no such file")};
        if (bytes->isEmpty())
            return {Loading::Outcome::Cancelled, QString()};
        m_lines = bytes->split('\n');
        return {};
    }

    bool saveTable(const QString &fileName) override { return writeFile(fileName, m_lines.join('\n')); }

    MarkedRows rows() const override
    {
        MarkedRows rows(1);
        for (const QByteArray &line : m_lines)
            rows.add({QString::fromUtf8(line)}, RowMark::None);
        return rows;
    }

private:
    QAction *m_number;
    QList<QByteArray> m_lines;
};

/// A window with all that it needs, and a file of two lines.
struct Fixture
{
    Fixture()
    {
        if (!writeFile(file, "one\ntwo"))
            qFatal("cannot write");
    }

    QAction *action(const char *name) { return window.findChild<QAction *>(QLatin1String(name)); }
    bool isEnabled(const char *name) { return action(name)->isEnabled(); }
    QString status() { return window.statusBar()->currentMessage(); }
    QString place() { return window.findChild<QLabel *>(QStringLiteral("placeLabel"))->text(); }
    QLineEdit *filter() { return window.findChild<QLineEdit *>(QStringLiteral("filterField")); }
    int shownRows()
    {
        return window.findChild<QTableView *>(QStringLiteral("tableWidget"))->model()->rowCount();
    }

    TestFolder folder;
    QString file = folder.path(QStringLiteral("lines.txt"));
    QString otherFile = folder.path(QStringLiteral("other.txt"));
    QSettings settings{folder.path(QStringLiteral("settings.ini")), QSettings::IniFormat};
    RecordingDialogs dialogs;
    LineWindow window{dialogs, settings};
};

// Drags a file over the window and drops it there; whether the window wanted it.
bool drop(QWidget &window, const QList<QUrl> &urls)
{
    QMimeData mime;
    mime.setUrls(urls);
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&window, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent dropping(QPoint(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &dropping);
    return true;
}

} // namespace

class TestTableWindow : public QObject
{
    Q_OBJECT

private slots:
    void atStartUpOnlyNewOpenAndExitAreEnabled();
    void newTableEnablesTheRest();
    void openedFileIsShownAndRemembered();
    void cancelledDialogChangesNothing();
    void failedOpeningKeepsTheTable();
    void cancelledLoadingKeepsTheTable();
    void savingAsksForANameOnce();
    void saveIsDisabledUntilTheTableChanges();
    void failedSavingKeepsTheTableUnsaved();
    void unsavedChangesAreAskedFor_data();
    void unsavedChangesAreAskedFor();
    void failedSavingKeepsTheWindowOpen();
    void oneDroppedFileIsOpened();
    void otherThingsAreNotDropped();
    void filterNarrowsTheRows();
    void filterStandsAtTheEndOfTheToolBar();
    void controlFGoesToTheFilterAndEscapeEmptiesIt();
    void recentFilesAreOpened();
    void recentFileThatIsGoneIsForgotten();
    void geometryWidthsAndFolderAreRemembered();
    void closingDuringWorkCancelsItFirst();
    void noOrdersAreTakenDuringWork();
    void fileOfTheCommandLineIsOpened();
    void aboutNamesTheProgram();
};

void TestTableWindow::atStartUpOnlyNewOpenAndExitAreEnabled()
{
    Fixture f;
    for (const char *name : {"actionNew", "actionOpen", "actionExit"})
        QVERIFY2(f.isEnabled(name), name);
    for (const char *name : {"actionSave", "actionSaveAs", "actionNumber"})
        QVERIFY2(!f.isEnabled(name), name);
    QVERIFY(!f.filter()->isEnabled());
    QVERIFY(!f.window.findChild<QMenu *>(QStringLiteral("menuRecentFiles"))->isEnabled());
}

void TestTableWindow::newTableEnablesTheRest()
{
    Fixture f;
    f.window.newTable();
    for (const char *name : {"actionSave", "actionSaveAs", "actionNumber"})
        QVERIFY2(f.isEnabled(name), name);
    QVERIFY(f.filter()->isEnabled());
    QVERIFY(!f.window.hasUnsavedChanges());
    QCOMPARE(f.status(), QStringLiteral("Created"));
    QCOMPARE(f.place(), QStringLiteral("Untitled   Rows: 0"));
}

void TestTableWindow::openedFileIsShownAndRemembered()
{
    Fixture f;
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

void TestTableWindow::cancelledDialogChangesNothing()
{
    Fixture f;
    QVERIFY(f.window.openFile(f.file));
    f.dialogs.fileToChoose.clear();
    f.window.open();
    QVERIFY(!f.window.saveAs());
    QCOMPARE(f.window.fileName(), f.file);
    QCOMPARE(f.shownRows(), 2);
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void TestTableWindow::failedOpeningKeepsTheTable()
{
    Fixture f;
    QVERIFY(f.window.openFile(f.file));
    QVERIFY(!f.window.openFile(f.otherFile));
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, QStringLiteral("Open Lines"));
    QCOMPARE(f.dialogs.warnings.first().text,
             QStringLiteral("Could not load lines\n\n%1\nno such file").arg(f.otherFile));
    QCOMPARE(f.window.fileName(), f.file);
    QCOMPARE(f.shownRows(), 2);
}

void TestTableWindow::cancelledLoadingKeepsTheTable()
{
    Fixture f;
    QVERIFY(f.window.openFile(f.file));
    QVERIFY(writeFile(f.otherFile, ""));
    QVERIFY(!f.window.openFile(f.otherFile));
    QVERIFY(f.dialogs.warnings.isEmpty());
    QCOMPARE(f.window.fileName(), f.file);
    QCOMPARE(f.shownRows(), 2);
}

void TestTableWindow::savingAsksForANameOnce()
{
    Fixture f;
    f.window.newTable();
    f.window.addLine("new");
    f.dialogs.fileToChoose = f.otherFile;
    f.action("actionSave")->trigger();
    QCOMPARE(f.dialogs.saveQuestions.size(), 1);
    QCOMPARE(f.dialogs.saveQuestions.first().title, QStringLiteral("Save Lines"));
    QCOMPARE(f.dialogs.saveQuestions.first().filter, QStringLiteral("*.txt"));
    QCOMPARE(f.status(), QStringLiteral("Saved as %1").arg(f.otherFile));
    QCOMPARE(fileBytes(f.otherFile), QByteArray("new"));

    f.window.addLine("newer");
    f.action("actionSave")->trigger();
    QCOMPARE(f.dialogs.saveQuestions.size(), 1);
    QCOMPARE(f.status(), QStringLiteral("Saved"));
    QCOMPARE(fileBytes(f.otherFile), QByteArray("new\nnewer"));
}

void TestTableWindow::saveIsDisabledUntilTheTableChanges()
{
    Fixture f;
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

void TestTableWindow::failedSavingKeepsTheTableUnsaved()
{
    Fixture f;
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

void TestTableWindow::unsavedChangesAreAskedFor_data()
{
    QTest::addColumn<QString>("order");
    QTest::addColumn<UnsavedChoice>("choice");
    for (const char *order : {"new", "open", "drop", "recent", "exit"}) {
        QTest::addRow("%s, cancel", order) << QString::fromLatin1(order) << UnsavedChoice::Cancel;
        QTest::addRow("%s, discard", order) << QString::fromLatin1(order) << UnsavedChoice::Discard;
        QTest::addRow("%s, save", order) << QString::fromLatin1(order) << UnsavedChoice::Save;
    }
}

void TestTableWindow::unsavedChangesAreAskedFor()
{
    QFETCH(QString, order);
    QFETCH(UnsavedChoice, choice);
    Fixture f;
    QVERIFY(writeFile(f.otherFile, "other"));
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
        f.window.findChild<QMenu *>(QStringLiteral("menuRecentFiles"))->actions().first()->trigger();
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

void TestTableWindow::failedSavingKeepsTheWindowOpen()
{
    Fixture f;
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

void TestTableWindow::oneDroppedFileIsOpened()
{
    Fixture f;
    QVERIFY(drop(f.window, {QUrl::fromLocalFile(f.file)}));
    QTRY_COMPARE(f.window.fileName(), f.file);
    QCOMPARE(f.shownRows(), 2);
}

void TestTableWindow::otherThingsAreNotDropped()
{
    Fixture f;
    QVERIFY(!drop(f.window, {}));
    QVERIFY(!drop(f.window, {QUrl(QStringLiteral("http://www.velmora.example/lines.txt"))}));
    QVERIFY(!drop(f.window, {QUrl::fromLocalFile(f.file), QUrl::fromLocalFile(f.otherFile)}));
}

void TestTableWindow::filterNarrowsTheRows()
{
    Fixture f;
    QVERIFY(f.window.openFile(f.file));
    QTest::keyClicks(f.filter(), QStringLiteral("TW"));
    QCOMPARE(f.shownRows(), 1);
    QCOMPARE(f.place(), QStringLiteral("lines.txt   Rows: 1 of 2"));
}

void TestTableWindow::filterStandsAtTheEndOfTheToolBar()
{
    Fixture f;
    f.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.window));
    auto *bar = f.window.findChild<QToolBar *>(QStringLiteral("mainToolBar"));
    QCOMPARE(bar->widgetForAction(bar->actions().last()), f.filter());
    const QWidget *last = bar->widgetForAction(f.action("actionNumber"));
    QVERIFY(last->mapTo(bar, QPoint(last->width(), 0)).x() < f.filter()->x());
    QVERIFY(bar->width() - f.filter()->geometry().right() < 20);
}

void TestTableWindow::controlFGoesToTheFilterAndEscapeEmptiesIt()
{
    Fixture f;
    QVERIFY(f.window.openFile(f.file));
    f.window.show();
    f.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&f.window));
    QTest::keyClick(&f.window, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(f.filter()->hasFocus());
    QTest::keyClicks(f.filter(), QStringLiteral("tw"));
    QTest::keyClick(f.filter(), Qt::Key_Escape);
    QCOMPARE(f.filter()->text(), QString());
    QCOMPARE(f.shownRows(), 2);
}

void TestTableWindow::recentFilesAreOpened()
{
    Fixture f;
    QVERIFY(writeFile(f.otherFile, "other"));
    QVERIFY(f.window.openFile(f.file));
    QVERIFY(f.window.openFile(f.otherFile));
    const auto *menu = f.window.findChild<QMenu *>(QStringLiteral("menuRecentFiles"));
    QCOMPARE(menu->actions().size(), 2);
    menu->actions().at(1)->trigger();
    QCOMPARE(f.window.fileName(), f.file);
}

void TestTableWindow::recentFileThatIsGoneIsForgotten()
{
    Fixture f;
    QVERIFY(f.window.openFile(f.file));
    f.window.newTable();
    QVERIFY(QFile::remove(f.file));
    const auto *menu = f.window.findChild<QMenu *>(QStringLiteral("menuRecentFiles"));
    menu->actions().first()->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QVERIFY(!menu->isEnabled());
}

void TestTableWindow::geometryWidthsAndFolderAreRemembered()
{
    const TestFolder folder;
    const QString file = folder.path(QStringLiteral("lines.txt"));
    QVERIFY(writeFile(file, "one"));
    QSettings settings(folder.path(QStringLiteral("settings.ini")), QSettings::IniFormat);
    RecordingDialogs dialogs;
    {
        LineWindow window(dialogs, settings);
        window.resize(500, 300);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(window.openFile(file));
        QVERIFY(window.close());
    }
    LineWindow window(dialogs, settings);
    QCOMPARE(window.size(), QSize(500, 300));
    window.open();
    QCOMPARE(dialogs.openQuestions.last().folder, folder.path());
}

void TestTableWindow::closingDuringWorkCancelsItFirst()
{
    Fixture f;
    f.window.show();
    bool wasRefused = false;
    QTimer::singleShot(60, &f.window, [&] { wasRefused = !f.window.close() && f.window.isVisible(); });
    QElapsedTimer timer;
    timer.start();
    f.window.work(30'000);
    QVERIFY(timer.elapsed() < 15'000);
    QVERIFY(wasRefused);
    QVERIFY(f.window.isVisible());
    QTRY_VERIFY(!f.window.isVisible());
}

void TestTableWindow::noOrdersAreTakenDuringWork()
{
    Fixture f;
    f.dialogs.fileToChoose = f.file;
    bool wasBusy = false;
    bool wasDropped = false;
    QTimer::singleShot(60, &f.window, [&] {
        wasBusy = f.window.isBusy();
        wasDropped = drop(f.window, {QUrl::fromLocalFile(f.file)});
        f.window.newTable();
        f.window.open();
        f.window.save();
        f.window.saveAs();
        f.window.openFile(f.file);
    });
    f.window.work(200);
    QVERIFY(wasBusy);
    QVERIFY(!wasDropped);
    QVERIFY(!f.window.isBusy());
    QVERIFY(f.dialogs.openQuestions.isEmpty());
    QVERIFY(f.dialogs.saveQuestions.isEmpty());
    QVERIFY(!f.isEnabled("actionSave"));
}

void TestTableWindow::fileOfTheCommandLineIsOpened()
{
    Fixture f;
    Window::openNamedFile(f.window, {});
    Window::openNamedFile(f.window, {f.file});
    QTRY_COMPARE(f.window.fileName(), f.file);
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void TestTableWindow::aboutNamesTheProgram()
{
    Fixture f;
    f.action("actionAbout")->trigger();
    QCOMPARE(f.dialogs.tellings.size(), 1);
    QVERIFY(f.dialogs.tellings.first().text.startsWith(QStringLiteral("Line Utility")));
}

QTEST_MAIN(TestTableWindow)
#include "tst_table_window.moc"
