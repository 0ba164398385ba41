#include "nvx_util/native_machine.h"
#include "nvx_util/shell_link.h"
#include "support/checkout.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace Qt::Literals::StringLiterals;
using namespace Nvx::Util;
using Outcome = ProgramResult::Outcome;

namespace {

// A copy of the scripted tool with its own orders.
QString toolWith(const TestFolder &folder, const QByteArray &orders, const QString &name = u"tool.exe"_s)
{
    const QString tool = folder.path(name);
    QDir().mkpath(QFileInfo(tool).path());
    if (!QFile::copy(inCheckout(SCRIPTED_TOOL), tool))
        qFatal("cannot copy the scripted tool");
    writeFile(tool + u".script"_s, orders);
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

// The path of a program with the given number of characters.
QString programOf(int length)
{
    const QString beginning = u"C:\\"_s;
    const QString end = u"\\NVX.exe"_s;
    return beginning + QString(length - beginning.size() - end.size(), u'x') + end;
}

// Clicks a button of the next message box.
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

    void theExitCodeIsThatOfTheProgram_data()
    {
        QTest::addColumn<QByteArray>("orders");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("success") << QByteArray("exit 0") << 0;
        QTest::newRow("one") << QByteArray("exit 1") << 1;
        QTest::newRow("255") << QByteArray("exit 255") << 255;
    }

    void theExitCodeIsThatOfTheProgram()
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
        const QStringList arguments{u"x"_s, u"C:\\a b\\"_s, u"say \"so\""_s, QString()};
        const QString tool = toolWith(*m_folder, "arguments");
        const ProgramResult result = m_machine.run(callOf(tool, arguments));
        QCOMPARE(withoutReturns(result.output), QByteArray("x\nC:\\a b\\\nsay \"so\"\n\n"));
    }

    void theProgramRunsInItsWorkFolder()
    {
        ProgramCall call = callOf(toolWith(*m_folder, "mark here"));
        call.workFolder = m_folder->path(u"work folder"_s);
        QVERIFY(QDir().mkdir(call.workFolder));
        m_machine.run(call);
        QVERIFY(QFile::exists(m_folder->path(u"work folder/here"_s)));
    }

    void aProgramInAFolderWithANonLatinNameIsStarted()
    {
        const QString tool = toolWith(*m_folder, "exit 7", u"Größe (x86) & more/tool.exe"_s);
        QCOMPARE(m_machine.run(callOf(tool)).exitCode, 7);
    }

    void aProgramThatIsMissingIsNotStarted()
    {
        const ProgramResult result = m_machine.run(callOf(m_folder->path(u"missing.exe"_s)));
        QVERIFY(result.outcome == Outcome::NotStarted);
        QCOMPARE(result.output, QByteArray());
    }

    void aFileThatIsNotAProgramIsNotStarted()
    {
        const QString path = m_folder->path(u"text.exe"_s);
        writeFile(path, "no program");
        QVERIFY(m_machine.run(callOf(path)).outcome == Outcome::NotStarted);
    }

    void aProgramThatHangsIsTerminatedAtTheTimeOut()
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
        // The process has ended: its executable can be removed, which Windows does not allow for a running
        // program, and it has not written its mark.
        QTRY_VERIFY(!QFile::exists(call.program) || QFile::remove(call.program));
        QVERIFY(!QFile::exists(m_folder->path(u"after"_s)));
    }

    void aProgramThatCrashesHasAnExitCodeOtherThan0()
    {
        const ProgramResult result = m_machine.run(callOf(toolWith(*m_folder, "line last words\ncrash")));
        QVERIFY(result.outcome == Outcome::Exited || result.outcome == Outcome::Crashed);
        QVERIFY(result.exitCode > 0);
        QVERIFY(result.output.startsWith("last words"));
    }

    void aProgramThatWaitsForInputReadsTheEndOfTheFile()
    {
        ProgramCall call = callOf(toolWith(*m_folder, "read"));
        call.timeoutMs = 20000;
        const ProgramResult result = m_machine.run(call);
        QVERIFY(result.outcome == Outcome::Exited);
        QCOMPARE(withoutReturns(result.output), QByteArray("read 0\n"));
    }

    void outputBeyondTheLimitIsReadAndDiscarded()
    {
        ProgramCall call = callOf(toolWith(*m_folder, "bytes 3000000\nexit 3"));
        call.outputLimit = 100;
        const ProgramResult result = m_machine.run(call);
        QCOMPARE(result.exitCode, 3);
        QCOMPARE(result.output, QByteArray(100, 'x'));
    }

    void withoutALimitAllOutputIsReturned()
    {
        const ProgramResult result = m_machine.run(callOf(toolWith(*m_folder, "bytes 1000000")));
        QCOMPARE(withoutReturns(result.output).size(), 1000001);
    }

    void aMissingSystemProgramIsNotSearchedElsewhere_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("with its suffix") << u"tool.exe"_s;
        QTest::newRow("without its suffix") << u"tool"_s;
    }

    void aMissingSystemProgramIsNotSearchedElsewhere()
    {
        QFETCH(const QString, name);
        // A program with this name is in the work folder.
        toolWith(*m_folder, "mark started");
        ProgramCall call = callOf(name);
        call.place = ProgramCall::Place::SystemFolder;
        call.workFolder = m_folder->path();
        QVERIFY(m_machine.run(call).outcome == Outcome::NotStarted);
        QVERIFY(!QFile::exists(m_folder->path(u"started"_s)));
    }

    void aDetachedProgramGetsItsArgumentsAndContinues()
    {
        const QString lived = m_folder->path(u"lived"_s);
        const QString tool = toolWith(*m_folder, "record\nsleep 1500\nmark " + lived.toLocal8Bit());
        const QStringList arguments{u"http://host/?a&b=%20^|'x'"_s, u"C:\\a b\\"_s, u"say \"so\""_s,
                                    QString()};
        QVERIFY(m_machine.startDetached(tool, arguments, 0));
        QVERIFY(!QFile::exists(lived));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(lived), 20000);
        QCOMPARE(withoutReturns(readFile(tool + u".arguments"_s)),
                 arguments.join(u'\n').toLocal8Bit() + '\n');
    }

    void theEndOfADetachedProgramIsWaitedFor()
    {
        const QString lived = m_folder->path(u"lived"_s);
        const QString tool = toolWith(*m_folder, "sleep 500\nmark " + lived.toLocal8Bit());
        QElapsedTimer timer;
        timer.start();
        QVERIFY(m_machine.startDetached(tool, {}, 20000));
        QVERIFY(QFile::exists(lived));
        QVERIFY(timer.elapsed() < 15000);
    }

    void aDetachedProgramThatTakesTooLongIsLeftAlone()
    {
        const QString lived = m_folder->path(u"lived"_s);
        const QString tool = toolWith(*m_folder, "sleep 2000\nmark " + lived.toLocal8Bit());
        QVERIFY(m_machine.startDetached(tool, {}, 200));
        QVERIFY(!QFile::exists(lived));
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(lived), 20000);
    }

    void aDetachedProgramThatIsMissingIsNotStarted()
    {
        QVERIFY(!m_machine.startDetached(m_folder->path(u"missing.exe"_s), {}, 1000));
    }

    void theCommandLineContainsTheProgramAndItsArguments()
    {
        const QString commandLine = m_machine.commandLine();
        QVERIFY2(commandLine.contains("tst_native_machine"_L1), qPrintable(commandLine));
    }

    void theExecutableFolderIsTheOneOfThisProgram()
    {
        QCOMPARE(m_machine.executableFolder(),
                 QDir::toNativeSeparators(QCoreApplication::applicationDirPath()));
    }

    void sleepWaitsForTheGivenTime()
    {
        QElapsedTimer timer;
        timer.start();
        m_machine.sleep(std::chrono::milliseconds(200));
        QVERIFY(timer.elapsed() >= 190);
    }

    void aProcessVariableIsSetForThisProcess()
    {
        QVERIFY(m_machine.setProcessVariable("NVX_TEST_VARIABLE", "C:\\NVX 2017"));
        QCOMPARE(qEnvironmentVariable("NVX_TEST_VARIABLE"), u"C:\\NVX 2017"_s);
        qunsetenv("NVX_TEST_VARIABLE");
    }

    void askReturnsTheButton_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("expected");
        QTest::newRow("Yes") << int(QMessageBox::Yes) << int(BoxAnswer::Yes);
        QTest::newRow("No") << int(QMessageBox::No) << int(BoxAnswer::No);
        QTest::newRow("closed") << int(QMessageBox::NoButton) << int(BoxAnswer::Dismissed);
    }

    void askReturnsTheButton()
    {
        QFETCH(int, button);
        answerNextBox(static_cast<QMessageBox::StandardButton>(button));
        const BoxAnswer answer = m_machine.ask(BoxKind::Warning, u"Title"_s, u"Text?"_s);
        QTEST(static_cast<int>(answer), "expected");
    }

    void aMessageBoxShowsItsTextAndKindAndYesIsTheDefaultExceptInAQuestion_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("expectedIcon");
        QTest::addColumn<bool>("yesIsExpected");
        QTest::newRow("information") << int(BoxKind::Information) << int(QMessageBox::Information) << true;
        QTest::newRow("warning") << int(BoxKind::Warning) << int(QMessageBox::Warning) << true;
        QTest::newRow("failure") << int(BoxKind::Critical) << int(QMessageBox::Critical) << true;
        QTest::newRow("question") << int(BoxKind::Question) << int(QMessageBox::Question) << false;
    }

    void aMessageBoxShowsItsTextAndKindAndYesIsTheDefaultExceptInAQuestion()
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
        m_machine.ask(static_cast<BoxKind>(kind), u"Title"_s, u"Text?"_s);
        QCOMPARE(title, u"Title"_s);
        QCOMPARE(text, u"Text?"_s);
        QTEST(static_cast<int>(icon), "expectedIcon");
        QCOMPARE(yesIsDefault, yesIsExpected);
        QCOMPARE(anyIsDefault, yesIsExpected);
    }

    void aShellLinkExistsIfTheResultIsSuccess_data()
    {
        QTest::addColumn<QString>("linkPath");
        QTest::addColumn<QString>("target");
        const QString program = u"C:\\NVX\\NVX.exe"_s;
        QTest::newRow("usual") << u"a b.lnk"_s << program;
        QTest::newRow("umlauts") << u"Größe.lnk"_s << u"C:\\Größe\\NVX.exe"_s;
        QTest::newRow("a folder that is missing") << u"missing/a.lnk"_s << program;
        QTest::newRow("a target of 259 characters") << u"long.lnk"_s << programOf(259);
    }

    void aShellLinkExistsIfTheResultIsSuccess()
    {
        QFETCH(QString, linkPath);
        QFETCH(QString, target);
        ShellLink link;
        link.target = target;
        link.linkPath = m_folder->path(linkPath);
        const qint32 result = m_machine.createShellLink(link);
        QCOMPARE(namesIn(m_folder->path()), result == 0 ? QStringList(linkPath) : QStringList());
    }

    void aShellLinkWithATooLongStringIsNotCreated_data()
    {
        QTest::addColumn<QString>("linkPath");
        QTest::addColumn<QString>("target");
        QTest::newRow("a target of 260 characters") << u"a.lnk"_s << programOf(260);
        QTest::newRow("a target of 100,000 characters") << u"a.lnk"_s << programOf(100000);
        QTest::newRow("a link path of more than 260") << QString(260, u'x') + u".lnk"_s << programOf(20);
    }

    void aShellLinkWithATooLongStringIsNotCreated()
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
        m_machine.tell(BoxKind::Information, u"Title"_s, u"Text"_s);
        QVERIFY(isModal);
    }

private:
    NativeMachine m_machine;
    std::unique_ptr<TestFolder> m_folder;
};

NVX_TEST(tst_native_machine)
#include "tst_native_machine.moc"
