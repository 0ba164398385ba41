#include "line_window.h"
#include "support/test_class.h"
#include "window/window_program.h"

#include <QTest>
#include <QTimer>
#include <QToolBar>

using namespace Qt::Literals::StringLiterals;

class tst_table_window_conveniences : public QObject
{
    Q_OBJECT

private slots:
    void oneDroppedFileIsOpened();
    void otherUrlsAreNotAccepted();
    void fileOnTheCommandLineIsOpened();
    void recentFileIsOpened();
    void missingRecentFileIsRemoved();
    void filterHidesOtherRows();
    void filterIsAtTheEndOfTheToolBar();
    void controlFFocusesTheFilterAndEscapeClearsIt();
    void geometryAndFolderAreRestored();
    void invalidGeometryIsIgnored();
    void closingDuringAnOperationCancelsIt();
    void busyWindowAcceptsNoCommands();
    void aboutShowsTheProgramsName();
};

void tst_table_window_conveniences::oneDroppedFileIsOpened()
{
    LineWindowFixture f;
    QVERIFY(drop(f.window, {QUrl::fromLocalFile(f.file)}));
    QTRY_COMPARE(f.window.fileName(), f.file);
    QCOMPARE(f.rowCount(), 2);
}

void tst_table_window_conveniences::otherUrlsAreNotAccepted()
{
    LineWindowFixture f;
    QVERIFY(!drop(f.window, {}));
    QVERIFY(!drop(f.window, {QUrl(u"http://www.velmora.example/lines.txt"_s)}));
    QVERIFY(!drop(f.window, {QUrl::fromLocalFile(f.file), QUrl::fromLocalFile(f.otherFile)}));

    // Nor if the dropped list differs from the dragged one.
    QVERIFY(!drop(f.window, {QUrl::fromLocalFile(f.file)}, {}));
    QCoreApplication::processEvents();
    QVERIFY(f.window.fileName().isEmpty());
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_table_window_conveniences::fileOnTheCommandLineIsOpened()
{
    LineWindowFixture f;
    Window::openNamedFile(f.window, {});
    Window::openNamedFile(f.window, {f.file});
    QTRY_COMPARE(f.window.fileName(), f.file);
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_table_window_conveniences::recentFileIsOpened()
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

void tst_table_window_conveniences::missingRecentFileIsRemoved()
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

void tst_table_window_conveniences::filterHidesOtherRows()
{
    LineWindowFixture f;
    QVERIFY(f.window.openFile(f.file));
    QTest::keyClicks(f.filter(), u"TW"_s);
    QCOMPARE(f.rowCount(), 1);
    QCOMPARE(f.place(), u"lines.txt   Rows: 1 of 2"_s);
}

void tst_table_window_conveniences::filterIsAtTheEndOfTheToolBar()
{
    LineWindowFixture f;
    f.window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&f.window));
    auto *bar = f.window.findChild<QToolBar *>(u"mainToolBar"_s);
    QCOMPARE(bar->widgetForAction(bar->actions().last()), f.filter());
    const QWidget *last = bar->widgetForAction(f.action("actionNumber"));
    QVERIFY(last->mapTo(bar, QPoint(last->width(), 0)).x() < f.filter()->x());
    QVERIFY(bar->width() - f.filter()->geometry().right() < 20);
}

void tst_table_window_conveniences::controlFFocusesTheFilterAndEscapeClearsIt()
{
    LineWindowFixture f;
    QVERIFY(f.window.openFile(f.file));
    f.window.show();
    f.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&f.window));
    QTest::keyClick(&f.window, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(f.filter()->hasFocus());
    QTest::keyClicks(f.filter(), u"tw"_s);
    QTest::keyClick(f.filter(), Qt::Key_Escape);
    QCOMPARE(f.filter()->text(), QString());
    QCOMPARE(f.rowCount(), 2);
}

void tst_table_window_conveniences::geometryAndFolderAreRestored()
{
    const TestFolder folder;
    const QString file = folder.path(u"lines.txt"_s);
    QVERIFY(writeBytes(file, "one"));
    QSettings settings(folder.path(u"settings.ini"_s), QSettings::IniFormat);
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

void tst_table_window_conveniences::invalidGeometryIsIgnored()
{
    const TestFolder folder;
    QSettings settings(folder.path(u"settings.ini"_s), QSettings::IniFormat);
    RecordingDialogs dialogs;
    const QSize usual = LineWindow(dialogs, settings).size();
    settings.setValue(u"geometry"_s, QByteArray("no geometry"));
    settings.setValue(u"columnWidths"_s, QVariantList{1});
    const LineWindow window(dialogs, settings);
    QCOMPARE(window.size(), usual);
}

void tst_table_window_conveniences::closingDuringAnOperationCancelsIt()
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

void tst_table_window_conveniences::busyWindowAcceptsNoCommands()
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

void tst_table_window_conveniences::aboutShowsTheProgramsName()
{
    LineWindowFixture f;
    f.action("actionAbout")->trigger();
    QCOMPARE(f.dialogs.notices.size(), 1);
    QVERIFY(f.dialogs.notices.first().text.startsWith(u"Line Utility"_s));
}

NVX_TEST(tst_table_window_conveniences)
#include "tst_table_window_conveniences.moc"
