// Synchronising with a project's sources: the table and the window's messages.

#include "support/test_class.h"
#include "utility_fixture.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

// "FOUND   Elapsed time: N.N sec"
void expectStatus(UtilityFixture &f, const QString &found)
{
    const QRegularExpression expected(
        u"^%1 {3}Elapsed time: \\d+\\.\\d sec$"_s.arg(QRegularExpression::escape(found)));
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
    void obsoleteMessageThatIsFoundAgainStaysObsolete();
    void synchronisingWithoutKeysReportsZero();
    void dialogAsksForAProject();
    void laterDialogsStartInTheProjectsFolder();
    void fileThatIsNoProjectIsReported_data();
    void fileThatIsNoProjectIsReported();
    void missingSourcesAreReportedAndTheOthersScanned();
    void entriesOfTheProjectThatCannotBeResolvedAreNamed();
    void theReasonWhyASourceIsNotOpenedIsNamed();
    void faultySourceIsReportedWithItsLine();
    void manyErrorsFitIntoAMessageBox();
    void elapsedTimeExcludesTheMessageBox();
};

void tst_message_table_synchronize::foundKeysAreNew()
{
    UtilityFixture f;
    f.window.newTable();
    f.writeSource(u"a.cpp"_s, "namespace N { void C::f() { REPORT_ERROR(\"One\"); } }");
    f.writeSource(u"b.cpp"_s, "void g() { REPORT_MESSAGE(\"Two\"); ASK_QUESTION(\"Go\", Yes | No, No); }");
    f.chooseProject({u"a.cpp"_s, u"b.cpp"_s});
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.shownRows(), (QStringList{u"client|N::C::f|One|New"_s, u"client|g|Go? Yes, No; No|New"_s,
                                         u"client|g|Two|New"_s}));
    expectStatus(f, u"Found 3 keys (3 new, 0 existing, and 0 obsolete)"_s);
    QVERIFY(f.window.hasUnsavedChanges());
    QVERIFY(f.isEnabled("actionSave"));
    QVERIFY(f.dialogs.warnings.isEmpty());
}

void tst_message_table_synchronize::keysNotFoundBecomeObsolete()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    QVERIFY(f.window.save());
    f.chooseProjectOf("void B::run() { REPORT_ERROR(\"Alpha\"); }");
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.shownRows(), (QStringList{u"client|A::run|Bravo|Obsolete"_s, u"client|B::run|Alpha|New"_s,
                                         u"solver|A::run|Zulu|Obsolete"_s}));
    expectStatus(f, u"Found 1 keys (0 new, 3 existing, and 2 obsolete)"_s);
    QVERIFY(f.window.hasUnsavedChanges());
    QVERIFY(f.isEnabled("actionSave"));
}

void tst_message_table_synchronize::synchronisingTwiceChangesNothing()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.chooseProjectOf("void B::run() { REPORT_ERROR(\"Alpha\"); }");
    f.action("actionSynchronize")->trigger();
    QVERIFY(f.window.save());
    f.action("actionSynchronize")->trigger();
    expectStatus(f, u"Found 1 keys (0 new, 3 existing, and 2 obsolete)"_s);
    QVERIFY(!f.window.hasUnsavedChanges());
    QVERIFY(!f.isEnabled("actionSave"));
}

void tst_message_table_synchronize::obsoleteMessageThatIsFoundAgainStaysObsolete()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.chooseProjectOf("void A::run() { REPORT_ERROR(\"Bravo\"); }");
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.shownRows().first(), u"client|A::run|Bravo|Obsolete"_s);
}

void tst_message_table_synchronize::synchronisingWithoutKeysReportsZero()
{
    UtilityFixture f;
    f.window.newTable();
    f.chooseProjectOf("void f() {}");
    f.action("actionSynchronize")->trigger();
    expectStatus(f, u"Found 0 keys"_s);
    QVERIFY(!f.window.hasUnsavedChanges());
    f.chooseProject({});
    f.action("actionSynchronize")->trigger();
    expectStatus(f, u"Found 0 keys"_s);
}

void tst_message_table_synchronize::dialogAsksForAProject()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.openQuestions.size(), 1);
    QCOMPARE(f.dialogs.openQuestions.first().title, u"Open Visual Studio Project"_s);
    QCOMPARE(f.dialogs.openQuestions.first().filter, u"*.vcxproj"_s);
    QCOMPARE(f.dialogs.openQuestions.first().folder, f.folder.path());
}

void tst_message_table_synchronize::laterDialogsStartInTheProjectsFolder()
{
    UtilityFixture f;
    QVERIFY(f.window.openFile(f.tableFile));
    f.chooseProject({});
    f.action("actionSynchronize")->trigger();
    f.action("actionTranslate")->trigger();
    QCOMPARE(f.dialogs.openQuestions.last().folder, f.folder.path(u"project"_s));
}

void tst_message_table_synchronize::fileThatIsNoProjectIsReported_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("not XML") << QByteArray("\x89PNG\r\n");
    QTest::newRow("truncated") << QByteArray("<Project><ItemGroup><ClCompile Include=\"a.cpp\"/>");
    QTest::newRow("different document") << QByteArray("<html/>");
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
    QCOMPARE(f.dialogs.warnings.first().title, u"Visual Studio Project Error"_s);
    QCOMPARE(f.dialogs.warnings.first().text, u"Could not parse %1"_s.arg(f.projectFile));
    QCOMPARE(f.shownRows(), UtilityFixture::tableRows());
    QVERIFY(!f.window.hasUnsavedChanges());
}

void tst_message_table_synchronize::missingSourcesAreReportedAndTheOthersScanned()
{
    UtilityFixture f;
    f.window.newTable();
    f.writeSource(u"a.cpp"_s, oneMessageSource);
    f.chooseProject({u"gone.cpp"_s, u"a.cpp"_s, u"sub\\gone.cpp"_s});
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, u"Parser Error"_s);
    QCOMPARE(f.dialogs.warnings.first().text, u"gone.cpp: Cannot open file (the file does not exist)\n"
                                              "sub\\gone.cpp: Cannot open file (the file does not exist)\n\n"
                                              "These files were skipped: their messages were not found."_s);
    QCOMPARE(f.shownRows(), QStringList(u"client|f|One|New"_s));
    expectStatus(f, u"Found 1 keys (1 new, 0 existing, and 0 obsolete)"_s);
}

void tst_message_table_synchronize::entriesOfTheProjectThatCannotBeResolvedAreNamed()
{
    UtilityFixture f;
    f.window.newTable();
    f.writeSource(u"a.cpp"_s, oneMessageSource);
    f.chooseProject({u"a.cpp"_s, u"*.cxx"_s});
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, u"Parser Error"_s);
    const QString notes = u"No file matches *.cxx (client.vcxproj, line 1)\n\n"
                          "These entries of the project were not resolved: the files that they list were not "
                          "scanned."_s;
    QCOMPARE(f.dialogs.warnings.first().text, notes);
    QCOMPARE(f.shownRows(), QStringList(u"client|f|One|New"_s));

    f.chooseProject({u"gone.cpp"_s, u"*.cxx"_s});
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.warnings.last().text,
             u"gone.cpp: Cannot open file (the file does not exist)\n\n"
             "These files were skipped: their messages were not found.\n\n"_s +
                 notes);
}

void tst_message_table_synchronize::theReasonWhyASourceIsNotOpenedIsNamed()
{
    UtilityFixture f;
    f.window.newTable();
    f.chooseProject({u"$(BoostRoot)\\x.cpp"_s, u"folder.cpp"_s});
    QVERIFY(QDir().mkdir(f.folder.path(u"project/folder.cpp"_s)));
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    const QString text = f.dialogs.warnings.first().text;
    QVERIFY2(text.contains(u"x.cpp: Cannot open file (the property \"BoostRoot\" is not defined)\n"_s),
             qPrintable(text));
    QVERIFY2(text.contains(u"\nfolder.cpp: Cannot open file ("_s), qPrintable(text));
}

void tst_message_table_synchronize::faultySourceIsReportedWithItsLine()
{
    UtilityFixture f;
    f.window.newTable();
    f.chooseProjectOf("void f()\n{\n    REPORT_ERROR(\"a\\a\");\n}\n");
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    QCOMPARE(f.dialogs.warnings.first().title, u"Parser Error"_s);
    const QString text = f.dialogs.warnings.first().text;
    QVERIFY2(QRegularExpression(u"^a\\.cpp: .+ \\(line 3\\)\\n"_s).match(text).hasMatch(), qPrintable(text));
}

void tst_message_table_synchronize::manyErrorsFitIntoAMessageBox()
{
    UtilityFixture f;
    f.window.newTable();
    QStringList files;
    for (int number = 0; number < 500; ++number)
        files.append(u"gone%1.cpp"_s.arg(number));
    f.chooseProject(files);
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    const QString text = f.dialogs.warnings.first().text;
    QVERIFY(text.contains(u"\ngone9.cpp: Cannot open file (the file does not exist)\n... and 490 more\n"_s));
    QVERIFY(text.count(u'\n') < 15);
}

void tst_message_table_synchronize::elapsedTimeExcludesTheMessageBox()
{
    constexpr int reading = 2000; // milliseconds before the user closes the message box
    UtilityFixture f;
    f.window.newTable();
    f.chooseProject({u"gone.cpp"_s});
    f.dialogs.whileWarning = [] { QTest::qSleep(reading); };
    f.action("actionSynchronize")->trigger();
    QCOMPARE(f.dialogs.warnings.size(), 1);
    const QString elapsed = f.status().section(u"Elapsed time: "_s, 1).section(u' ', 0, 0);
    QVERIFY2(elapsed.toDouble() < reading / 1000.0, qPrintable(f.status()));
}

NVX_TEST(tst_message_table_synchronize)
#include "tst_message_table_synchronize.moc"
