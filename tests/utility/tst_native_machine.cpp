#include "nvx_util/native_machine.h"
#include "nvx_util/shell_link.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace Nvx::Util;
using Outcome = ProgramResult::Outcome;

namespace {

// A copy of the scripted tool with orders of its own.
QString toolWith(const TestFolder &folder, const QByteArray &orders,
                 const QString &name = QStringLiteral("tool.exe"))
{
    const QString tool = folder.path(name);
    QDir().mkpath(QFileInfo(tool).path());
    if (!QFile::copy(QStringLiteral(SCRIPTED_TOOL), tool))
        qFatal("cannot copy the scripted tool");
    writeFile(tool + QStringLiteral(".script"), orders);
    return tool;
}

ProgramCall callOf(const QString &program, const QStringList &arguments = QStringList())
{
    ProgramCall call;
    call.program = program;
    call.arguments = arguments;
    call.workFolder = QFileInfo(program).path();
    return call;
}

QByteArray withoutReturns(QByteArray bytes)
{
    return bytes.replace("\r\n", "\n");
}

// The path of a program, of that many characters.
QString programOf(int length)
{
    const QString beginning = QStringLiteral("C:\\");
    const QString end = QStringLiteral("\\NVX.exe");
    return beginning + QString(length - beginning.size() - end.size(), QLatin1Char('x')) + end;
}

// Clicks a button of the box that comes up next.
void answerNextBox(QMessageBox::StandardButton button)
{
    QTimer::singleShot(0, qApp, [button] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        if (button == QMessageBox::NoButton)
            box->reject();
        else
            box->button(button)->click();
    });
}

} // namespace

class tst_native_machine : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<TestFolder>(); }
    void cleanup() { m_folder.reset(); }

    void anExitCodeIsAnsweredAsTheProgramGaveIt_data()
    {
        QTest::addColumn<QByteArray>("orders");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("success") << QByteArray("exit 0") << 0;
        QTest::newRow("one") << QByteArray("exit 1") << 1;
        QTest::newRow("255") << QByteArray("exit 255") << 255;
    }

    void anExitCodeIsAnsweredAsTheProgramGaveIt()
    {
        QFETCH(QByteArray, orders);
        const ProgramResult result = m_machine.run(callOf(toolWith(*m_folder, orders)));
        QVERIFY(result.outcome == Outcome::Exited);
        QTEST(result.exitCode, "exitCode");
    }

    void bothOutputsArriveInTheOrderWritten()
    {
        const QString tool = toolWith(*m_folder, "line out 1\nerror wrong\nline out 2\n");
        const ProgramResult result = m_machine.run(callOf(tool));
        QCOMPARE(withoutReturns(result.output), QByteArray("out 1\nwrong\nout 2\n"));
    }

    void anArgumentWithBlanksOrQuotesArrivesAsOne()
    {
        const QStringList arguments{QStringLiteral("x"), QStringLiteral("C:\\a b\\"),
                                    QStringLiteral("say \"so\""), QString()};
        const QString tool = toolWith(*m_folder, "arguments");
        const ProgramResult result = m_machine.run(callOf(tool, arguments));
        QCOMPARE(withoutReturns(result.output), QByteArray("x\nC:\\a b\\\nsay \"so\"\n\n"));
    }

    void theProgramRunsInItsWorkFolder()
    {
        ProgramCall call = callOf(toolWith(*m_folder, "mark here"));
        call.workFolder = m_folder->path(QStringLiteral("work folder"));
        QVERIFY(QDir().mkdir(call.workFolder));
        m_machine.run(call);
        QVERIFY(QFile::exists(m_folder->path(QStringLiteral("work folder/here"))));
    }

    void aProgramInAFolderWithANameOfAnyAlphabetIsStarted()
    {
        const QString tool = toolWith(*m_folder, "exit 7", QStringLiteral("Größe (x86) & more/tool.exe"));
        QCOMPARE(m_machine.run(callOf(tool)).exitCode, 7);
    }

    void aProgramThatIsMissingIsNotStarted()
    {
        const ProgramResult result = m_machine.run(callOf(m_folder->path(QStringLiteral("missing.exe"))));
        QVERIFY(result.outcome == Outcome::NotStarted);
        QCOMPARE(result.output, QByteArray());
    }

    void aFileThatIsNoProgramIsNotStarted()
    {
        const QString path = m_folder->path(QStringLiteral("text.exe"));
        writeFile(path, "no program");
        QVERIFY(m_machine.run(callOf(path)).outcome == Outcome::NotStarted);
    }

    void aProgramThatHangsIsEndedAtTheTimeOut()
    {
        ProgramCall call = callOf(toolWith(*m_folder, "line before\nsleep 60000\nmark after"));
        call.timeoutMs = 1000;
        QElapsedTimer timer;
        timer.start();
        const ProgramResult result = m_machine.run(call);
        QVERIFY(result.outcome == Outcome::TimedOut);
        QCOMPARE(withoutReturns(result.output), QByteArray("before\n"));
        QVERIFY(timer.elapsed() >= 900);
        QVERIFY(timer.elapsed() < 20000);
        // It is really gone: its own copy on the disk can be removed, which a running program prevents on
        // Windows, and nothing was marked.
        QTRY_VERIFY(!QFile::exists(call.program) || QFile::remove(call.program));
        QVERIFY(!QFile::exists(m_folder->path(QStringLiteral("after"))));
    }

    void aProgramThatCrashesHasAnExitCodeOtherThan0()
    {
        const ProgramResult result = m_machine.run(callOf(toolWith(*m_folder, "line last words\ncrash")));
        QVERIFY(result.outcome == Outcome::Exited || result.outcome == Outcome::Crashed);
        QVERIFY(result.exitCode > 0);
        QVERIFY(result.output.startsWith("last words"));
    }

    void aProgramThatAsksAQuestionReadsAnEndAtOnce()
    {
        ProgramCall call = callOf(toolWith(*m_folder, "read"));
        call.timeoutMs = 20000;
        const ProgramResult result = m_machine.run(call);
        QVERIFY(result.outcome == Outcome::Exited);
        QCOMPARE(withoutReturns(result.output), QByteArray("read 0\n"));
    }

    void outputBeyondTheLimitIsReadAndDropped()
    {
        ProgramCall call = callOf(toolWith(*m_folder, "bytes 3000000\nexit 3"));
        call.outputLimit = 100;
        const ProgramResult result = m_machine.run(call);
        QCOMPARE(result.exitCode, 3);
        QCOMPARE(result.output, QByteArray(100, 'x'));
    }

    void withoutALimitEveryByteIsKept()
    {
        const ProgramResult result = m_machine.run(callOf(toolWith(*m_folder, "bytes 1000000")));
        QCOMPARE(withoutReturns(result.output).size(), 1000001);
    }

    void aSystemProgramThatDoesNotExistIsNotStartedFromAnywhereElse_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("with its suffix") << QStringLiteral("tool.exe");
        QTest::newRow("without its suffix") << QStringLiteral("tool");
    }

    void aSystemProgramThatDoesNotExistIsNotStartedFromAnywhereElse()
    {
        QFETCH(const QString, name);
        // Its name fits a program that could be found in the work folder.
        toolWith(*m_folder, "mark started");
        ProgramCall call = callOf(name);
        call.place = ProgramCall::Place::SystemFolder;
        call.workFolder = m_folder->path();
        QVERIFY(m_machine.run(call).outcome == Outcome::NotStarted);
        QVERIFY(!QFile::exists(m_folder->path(QStringLiteral("started"))));
    }

    void aDetachedProgramGetsItsArgumentsAndLivesOn()
    {
        const QString lived = m_folder->path(QStringLiteral("lived"));
        const QString tool = toolWith(*m_folder, "record\nsleep 1500\nmark " + lived.toLocal8Bit());
        const QStringList arguments{QStringLiteral("http://host/?a&b=%20^|'x'"), QStringLiteral("C:\\a b\\"),
                                    QStringLiteral("say \"so\""), QString()};
        QVERIFY(m_machine.startDetached(tool, arguments, 0));
        QVERIFY(!QFile::exists(lived));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(lived), 20000);
        QCOMPARE(withoutReturns(readFile(tool + QStringLiteral(".arguments"))),
                 arguments.join(QLatin1Char('\n')).toLocal8Bit() + '\n');
    }

    void theEndOfADetachedProgramIsWaitedFor()
    {
        const QString lived = m_folder->path(QStringLiteral("lived"));
        const QString tool = toolWith(*m_folder, "sleep 500\nmark " + lived.toLocal8Bit());
        QElapsedTimer timer;
        timer.start();
        QVERIFY(m_machine.startDetached(tool, {}, 20000));
        QVERIFY(QFile::exists(lived));
        QVERIFY(timer.elapsed() < 15000);
    }

    void aDetachedProgramThatTakesTooLongIsLeftAlone()
    {
        const QString lived = m_folder->path(QStringLiteral("lived"));
        const QString tool = toolWith(*m_folder, "sleep 2000\nmark " + lived.toLocal8Bit());
        QVERIFY(m_machine.startDetached(tool, {}, 200));
        QVERIFY(!QFile::exists(lived));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(lived), 20000);
    }

    void aDetachedProgramThatIsMissingIsNotStarted()
    {
        QVERIFY(!m_machine.startDetached(m_folder->path(QStringLiteral("missing.exe")), {}, 1000));
    }

    void theCommandLineHoldsTheProgramAndItsArguments()
    {
        const QString commandLine = m_machine.commandLine();
        QVERIFY2(commandLine.contains(QLatin1String("tst_native_machine")), qPrintable(commandLine));
    }

    void theExecutableFolderIsTheOneOfThisProgram()
    {
        QCOMPARE(m_machine.executableFolder(),
                 QDir::toNativeSeparators(QCoreApplication::applicationDirPath()));
    }

    void timePassesAsLongAsItWasSaid()
    {
        QElapsedTimer timer;
        timer.start();
        m_machine.sleep(std::chrono::milliseconds(200));
        QVERIFY(timer.elapsed() >= 190);
    }

    void aProcessVariableIsSetForThisProcess()
    {
        QVERIFY(m_machine.setProcessVariable("NVX_TEST_VARIABLE", "C:\\NVX 2017"));
        QCOMPARE(qEnvironmentVariable("NVX_TEST_VARIABLE"), QStringLiteral("C:\\NVX 2017"));
        qunsetenv("NVX_TEST_VARIABLE");
    }

    void theAnswerOfAQuestionIsTheButton_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("expected");
        QTest::newRow("Yes") << int(QMessageBox::Yes) << int(Answer::Yes);
        QTest::newRow("No") << int(QMessageBox::No) << int(Answer::No);
        QTest::newRow("closed") << int(QMessageBox::NoButton) << int(Answer::Dismissed);
    }

    void theAnswerOfAQuestionIsTheButton()
    {
        QFETCH(int, button);
        answerNextBox(static_cast<QMessageBox::StandardButton>(button));
        const Answer answer =
            m_machine.ask(BoxKind::Warning, QStringLiteral("Title"), QStringLiteral("Text?"));
        QTEST(static_cast<int>(answer), "expected");
    }

    void aBoxShowsItsTextAndKindAndYesIsTheDefaultUnlessTheAnswerIsOpen_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("expectedIcon");
        QTest::addColumn<bool>("yesIsExpected");
        QTest::newRow("information") << int(BoxKind::Information) << int(QMessageBox::Information) << true;
        QTest::newRow("warning") << int(BoxKind::Warning) << int(QMessageBox::Warning) << true;
        QTest::newRow("failure") << int(BoxKind::Critical) << int(QMessageBox::Critical) << true;
        QTest::newRow("question") << int(BoxKind::Question) << int(QMessageBox::Question) << false;
    }

    void aBoxShowsItsTextAndKindAndYesIsTheDefaultUnlessTheAnswerIsOpen()
    {
        QFETCH(int, kind);
        QFETCH(bool, yesIsExpected);
        QString title, text;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        bool yesIsDefault = false;
        bool anyIsDefault = false;
        QTimer::singleShot(0, qApp, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            title = box->windowTitle();
            text = box->text();
            icon = box->icon();
            yesIsDefault = box->defaultButton() == box->button(QMessageBox::Yes);
            anyIsDefault = box->defaultButton() != nullptr;
            box->reject();
        });
        m_machine.ask(static_cast<BoxKind>(kind), QStringLiteral("Title"), QStringLiteral("Text?"));
        QCOMPARE(title, QStringLiteral("Title"));
        QCOMPARE(text, QStringLiteral("Text?"));
        QTEST(static_cast<int>(icon), "expectedIcon");
        QCOMPARE(yesIsDefault, yesIsExpected);
        QCOMPARE(anyIsDefault, yesIsExpected);
    }

    void aShellLinkIsThereExactlyWhenTheAnswerSaysSo_data()
    {
        QTest::addColumn<QString>("linkPath");
        QTest::addColumn<QString>("target");
        const QString program = QStringLiteral("C:\\NVX\\NVX.exe");
        QTest::newRow("usual") << QStringLiteral("a b.lnk") << program;
        QTest::newRow("umlauts") << QStringLiteral("Größe.lnk") << QStringLiteral("C:\\Größe\\NVX.exe");
        QTest::newRow("a folder that is missing") << QStringLiteral("missing/a.lnk") << program;
        QTest::newRow("a target of 259 characters") << QStringLiteral("long.lnk") << programOf(259);
    }

    void aShellLinkIsThereExactlyWhenTheAnswerSaysSo()
    {
        QFETCH(QString, linkPath);
        QFETCH(QString, target);
        ShellLink link;
        link.target = target;
        link.linkPath = m_folder->path(linkPath);
        const qint32 result = m_machine.createShellLink(link);
        QCOMPARE(namesIn(m_folder->path()), result == 0 ? QStringList(linkPath) : QStringList());
    }

    void aShellLinkWithATextThatIsTooLongIsNotMade_data()
    {
        QTest::addColumn<QString>("linkPath");
        QTest::addColumn<QString>("target");
        QTest::newRow("a target of 260 characters") << QStringLiteral("a.lnk") << programOf(260);
        QTest::newRow("a target of 100,000 characters") << QStringLiteral("a.lnk") << programOf(100000);
        QTest::newRow("a link path of more than 260")
            << QString(260, QLatin1Char('x')) + QStringLiteral(".lnk") << programOf(20);
    }

    void aShellLinkWithATextThatIsTooLongIsNotMade()
    {
        QFETCH(QString, linkPath);
        QFETCH(QString, target);
        ShellLink link;
        link.target = target;
        link.linkPath = m_folder->path(linkPath);
        QVERIFY(m_machine.createShellLink(link) < 0);
        QCOMPARE(namesIn(m_folder->path()), QStringList());
    }

    void aMessageWaitsForOk()
    {
        bool isModal = false;
        QTimer::singleShot(0, qApp, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            isModal = box && box->isModal() && box->standardButtons() == QMessageBox::Ok;
            if (box)
                box->button(QMessageBox::Ok)->click();
        });
        m_machine.tell(BoxKind::Information, QStringLiteral("Title"), QStringLiteral("Text"));
        QVERIFY(isModal);
    }

private:
    NativeMachine m_machine;
    std::unique_ptr<TestFolder> m_folder;
};

NVX_TEST(tst_native_machine)
#include "tst_native_machine.moc"
