#include "name_utility_fixture.h"
#include "support/test_class.h"

#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

class tst_material_name_synchronize : public QObject
{
    Q_OBJECT

private slots:
    void databaseDialogStartsInTheLastFolder();
    void tableIsSynchronized();
    void statusHasNoTimeout();
    void sameDatabaseTwiceChangesNothing();
    void obsoleteNameThatIsFoundAgainStaysObsolete();
    void onlyAChangedTableIsUnsaved();
    void namesOfTheDatabaseIncludeDuplicates();
    void newRowsAreMarkedUntilTheNextSynchronization();
    void otherContextsOfTheTableAreUnchanged();
    void windowWithoutATableStartsANewOne();
    void droppedDatabaseIsSynchronizedWith_data();
    void droppedDatabaseIsSynchronizedWith();
    void droppedTableIsOpened();
};

void tst_material_name_synchronize::databaseDialogStartsInTheLastFolder()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(QDir().mkdir(f.folder.path(u"client"_s)));
    const QString database = f.folder.path(u"client/matprop.mdb"_s);
    QVERIFY(writeBytes(database, databaseOf({u"Water"_s})));
    f.dialogs.fileToChoose = database;
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.openQuestions.size(), 1);
    QCOMPARE(f.dialogs.openQuestions.first().title, u"Open Material Database"_s);
    QCOMPARE(f.dialogs.openQuestions.first().filter, u"*.mdb"_s);
    QCOMPARE(f.dialogs.openQuestions.first().folder, f.folder.path());
    QCOMPARE(f.window.databaseFile(), database);

    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.openQuestions.last().folder, f.folder.path(u"client"_s));
}

// Found 3: Steel and Iron are new, Air and Oil obsolete, 3 - 2 - 2 are reported as existing.
void tst_material_name_synchronize::tableIsSynchronized()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.dialogs.fileToChoose = f.databaseFile;
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.status(), u"Found 3 names (2 new, -1 existing, and 2 obsolete)"_s);
    QCOMPARE(f.shownRows(),
             QStringList({u"Air|Air|"_s + NameUtilityFixture::obsoleteToolTip(),
                          u"Iron|Iron|"_s + NameUtilityFixture::newToolTip(),
                          u"Oil|Öl|"_s + NameUtilityFixture::obsoleteToolTip(),
                          u"Steel|Steel|"_s + NameUtilityFixture::newToolTip(), u"Water|Wasser"_s}));
    QVERIFY(f.window.hasUnsavedChanges());
    QVERIFY(f.isEnabled("actionSave"));
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_material_name_synchronize::statusHasNoTimeout()
{
    NameUtilityFixture f;
    f.window.newTable();
    f.window.synchronize(f.databaseFile);
    const QList<QTimer *> timers = f.window.statusBar()->findChildren<QTimer *>();
    for (const QTimer *timer : timers)
        QVERIFY(!timer->isActive());
    QCOMPARE(f.status(), u"Found 3 names (3 new, 0 existing, and 0 obsolete)"_s);
}

void tst_material_name_synchronize::sameDatabaseTwiceChangesNothing()
{
    NameUtilityFixture f;
    f.window.newTable();
    f.window.synchronize(f.databaseFile);
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.status(), u"Found 3 names (0 new, 3 existing, and 0 obsolete)"_s);
}

void tst_material_name_synchronize::obsoleteNameThatIsFoundAgainStaysObsolete()
{
    NameUtilityFixture f;
    f.writeDatabase({u"Air"_s, u"Oil"_s, u"Water"_s});
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.status(), u"Found 3 names (0 new, 3 existing, and 0 obsolete)"_s);
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
}

// Save is enabled after every synchronisation, but the user is asked only about a change.
void tst_material_name_synchronize::onlyAChangedTableIsUnsaved()
{
    NameUtilityFixture f;
    f.writeDatabase({u"Air"_s, u"Water"_s});
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(f.window.save());
    QVERIFY(!f.isEnabled("actionSave"));
    f.window.synchronize(f.databaseFile);
    QVERIFY(f.isEnabled("actionSave"));
    QVERIFY(!f.window.hasUnsavedChanges());
    QVERIFY(f.window.close());
    QVERIFY(f.dialogs.unsavedQuestions.isEmpty());

    f.writeDatabase({u"Air"_s});
    f.window.synchronize(f.databaseFile);
    QVERIFY(f.window.hasUnsavedChanges());
    QVERIFY(!f.window.close());
    QCOMPARE(f.dialogs.unsavedQuestions.size(), 1);
}

void tst_material_name_synchronize::namesOfTheDatabaseIncludeDuplicates()
{
    NameUtilityFixture f;
    f.writeDatabase({u"B"_s, u"A"_s, u"B"_s, QString()});
    f.window.newTable();
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.window.materialNames(), QStringList({u"B"_s, u"A"_s, u"B"_s, QString()}));
    QCOMPARE(f.status(), u"Found 3 names (3 new, 0 existing, and 0 obsolete)"_s);
    QCOMPARE(f.rowCount(), 3);
}

void tst_material_name_synchronize::newRowsAreMarkedUntilTheNextSynchronization()
{
    NameUtilityFixture f;
    f.window.newTable();
    f.window.synchronize(f.databaseFile);
    QVERIFY(f.shownRows().constFirst().endsWith(NameUtilityFixture::newToolTip()));
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.shownRows().constFirst(), u"Iron|Iron"_s);
}

void tst_material_name_synchronize::otherContextsOfTheTableAreUnchanged()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.synchronize(f.databaseFile);
    const auto &other = f.window.table().contexts().at(u"Clt::Session"_s).messages();
    QCOMPARE(other.size(), std::size_t(1));
    QCOMPARE(other.front().type, u"unfinished"_s);
}

void tst_material_name_synchronize::windowWithoutATableStartsANewOne()
{
    NameUtilityFixture f;
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.status(), u"Found 3 names (3 new, 0 existing, and 0 obsolete)"_s);
    QCOMPARE(f.rowCount(), 3);
    QVERIFY(f.areTableActionsEnabled(true));
    QVERIFY(f.window.hasUnsavedChanges());
}

void tst_material_name_synchronize::droppedDatabaseIsSynchronizedWith_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("lower case") << u"matprop.mdb"_s;
    QTest::newRow("upper case") << u"MATERIAL.MDB"_s;
}

void tst_material_name_synchronize::droppedDatabaseIsSynchronizedWith()
{
    QFETCH(const QString, name);
    NameUtilityFixture f;
    const QString database = f.folder.path(name);
    QVERIFY(writeBytes(database, databaseOf({u"Air"_s})));
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(drop(f.window, {QUrl::fromLocalFile(database)}));
    QTRY_COMPARE(f.status(), u"Found 1 names (0 new, -1 existing, and 2 obsolete)"_s);
    QCOMPARE(f.window.databaseFile(), database);
    QCOMPARE(f.window.fileName(), f.tableFile);
}

void tst_material_name_synchronize::droppedTableIsOpened()
{
    NameUtilityFixture f;
    QVERIFY(drop(f.window, {QUrl::fromLocalFile(f.tableFile)}));
    QTRY_COMPARE(f.shownRows(), NameUtilityFixture::tableRows());
}

NVX_TEST(tst_material_name_synchronize)
#include "tst_material_name_synchronize.moc"
