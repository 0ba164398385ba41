// Two runs on one Windows machine. A thread that has the lock would get it a second time, so the other run is
// this program, started again.

#include "nvx_util/native_machine.h"
#include "support/file_bytes.h"
#include "support/test_folder.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTest>

#include <aclapi.h>
#include <sddl.h>
#include <thread>

#include <windows.h>

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;
using Nvx::Util::NativeMachine;
using Nvx::Util::Turn;

namespace {

constexpr wchar_t lockName[] = L"Global\\Velmora NVX 2017 Configuration";

// Takes its turn, creates the file and ends when it has been deleted.
int run(const QString &file)
{
    NativeMachine machine;
    if (machine.waitForTurn(0ms) != Turn::Ours)
        return 1;
    writeFile(file);
    while (QFile::exists(file))
        std::this_thread::sleep_for(50ms);
    return 0;
}

// An object that somebody else has created.
class ForeignObject
{
public:
    enum class Kind
    {
        Mutex,
        Event
    };

    ForeignObject(Kind kind, const wchar_t *rights)
    {
        SECURITY_ATTRIBUTES attributes{sizeof(SECURITY_ATTRIBUTES), nullptr, FALSE};
        ConvertStringSecurityDescriptorToSecurityDescriptorW(rights, SDDL_REVISION_1,
                                                             &attributes.lpSecurityDescriptor, nullptr);
        m_object = kind == Kind::Mutex ? CreateMutexW(&attributes, TRUE, lockName)
                                       : CreateEventW(&attributes, TRUE, FALSE, lockName);
        LocalFree(attributes.lpSecurityDescriptor);
    }
    ForeignObject(const ForeignObject &) = delete;
    ForeignObject &operator=(const ForeignObject &) = delete;
    ~ForeignObject() { CloseHandle(m_object); }

    bool exists() const { return m_object != nullptr; }

private:
    HANDLE m_object = nullptr;
};

} // namespace

class tst_run_lock : public QObject
{
    Q_OBJECT

private slots:
    void aSecondRunWaitsUntilTheFirstHasEnded_data()
    {
        QTest::addColumn<bool>("isKilled");
        QTest::newRow("it ends") << false;
        QTest::newRow("it is killed") << true;
    }

    void aSecondRunWaitsUntilTheFirstHasEnded()
    {
        QFETCH(const bool, isKilled);
        const TestFolder folder;
        const QString file = folder.path(u"runs"_s);
        QProcess first;
        first.start(QCoreApplication::applicationFilePath(), {file});
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(file), 20000);

        NativeMachine machine;
        QVERIFY(machine.waitForTurn(0ms) == Turn::OtherRuns);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(machine.waitForTurn(300ms) == Turn::OtherRuns);
        QVERIFY(timer.elapsed() >= 290);

        if (isKilled)
            first.kill();
        else
            QVERIFY(QFile::remove(file));
        QVERIFY(machine.waitForTurn(20s) == Turn::Ours);
        QVERIFY(machine.waitForTurn(0ms) == Turn::Ours);
        QVERIFY(first.waitForFinished());
    }

    void aRunThatHasEndedInThisProcessGivesItsTurnUp()
    {
        {
            NativeMachine machine;
            QVERIFY(machine.waitForTurn(0ms) == Turn::Ours);
        }
        Turn other = Turn::Unknown;
        std::thread([&] { other = NativeMachine().waitForTurn(0ms); }).join();
        QVERIFY(other == Turn::Ours);
    }

    void aNameTakenByAnotherUserIsNotWaitedFor_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("rights");
        QTest::addColumn<int>("expected");
        const int mutex = int(ForeignObject::Kind::Mutex);
        const int event = int(ForeignObject::Kind::Event);
        QTest::newRow("open to all") << mutex << u"O:BUD:(A;;GA;;;WD)"_s << int(Turn::Unknown);
        QTest::newRow("closed to all") << mutex << u"O:BUD:(D;;GA;;;WD)"_s << int(Turn::Unknown);
        QTest::newRow("of another kind") << event << u"O:BUD:(A;;GA;;;WD)"_s << int(Turn::Unknown);
        QTest::newRow("an administrator's") << mutex << u"O:BAD:(A;;GA;;;BA)"_s << int(Turn::OtherRuns);
        QTest::newRow("the system's") << mutex << u"O:SYD:(A;;GA;;;BA)"_s << int(Turn::OtherRuns);
    }

    void aNameTakenByAnotherUserIsNotWaitedFor()
    {
        QFETCH(const int, kind);
        QFETCH(const QString, rights);
        const ForeignObject object(static_cast<ForeignObject::Kind>(kind),
                                   reinterpret_cast<const wchar_t *>(rights.utf16()));
        QVERIFY(object.exists());
        Turn turn = Turn::Ours;
        // In another thread, since this one may have the mutex.
        std::thread([&] { turn = NativeMachine().waitForTurn(100ms); }).join();
        QTEST(int(turn), "expected");
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 2 && !arguments.at(1).startsWith(u'-'))
        return run(arguments.at(1));
    tst_run_lock test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_run_lock.moc"
