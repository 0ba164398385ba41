#include "name_utility_fixture.h"
#include "support/test_class.h"
#include "window/line_window.h"

#include <QTest>
#include <QTimer>

class tst_material_name_synchronize : public QObject
{
    Q_OBJECT

private slots:
    void databaseIsAskedForInTheLastFolder();
    void tableIsBroughtInStep();
    void statusStays();
    void sameDatabaseTwiceBringsNothing();
    void nameThatComesBackStaysObsolete();
    void changesAreToldApartFromNone();
    void namesOfTheDatabaseAreKept();
    void newRowsAreMarkedUntilTheNextSynchronization();
    void otherTextsOfTheTableAreLeft();
    void windowWithoutATableBeginsANewOne();
    void databaseThatIsDroppedIsSynchronizedWith_data();
    void databaseThatIsDroppedIsSynchronizedWith();
    void tableThatIsDroppedIsOpened();
};

void tst_material_name_synchronize::databaseIsAskedForInTheLastFolder()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(QDir().mkdir(f.folder.path(QStringLiteral("client"))));
    const QString database = f.folder.path(QStringLiteral("client/matprop.mdb"));
    QVERIFY(writeBytes(database, databaseOf({QStringLiteral("Water")})));
    f.dialogs.fileToChoose = database;
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.openQuestions.size(), 1);
    QCOMPARE(f.dialogs.openQuestions.first().title, QStringLiteral("Open Material Database"));
    QCOMPARE(f.dialogs.openQuestions.first().filter, QStringLiteral("*.mdb"));
    QCOMPARE(f.dialogs.openQuestions.first().folder, f.folder.path());
    QCOMPARE(f.window.databaseFile(), database);

    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.openQuestions.last().folder, f.folder.path(QStringLiteral("client")));
}

// Found 3; Steel and Iron are new, Air and Oil obsolete; 3 - 2 - 2 are reported as existing.
void tst_material_name_synchronize::tableIsBroughtInStep()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.dialogs.fileToChoose = f.databaseFile;
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.status(), QStringLiteral("Found 3 names (2 new, -1 existing, and 2 obsolete)"));
    QCOMPARE(f.shownRows(), QStringList({QStringLiteral("Air|Air|") + NameUtilityFixture::obsoleteToolTip(),
                                         QStringLiteral("Iron|Iron|") + NameUtilityFixture::newToolTip(),
                                         QStringLiteral("Oil|Öl|") + NameUtilityFixture::obsoleteToolTip(),
                                         QStringLiteral("Steel|Steel|") + NameUtilityFixture::newToolTip(),
                                         QStringLiteral("Water|Wasser")}));
    QVERIFY(f.window.hasUnsavedChanges());
    QVERIFY(f.isEnabled("actionSave"));
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_material_name_synchronize::statusStays()
{
    NameUtilityFixture f;
    f.window.newTable();
    f.window.synchronize(f.databaseFile);
    const QList<QTimer *> timers = f.window.statusBar()->findChildren<QTimer *>();
    for (const QTimer *timer : timers)
        QVERIFY(!timer->isActive());
    QCOMPARE(f.status(), QStringLiteral("Found 3 names (3 new, 0 existing, and 0 obsolete)"));
}

void tst_material_name_synchronize::sameDatabaseTwiceBringsNothing()
{
    NameUtilityFixture f;
    f.window.newTable();
    f.window.synchronize(f.databaseFile);
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.status(), QStringLiteral("Found 3 names (0 new, 3 existing, and 0 obsolete)"));
}

void tst_material_name_synchronize::nameThatComesBackStaysObsolete()
{
    NameUtilityFixture f;
    f.writeDatabase({QStringLiteral("Air"), QStringLiteral("Oil"), QStringLiteral("Water")});
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.status(), QStringLiteral("Found 3 names (0 new, 3 existing, and 0 obsolete)"));
    QCOMPARE(f.shownRows(), NameUtilityFixture::tableRows());
}

// Saving is possible after every synchronisation, but only a change is asked about.
void tst_material_name_synchronize::changesAreToldApartFromNone()
{
    NameUtilityFixture f;
    f.writeDatabase({QStringLiteral("Air"), QStringLiteral("Water")});
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(f.window.save());
    QVERIFY(!f.isEnabled("actionSave"));
    f.window.synchronize(f.databaseFile);
    QVERIFY(f.isEnabled("actionSave"));
    QVERIFY(!f.window.hasUnsavedChanges());
    QVERIFY(f.window.close());
    QVERIFY(f.dialogs.unsavedQuestions.isEmpty());

    f.writeDatabase({QStringLiteral("Air")});
    f.window.synchronize(f.databaseFile);
    QVERIFY(f.window.hasUnsavedChanges());
    QVERIFY(!f.window.close());
    QCOMPARE(f.dialogs.unsavedQuestions.size(), 1);
}

void tst_material_name_synchronize::namesOfTheDatabaseAreKept()
{
    NameUtilityFixture f;
    f.writeDatabase({QStringLiteral("B"), QStringLiteral("A"), QStringLiteral("B"), QString()});
    f.window.newTable();
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.window.materialNames(),
             QStringList({QStringLiteral("B"), QStringLiteral("A"), QStringLiteral("B"), QString()}));
    QCOMPARE(f.status(), QStringLiteral("Found 3 names (3 new, 0 existing, and 0 obsolete)"));
    QCOMPARE(f.view()->model()->rowCount(), 3);
}

void tst_material_name_synchronize::newRowsAreMarkedUntilTheNextSynchronization()
{
    NameUtilityFixture f;
    f.window.newTable();
    f.window.synchronize(f.databaseFile);
    QVERIFY(f.shownRows().constFirst().endsWith(NameUtilityFixture::newToolTip()));
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.shownRows().constFirst(), QStringLiteral("Iron|Iron"));
}

void tst_material_name_synchronize::otherTextsOfTheTableAreLeft()
{
    NameUtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.window.synchronize(f.databaseFile);
    const auto &other = f.window.table().contexts().at(QStringLiteral("Clt::Session")).messages();
    QCOMPARE(other.size(), std::size_t(1));
    QCOMPARE(other.front().type, QStringLiteral("unfinished"));
}

void tst_material_name_synchronize::windowWithoutATableBeginsANewOne()
{
    NameUtilityFixture f;
    f.window.synchronize(f.databaseFile);
    QCOMPARE(f.status(), QStringLiteral("Found 3 names (3 new, 0 existing, and 0 obsolete)"));
    QCOMPARE(f.view()->model()->rowCount(), 3);
    for (const char *name : {"actionSave", "actionSaveAs", "actionSynchronize"})
        QVERIFY2(f.isEnabled(name), name);
    QVERIFY(f.window.hasUnsavedChanges());
}

void tst_material_name_synchronize::databaseThatIsDroppedIsSynchronizedWith_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("as usual") << QStringLiteral("matprop.mdb");
    QTest::newRow("in capitals") << QStringLiteral("MATERIAL.MDB");
}

void tst_material_name_synchronize::databaseThatIsDroppedIsSynchronizedWith()
{
    QFETCH(const QString, name);
    NameUtilityFixture f;
    const QString database = f.folder.path(name);
    QVERIFY(writeBytes(database, databaseOf({QStringLiteral("Air")})));
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(drop(f.window, {QUrl::fromLocalFile(database)}));
    QTRY_COMPARE(f.status(), QStringLiteral("Found 1 names (0 new, -1 existing, and 2 obsolete)"));
    QCOMPARE(f.window.databaseFile(), database);
    QCOMPARE(f.window.fileName(), f.tableFile);
}

void tst_material_name_synchronize::tableThatIsDroppedIsOpened()
{
    NameUtilityFixture f;
    QVERIFY(drop(f.window, {QUrl::fromLocalFile(f.tableFile)}));
    QTRY_COMPARE(f.shownRows(), NameUtilityFixture::tableRows());
}

NVX_TEST(tst_material_name_synchronize)
#include "tst_material_name_synchronize.moc"
