#include "line_window.h"
#include "support/test_class.h"
#include "window/window_program.h"

#include <QTest>
#include <QTimer>
#include <QToolBar>

class tst_table_window_conveniences : public QObject
{
    Q_OBJECT

private slots:
    void oneDroppedFileIsOpened();
    void otherThingsAreNotDropped();
    void fileOfTheCommandLineIsOpened();
    void recentFilesAreOpened();
    void recentFileThatIsGoneIsForgotten();
    void filterNarrowsTheRows();
    void filterStandsAtTheEndOfTheToolBar();
    void controlFGoesToTheFilterAndEscapeEmptiesIt();
    void geometryWidthsAndFolderAreRemembered();
    void geometryThatIsNoneIsNotTaken();
    void closingDuringWorkCancelsItFirst();
    void noOrdersAreTakenDuringWork();
    void aboutNamesTheProgram();
};

void tst_table_window_conveniences::oneDroppedFileIsOpened()
{
    LineWindowFixture f;
    QVERIFY(drop(f.window, {QUrl::fromLocalFile(f.file)}));
    QTRY_COMPARE(f.window.fileName(), f.file);
    QCOMPARE(f.shownRows(), 2);
}

void tst_table_window_conveniences::otherThingsAreNotDropped()
{
    LineWindowFixture f;
    QVERIFY(!drop(f.window, {}));
    QVERIFY(!drop(f.window, {QUrl(QStringLiteral("http://www.velmora.example/lines.txt"))}));
    QVERIFY(!drop(f.window, {QUrl::fromLocalFile(f.file), QUrl::fromLocalFile(f.otherFile)}));

    // Nor when something else was announced.
    QVERIFY(!drop(f.window, {QUrl::fromLocalFile(f.file)}, {}));
    QCoreApplication::processEvents();
    QVERIFY(f.window.fileName().isEmpty());
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_table_window_conveniences::fileOfTheCommandLineIsOpened()
{
    LineWindowFixture f;
    Window::openNamedFile(f.window, {});
    Window::openNamedFile(f.window, {f.file});
    QTRY_COMPARE(f.window.fileName(), f.file);
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_table_window_conveniences::recentFilesAreOpened()
{
    LineWindowFixture f;
    QVERIFY(writeBytes(f.otherFile, "other"));
    QVERIFY(f.window.openFile(f.file));
    QVERIFY(f.window.openFile(f.otherFile));
    const auto *menu = f.recentFiles();
    QCOMPARE(menu->actions().size(), 2);
    menu->actions().at(1)->trigger();
    QCOMPARE(f.window.fileName(), f.file);
}

void tst_table_window_conveniences::recentFileThatIsGoneIsForgotten()
{
    LineWindowFixture f;
    QVERIFY(f.window.openFile(f.file));
    f.window.newTable();
    QVERIFY(QFile::remove(f.file));
    const auto *menu = f.recentFiles();
    menu->actions().first()->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QVERIFY(!menu->isEnabled());
}

void tst_table_window_conveniences::filterNarrowsTheRows()
{
    LineWindowFixture f;
    QVERIFY(f.window.openFile(f.file));
    QTest::keyClicks(f.filter(), QStringLiteral("TW"));
    QCOMPARE(f.shownRows(), 1);
    QCOMPARE(f.place(), QStringLiteral("lines.txt   Rows: 1 of 2"));
}

void tst_table_window_conveniences::filterStandsAtTheEndOfTheToolBar()
{
    LineWindowFixture f;
    f.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.window));
    auto *bar = f.window.findChild<QToolBar *>(QStringLiteral("mainToolBar"));
    QCOMPARE(bar->widgetForAction(bar->actions().last()), f.filter());
    const QWidget *last = bar->widgetForAction(f.action("actionNumber"));
    QVERIFY(last->mapTo(bar, QPoint(last->width(), 0)).x() < f.filter()->x());
    QVERIFY(bar->width() - f.filter()->geometry().right() < 20);
}

void tst_table_window_conveniences::controlFGoesToTheFilterAndEscapeEmptiesIt()
{
    LineWindowFixture f;
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

void tst_table_window_conveniences::geometryWidthsAndFolderAreRemembered()
{
    const TestFolder folder;
    const QString file = folder.path(QStringLiteral("lines.txt"));
    QVERIFY(writeBytes(file, "one"));
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

void tst_table_window_conveniences::geometryThatIsNoneIsNotTaken()
{
    const TestFolder folder;
    QSettings settings(folder.path(QStringLiteral("settings.ini")), QSettings::IniFormat);
    RecordingDialogs dialogs;
    const QSize usual = LineWindow(dialogs, settings).size();
    settings.setValue(QStringLiteral("geometry"), QByteArray("no geometry"));
    settings.setValue(QStringLiteral("columnWidths"), QVariantList{1});
    const LineWindow window(dialogs, settings);
    QCOMPARE(window.size(), usual);
}

void tst_table_window_conveniences::closingDuringWorkCancelsItFirst()
{
    LineWindowFixture f;
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

void tst_table_window_conveniences::noOrdersAreTakenDuringWork()
{
    LineWindowFixture f;
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

void tst_table_window_conveniences::aboutNamesTheProgram()
{
    LineWindowFixture f;
    f.action("actionAbout")->trigger();
    QCOMPARE(f.dialogs.tellings.size(), 1);
    QVERIFY(f.dialogs.tellings.first().text.startsWith(QStringLiteral("Line Utility")));
}

NVX_TEST(tst_table_window_conveniences)
#include "tst_table_window_conveniences.moc"
