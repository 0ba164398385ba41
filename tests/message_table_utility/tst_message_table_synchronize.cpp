// Synchronising with a project's sources: what becomes of the table, and what the window says.

#include "support/test_class.h"
#include "utility_fixture.h"

#include <QRegularExpression>
#include <QTest>

namespace {

// "FOUND   Elapsed time: N.N sec"
void expectStatus(UtilityFixture &f, const QString &found)
{
    const QRegularExpression expected(
        QStringLiteral("^%1 {3}Elapsed time: \\d+\\.\\d sec$").arg(QRegularExpression::escape(found)));
    QVERIFY2(expected.match(f.status()).hasMatch(), qPrintable(f.status()));
}

} // namespace

class tst_message_table_synchronize : public QObject
{
    Q_OBJECT

private slots:
    void foundKeysAreNew();
    void keysNotFoundBecomeObsolete();
    void synchronisingTwiceChangesNothing();
    void messageThatComesBackStaysObsolete();
    void nothingFoundIsSaidSo();
    void dialogAsksForAProject();
    void laterDialogsStartInTheProjectsFolder();
    void fileThatIsNoProjectIsReported_data();
    void fileThatIsNoProjectIsReported();
    void missingSourcesAreReportedAndTheRestIsScanned();
    void badSourceIsReportedWithItsLine();
    void manyErrorsFitIntoABox();
    void elapsedTimeIsThatOfTheWork();
};

void tst_message_table_synchronize::foundKeysAreNew()
{
    UtilityFixture f;
    f.window.newTable();
    f.writeSource(QStringLiteral("a.cpp"), "namespace N { void C::f() { REPORT_ERROR(\"One\"); } }");
    f.writeSource(QStringLiteral("b.cpp"),
                  "void g() { REPORT_MESSAGE(\"Two\"); ASK_QUESTION(\"Go\", Yes | No, No); }");
    f.chooseProject({QStringLiteral("a.cpp"), QStringLiteral("b.cpp")});
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.shownRows(), (QStringList{QStringLiteral("client|N::C::f|One|New"),
                                         QStringLiteral("client|g|Go? Yes, No; No|New"),
                                         QStringLiteral("client|g|Two|New")}));
    expectStatus(f, QStringLiteral("Found 3 keys (3 new, 0 existing, and 0 obsolete)"));
    QVERIFY(f.window.hasUnsavedChanges());
    QVERIFY(f.isEnabled("actionSave"));
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_message_table_synchronize::keysNotFoundBecomeObsolete()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(f.window.save());
    f.writeSource(QStringLiteral("a.cpp"), "void B::run() { REPORT_ERROR(\"Alpha\"); }");
    f.chooseProject({QStringLiteral("a.cpp")});
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.shownRows(), (QStringList{QStringLiteral("client|A::run|Bravo|Obsolete"),
                                         QStringLiteral("client|B::run|Alpha|New"),
                                         QStringLiteral("solver|A::run|Zulu|Obsolete")}));
    expectStatus(f, QStringLiteral("Found 1 keys (0 new, 3 existing, and 2 obsolete)"));
    QVERIFY(f.window.hasUnsavedChanges());
    QVERIFY(f.isEnabled("actionSave"));
}

void tst_message_table_synchronize::synchronisingTwiceChangesNothing()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.writeSource(QStringLiteral("a.cpp"), "void B::run() { REPORT_ERROR(\"Alpha\"); }");
    f.chooseProject({QStringLiteral("a.cpp")});
    f.action("actionSynchronize")->trigger();
    QVERIFY(f.window.save());
    f.action("actionSynchronize")->trigger();
    expectStatus(f, QStringLiteral("Found 1 keys (0 new, 3 existing, and 2 obsolete)"));
    QVERIFY(!f.window.hasUnsavedChanges());
    QVERIFY(!f.isEnabled("actionSave"));
}

void tst_message_table_synchronize::messageThatComesBackStaysObsolete()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.writeSource(QStringLiteral("a.cpp"), "void A::run() { REPORT_ERROR(\"Bravo\"); }");
    f.chooseProject({QStringLiteral("a.cpp")});
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.shownRows().first(), QStringLiteral("client|A::run|Bravo|Obsolete"));
}

void tst_message_table_synchronize::nothingFoundIsSaidSo()
{
    UtilityFixture f;
    f.window.newTable();
    f.writeSource(QStringLiteral("a.cpp"), "void f() {}");
    f.chooseProject({QStringLiteral("a.cpp")});
    f.action("actionSynchronize")->trigger();
    expectStatus(f, QStringLiteral("Found 0 keys"));
    QVERIFY(!f.window.hasUnsavedChanges());
    f.chooseProject({});
    f.action("actionSynchronize")->trigger();
    expectStatus(f, QStringLiteral("Found 0 keys"));
}

void tst_message_table_synchronize::dialogAsksForAProject()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.openQuestions.size(), 1);
    QCOMPARE(f.dialogs.openQuestions.first().title, QStringLiteral("Open Visual Studio Project"));
    QCOMPARE(f.dialogs.openQuestions.first().filter, QStringLiteral("*.vcxproj"));
    QCOMPARE(f.dialogs.openQuestions.first().folder, f.folder.path());
}

void tst_message_table_synchronize::laterDialogsStartInTheProjectsFolder()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.chooseProject({});
    f.action("actionSynchronize")->trigger();
    f.action("actionTranslate")->trigger();
    QCOMPARE(f.dialogs.openQuestions.last().folder, f.folder.path(QStringLiteral("project")));
}

void tst_message_table_synchronize::fileThatIsNoProjectIsReported_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no XML") << QByteArray("\x89PNG\r\n");
    QTest::newRow("truncated") << QByteArray("<Project><ItemGroup><ClCompile Include=\"a.cpp\"/>");
    QTest::newRow("another document") << QByteArray("<html/>");
}

void tst_message_table_synchronize::fileThatIsNoProjectIsReported()
{
    QFETCH(QByteArray, bytes);
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(writeBytes(f.projectFile, bytes));
    f.dialogs.fileToChoose = f.projectFile;
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, QStringLiteral("Visual Studio Project Error"));
    QCOMPARE(f.dialogs.warnings.first().text, QStringLiteral("Could not parse %1").arg(f.projectFile));
    QCOMPARE(f.shownRows(), UtilityFixture::tableRows());
    QVERIFY(!f.window.hasUnsavedChanges());
}

void tst_message_table_synchronize::missingSourcesAreReportedAndTheRestIsScanned()
{
    UtilityFixture f;
    f.window.newTable();
    f.writeSource(QStringLiteral("a.cpp"), "void f() { REPORT_ERROR(\"One\"); }");
    f.chooseProject({QStringLiteral("gone.cpp"), QStringLiteral("a.cpp"), QStringLiteral("sub\\gone.cpp")});
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, QStringLiteral("Parser Error"));
    QCOMPARE(f.dialogs.warnings.first().text,
             QStringLiteral("gone.cpp: Cannot open file\nsub\\gone.cpp: Cannot open file\n\n"
                            "These files were skipped: their messages were not found."));
    QCOMPARE(f.shownRows(), QStringList(QStringLiteral("client|f|One|New")));
    expectStatus(f, QStringLiteral("Found 1 keys (1 new, 0 existing, and 0 obsolete)"));
}

void tst_message_table_synchronize::badSourceIsReportedWithItsLine()
{
    UtilityFixture f;
    f.window.newTable();
    f.writeSource(QStringLiteral("a.cpp"), "void f()\n{\n    REPORT_ERROR(\"a\\a\");\n}\n");
    f.chooseProject({QStringLiteral("a.cpp")});
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, QStringLiteral("Parser Error"));
    const QString text = f.dialogs.warnings.first().text;
    QVERIFY2(QRegularExpression(QStringLiteral("^a\\.cpp: .+ \\(line 3\\)\\n")).match(text).hasMatch(),
             qPrintable(text));
}

void tst_message_table_synchronize::manyErrorsFitIntoABox()
{
    UtilityFixture f;
    f.window.newTable();
    QStringList files;
    for (int number = 0; number < 500; ++number)
        files.append(QStringLiteral("gone%1.cpp").arg(number));
    f.chooseProject(files);
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    const QString text = f.dialogs.warnings.first().text;
    QVERIFY(text.contains(QStringLiteral("\ngone9.cpp: Cannot open file\n... and 490 more\n")));
    QVERIFY(text.count(u'\n') < 15);
}

void tst_message_table_synchronize::elapsedTimeIsThatOfTheWork()
{
    constexpr int reading = 2000; // milliseconds that the user takes for the box
    UtilityFixture f;
    f.window.newTable();
    f.chooseProject({QStringLiteral("gone.cpp")});
    f.dialogs.whileWarning = [] { QTest::qSleep(reading); };
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    const QString elapsed = f.status().section(QStringLiteral("Elapsed time: "), 1).section(u' ', 0, 0);
    QVERIFY2(elapsed.toDouble() < reading / 1000.0, qPrintable(f.status()));
}

NVX_TEST(tst_message_table_synchronize)
#include "tst_message_table_synchronize.moc"
