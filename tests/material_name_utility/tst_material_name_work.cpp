// Long operations: they show their progress, and are cancelled in its dialog or by closing the window.

#include "materials/many_names.h"
#include "name_utility_fixture.h"
#include "support/processor_time.h"
#include "support/shown_progress.h"
#include "support/test_class.h"
#include "window/faulty_files.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 largeFile = 200'000'000;

void writeLargeDatabase(const QString &fileName, qint64 bytes = largeFile / 4)
{
    writeLargeFile(fileName, "<materials>\n",
                   "<material><name>Steel</name><density>7850</density></material>\n", "</materials>\n",
                   bytes);
}

} // namespace

class tst_material_name_work : public QObject
{
    Q_OBJECT

private slots:
    void readingALargeDatabaseIsCancelled();
    void openingALargeTableIsCancelled();
    void closingDuringReadingCancelsIt();
    void busyWindowStartsNoOtherSynchronization();
    void largeDatabaseIsReadCompletely();
    void manyNamesAreShownAndFiltered();
};

void tst_material_name_work::readingALargeDatabaseIsCancelled()
{
    NameUtilityFixture f;
    writeLargeDatabase(f.databaseFile);
    QVERIFY(f.window.openFile(f.tableFile));
    const ProgressCanceller canceller;
    f.window.synchronize(f.databaseFile);
    QCOMPARE(canceller.label, u"Reading "_s + f.databaseFile);
    QCOMPARE(f.status(), u"Synchronization cancelled; the table is unchanged"_s);
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
    QVERIFY(!f.window.hasUnsavedChanges());
    QVERIFY(f.dialogs.warnings.isEmpty());
    QVERIFY(f.window.materialNames().isEmpty());
}

void tst_material_name_work::openingALargeTableIsCancelled()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    writeLargeFile(f.otherFile, "<TS>\n<context><name>Clt::Material</name>\n",
                   "<message><source>Steel</source><translation>Stahl</translation></message>\n",
                   "</context></TS>\n", largeFile / 4);
    const ProgressCanceller canceller;
    QVERIFY(!f.window.openFile(f.otherFile));
    QCOMPARE(canceller.label, u"Reading "_s + f.otherFile);
    QVERIFY(f.dialogs.warnings.isEmpty());
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
    QCOMPARE(f.window.fileName(), f.tableFile);
}

void tst_material_name_work::closingDuringReadingCancelsIt()
{
    NameUtilityFixture f;
    f.window.show();
    writeLargeDatabase(f.databaseFile);
    QVERIFY(f.window.openFile(f.tableFile));
    QTimer::singleShot(1, &f.window, [&f] { f.window.close(); });
    f.window.synchronize(f.databaseFile);
    QVERIFY(f.window.isVisible());
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
    QTRY_VERIFY(!f.window.isVisible());
    QVERIFY(f.dialogs.warnings.isEmpty());
    QVERIFY(f.dialogs.unsavedQuestions.isEmpty());
}

void tst_material_name_work::busyWindowStartsNoOtherSynchronization()
{
    NameUtilityFixture f;
    writeLargeDatabase(f.databaseFile, largeFile / 20);
    const QString other = f.folder.path(u"other.mdb"_s);
    QVERIFY(writeBytes(other, databaseOf({u"Air"_s})));
    bool wasBusy = false;
    QTimer::singleShot(1, &f.window, [&] {
        wasBusy = f.window.isBusy();
        f.window.synchronize(other);
    });
    f.window.synchronize(f.databaseFile);
    QVERIFY(wasBusy);
    QCOMPARE(f.status(), u"Found 1 names (1 new, 0 existing, and 0 obsolete)"_s);
    QCOMPARE(f.shownRows(), QStringList(u"Steel|Steel|"_s + NameUtilityFixture::newToolTip()));
    QCOMPARE(f.window.databaseFile(), f.databaseFile);
}

void tst_material_name_work::largeDatabaseIsReadCompletely()
{
    NameUtilityFixture f;
    writeLargeFile(f.databaseFile, "<materials>\n",
                   "<material><name>Steel</name><note>" + QByteArray(20'000, 'x') + "</note></material>\n",
                   "</materials>\n", largeFile);
    QVERIFY(QFileInfo(f.databaseFile).size() > largeFile);
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.status(), u"Found 1 names (1 new, 0 existing, and 0 obsolete)"_s);
}

void tst_material_name_work::manyNamesAreShownAndFiltered()
{
    // Fewer with sanitizers, where it is about the memory and not the time.
    constexpr int count = 100'000 / sanitizerFactor;
    NameUtilityFixture f;
    f.writeDatabase(manyNames(count));
    f.window.show();
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.status(), u"Found %1 names (%1 new, 0 existing, and 0 obsolete)"_s.arg(count));
    QCOMPARE(f.rowCount(), count);
    QCOMPARE(f.view()->model()->index(0, 0).data().toString(), u"Stahl № 0000000"_s);
    QCOMPARE(f.view()->model()->index(count - 1, 0).data().toString(),
             u"Stahl № %1"_s.arg(count - 1, 7, 10, QChar(u'0')));

    QElapsedTimer timer;
    timer.start();
    f.filter()->setText(QString::number(count - 1));
    qInfo("filtered in %lld ms", timer.elapsed());
    QCOMPARE(f.rowCount(), 1);
    f.filter()->clear();

    f.dialogs.fileToChoose = f.otherFile;
    QVERIFY(f.window.saveAs());
    f.window.newTable();
    timer.start();
    QVERIFY(f.window.openFile(f.otherFile));
    qInfo("opened in %lld ms", timer.elapsed());
    QCOMPARE(f.rowCount(), count);
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.status(), u"Found %1 names (0 new, %1 existing, and 0 obsolete)"_s.arg(count));
    QVERIFY(!f.window.hasUnsavedChanges());
}

NVX_TEST(tst_material_name_work)
#include "tst_material_name_work.moc"
