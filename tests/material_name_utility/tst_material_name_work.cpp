// Work that takes long: it shows how far it is, and is cancelled by its dialog or by closing the window.

#include "name_utility_fixture.h"
#include "support/shown_progress.h"
#include "support/test_class.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace {

constexpr qint64 largeFile = 200'000'000;

// A well-formed document of that size, the parts again and again.
void writeLargeFile(const QString &fileName, const QByteArray &begin, const QByteArray &part,
                    const QByteArray &end, qint64 bytes)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write");
    file.write(begin);
    const QByteArray parts = part.repeated(100);
    while (file.pos() < bytes)
        file.write(parts);
    file.write(end);
}

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
    void closingDuringReadingEndsIt();
    void noOtherSynchronizationIsTakenMeanwhile();
    void largeDatabaseIsReadToItsEnd();
    void manyNamesAreShownAndFiltered();
};

void tst_material_name_work::readingALargeDatabaseIsCancelled()
{
    NameUtilityFixture f;
    writeLargeDatabase(f.databaseFile);
    QVERIFY(f.window.openFile(f.tableFile));
    const ProgressCanceller canceller;
    f.window.synchronize(f.databaseFile);
    QCOMPARE(canceller.label, QStringLiteral("Reading ") + f.databaseFile);
    QCOMPARE(f.status(), QStringLiteral("Synchronization cancelled, the table is as it was"));
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
    QCOMPARE(canceller.label, QStringLiteral("Reading ") + f.otherFile);
    QVERIFY(f.dialogs.warnings.isEmpty());
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
    QCOMPARE(f.window.fileName(), f.tableFile);
}

void tst_material_name_work::closingDuringReadingEndsIt()
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

void tst_material_name_work::noOtherSynchronizationIsTakenMeanwhile()
{
    NameUtilityFixture f;
    writeLargeDatabase(f.databaseFile, largeFile / 20);
    const QString other = f.folder.path(QStringLiteral("other.mdb"));
    QVERIFY(writeBytes(other, databaseOf({QStringLiteral("Air")})));
    bool wasBusy = false;
    QTimer::singleShot(1, &f.window, [&] {
        wasBusy = f.window.isBusy();
        f.window.synchronize(other);
    });
    f.window.synchronize(f.databaseFile);
    QVERIFY(wasBusy);
    QCOMPARE(f.status(), QStringLiteral("Found 1 names (1 new, 0 existing, and 0 obsolete)"));
    QCOMPARE(f.shownRows(), QStringList(QStringLiteral("Steel|Steel|") + NameUtilityFixture::newToolTip()));
    QCOMPARE(f.window.databaseFile(), f.databaseFile);
}

void tst_material_name_work::largeDatabaseIsReadToItsEnd()
{
    NameUtilityFixture f;
    writeLargeFile(f.databaseFile, "<materials>\n",
                   "<material><name>Steel</name><note>" + QByteArray(20'000, 'x') + "</note></material>\n",
                   "</materials>\n", largeFile);
    QVERIFY(QFileInfo(f.databaseFile).size() > largeFile);
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.status(), QStringLiteral("Found 1 names (1 new, 0 existing, and 0 obsolete)"));
}

void tst_material_name_work::manyNamesAreShownAndFiltered()
{
    constexpr int count = 100'000;
    NameUtilityFixture f;
    f.writeDatabase(manyNames(count));
    f.window.show();
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.status(), QStringLiteral("Found 100000 names (100000 new, 0 existing, and 0 obsolete)"));
    QCOMPARE(f.view()->model()->rowCount(), count);
    QCOMPARE(f.view()->model()->index(0, 0).data().toString(), QStringLiteral("Stahl № 0000000"));
    QCOMPARE(f.view()->model()->index(count - 1, 0).data().toString(), QStringLiteral("Stahl № 0099999"));

    auto *filter = f.window.findChild<QLineEdit *>(QStringLiteral("filterField"));
    QElapsedTimer timer;
    timer.start();
    filter->setText(QStringLiteral("99999"));
    qInfo("filtered in %lld ms", timer.elapsed());
    QCOMPARE(f.view()->model()->rowCount(), 1);
    filter->clear();

    f.dialogs.fileToChoose = f.otherFile;
    QVERIFY(f.window.saveAs());
    f.window.newTable();
    timer.start();
    QVERIFY(f.window.openFile(f.otherFile));
    qInfo("opened in %lld ms", timer.elapsed());
    QCOMPARE(f.view()->model()->rowCount(), count);
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.status(), QStringLiteral("Found 100000 names (0 new, 100000 existing, and 0 obsolete)"));
    QVERIFY(!f.window.hasUnsavedChanges());
}

NVX_TEST(tst_material_name_work)
#include "tst_material_name_work.moc"
