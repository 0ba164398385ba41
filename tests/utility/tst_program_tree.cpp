// What becomes of a program and of a program that it has started.

#include "nvx_util/native_machine.h"
#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/test_folder.h"

#include <QProcess>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;
using namespace Nvx::Util;

namespace {

// The options with which this program runs a program instead of testing, and either waits for it or not.
const QString runs = u"--runs"_s;
const QString detaches = u"--detaches"_s;

int startProgram(const QString &option, const QString &program)
{
    NativeMachine machine;
    if (option == detaches) {
        machine.startDetached(program, {}, 60000);
        return 0;
    }
    machine.run(
        {.program = program, .arguments = {}, .workFolder = QFileInfo(program).path(), .timeoutMs = 60000});
    return 0;
}

} // namespace

class tst_program_tree : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<TestFolder>(); }
    void cleanup() { m_folder.reset(); }

    void aTimeOutEndsTheProgramAndTheOneThatItHasStarted()
    {
        const QString parent = hangingParent();
        const ProgramResult result = NativeMachine().run(
            {.program = parent, .arguments = {}, .workFolder = m_folder->path(), .timeoutMs = 4000});
        QVERIFY(result.outcome == ProgramResult::Outcome::TimedOut);
        QVERIFY(QFile::exists(held(u"child"_s)));
        QTRY_VERIFY_WITH_TIMEOUT(hasEnded(u"child"_s), 10000);
        QTRY_VERIFY_WITH_TIMEOUT(hasEnded(u"parent"_s), 10000);
    }

    void aProgramThatEndsInTimeLeavesTheOneThatItHasStartedRunning()
    {
        const QString lived = m_folder->path(u"lived"_s);
        const QString child = tool(u"child"_s, "sleep 3000\nmark " + lived.toLocal8Bit());
        const QString parent = tool(u"parent"_s, "start " + child.toLocal8Bit() + "\nsleep 1000\nexit 3");
        const ProgramResult result = NativeMachine().run(
            {.program = parent, .arguments = {}, .workFolder = m_folder->path(), .timeoutMs = 60000});
        QCOMPARE(result.exitCode, 3);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(lived), 20000);
    }

    void programsThatAreWaitedForEndWithThisProcessAndDetachedOnesDoNot_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<bool>("end");
        QTest::newRow("waited for") << runs << true;
        QTest::newRow("detached") << detaches << false;
    }

    void programsThatAreWaitedForEndWithThisProcessAndDetachedOnesDoNot()
    {
        QFETCH(const QString, option);
        QFETCH(const bool, end);
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {option, hangingParent()});
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(held(u"child"_s)), 20000);
        process.kill();
        QVERIFY(process.waitForFinished(20000));
        if (end) {
            QTRY_VERIFY_WITH_TIMEOUT(hasEnded(u"child"_s), 10000);
            QTRY_VERIFY_WITH_TIMEOUT(hasEnded(u"parent"_s), 10000);
            return;
        }
        QTest::qWait(1000);
        QVERIFY(!hasEnded(u"child"_s));
        QVERIFY(!hasEnded(u"parent"_s));
        QVERIFY(QFile::remove(m_folder->path(u"go on"_s)));
        QTRY_VERIFY_WITH_TIMEOUT(hasEnded(u"child"_s), 10000);
        QTRY_VERIFY_WITH_TIMEOUT(hasEnded(u"parent"_s), 10000);
    }

private:
    // A copy of the scripted tool with its own orders.
    QString tool(const QString &name, const QByteArray &orders) const
    {
        const QString path = m_folder->path(name + u".exe"_s);
        if (!QFile::copy(inCheckout(SCRIPTED_TOOL), path))
            qFatal("cannot copy the scripted tool");
        writeFile(path + u".script"_s, orders);
        return path;
    }

    // A program that starts another one. Both have a file open, and run until the file "go on" is deleted.
    QString hangingParent() const
    {
        const QString goOn = m_folder->path(u"go on"_s);
        writeFile(goOn);
        const QByteArray wait = "\nwait " + goOn.toLocal8Bit();
        const QString child = tool(u"child"_s, "hold " + held(u"child"_s).toLocal8Bit() + wait);
        return tool(u"parent"_s,
                    "hold " + held(u"parent"_s).toLocal8Bit() + "\nstart " + child.toLocal8Bit() + wait);
    }

    QString held(const QString &name) const { return m_folder->path(name + u".held"_s); }

    // A file that a program has open cannot be removed.
    bool hasEnded(const QString &name) const
    {
        return !QFile::exists(held(name)) || QFile::remove(held(name));
    }

    std::unique_ptr<TestFolder> m_folder;
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3)
        return startProgram(arguments.at(1), arguments.at(2));
    tst_program_tree test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_program_tree.moc"
