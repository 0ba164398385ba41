#include "nvx_util/folder_rights.h"
#include "nvx_util/trusted_files.h"
#include "nvx_util/whole_file.h"
#include "platform.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "windows/file_rights.h"

#include <QTest>

#include <aclapi.h>
#include <chrono>
#include <sddl.h>
#include <thread>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using namespace Nvx::Util;
using namespace Nvx::Util::Platform;

namespace {

std::wstring wide(const QString &path)
{
    return path.toStdWString();
}

/// The owner and the access rights of a file, in the system's text form.
QString rightsText(const QString &path)
{
    const Handle entry = openEntry(path, READ_CONTROL, shareAll);
    const Descriptor descriptor = descriptorOf(entry.get());
    LPWSTR text = nullptr;
    if (!descriptor || !ConvertSecurityDescriptorToStringSecurityDescriptorW(
                           descriptor.get(), SDDL_REVISION_1,
                           OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION, &text, nullptr))
        return QString();
    const Descriptor memory(text);
    return QString::fromWCharArray(text);
}

/// Sets the access rights of a file to the text form.
bool setRights(const QString &path, const wchar_t *text)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(text, SDDL_REVISION_1, &descriptor, nullptr))
        return false;
    const Descriptor memory(descriptor);
    const Handle entry = openEntry(path, READ_CONTROL | WRITE_DAC | WRITE_OWNER, shareAll);
    return entry && applyDescriptor(entry.get(), descriptor);
}

/// Opens a file as a virus scanner does, which lets nobody rename or replace it, for a time.
class Scanner
{
public:
    Scanner(const QString &path, std::chrono::milliseconds duration)
        : m_file(openEntry(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE))
        , m_thread([this, duration] {
            std::this_thread::sleep_for(duration);
            m_file.reset();
        })
    {
    }
    Scanner(const Scanner &) = delete;
    Scanner &operator=(const Scanner &) = delete;
    ~Scanner() { m_thread.join(); }

private:
    Handle m_file;
    std::thread m_thread;
};

} // namespace

class tst_file_rights : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        m_file = m_folder->path(u"file"_s);
        QVERIFY(writeBytes(m_file, "old"));
    }

    void accessRightsArePreserved_data()
    {
        QTest::addColumn<QString>("rights");
        QTest::newRow("administrators only") << u"O:BAG:BAD:P(A;;FA;;;SY)(A;;FA;;;BA)"_s;
        QTest::newRow("everyone may write") << u"O:BAG:BAD:P(A;;FA;;;SY)(A;;FA;;;BA)(A;;FA;;;WD)"_s;
    }

    void accessRightsArePreserved()
    {
        QFETCH(const QString, rights);
        const QString usual = rightsText(m_file);
        QVERIFY(setRights(m_file, wide(rights).c_str()));
        const QString before = rightsText(m_file);
        QVERIFY(before != usual);
        QVERIFY(replaceWholeFile(m_file, "new"));
        QCOMPARE(fileBytes(m_file), QByteArray("new"));
        QCOMPARE(rightsText(m_file), before);
    }

    void administratorsAccountsAreRecognised_data()
    {
        QTest::addColumn<QString>("account");
        QTest::addColumn<bool>("isAdministrators");
        QTest::newRow("the system") << u"S-1-5-18"_s << true;
        QTest::newRow("the group of administrators") << u"S-1-5-32-544"_s << true;
        QTest::newRow("the operating system's installer")
            << u"S-1-5-80-956008885-3418522649-1831038044-1853292631-2271478464"_s << true;
        QTest::newRow("the built-in administrator") << u"S-1-5-21-1-2-3-500"_s << true;
        QTest::newRow("administrators of a domain") << u"S-1-5-21-1-2-3-512"_s << true;
        QTest::newRow("administrators of a forest") << u"S-1-5-21-1-2-3-519"_s << true;
        QTest::newRow("the user of this process") << u"S-1-5-21-1-2-3-1001"_s << true;
        QTest::newRow("another user") << u"S-1-5-21-1-2-3-1002"_s << false;
        QTest::newRow("a user whose number ends like an administrator's")
            << u"S-1-5-21-1-2-3-1500"_s << false;
        QTest::newRow("another service") << u"S-1-5-80-1-2-3-4-500"_s << false;
        QTest::newRow("the group of users") << u"S-1-5-32-545"_s << false;
        QTest::newRow("everyone") << u"S-1-1-0"_s << false;
        QTest::newRow("an unknown owner") << QString() << false;
    }

    void administratorsAccountsAreRecognised()
    {
        QFETCH(const QString, account);
        QTEST(isAdministratorsAccount(wide(account), L"S-1-5-21-1-2-3-1001"), "isAdministrators");
    }

    void rightsOfOthersToWriteAreFound_data()
    {
        QTest::addColumn<QString>("rights");
        QTest::addColumn<bool>("mayWrite");
        const auto administrators = u"D:(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)"_s;
        QTest::newRow("administrators only") << administrators << false;
        QTest::newRow("users read and run") << administrators + u"(A;OICI;0x1200a9;;;BU)"_s << false;
        QTest::newRow("the user of this process")
            << administrators + u"(A;OICI;FA;;;S-1-5-21-1-2-3-1001)"_s << false;
        QTest::newRow("whoever creates something") << administrators + u"(A;OICIIO;FA;;;CO)"_s << false;
        QTest::newRow("users may change files") << administrators + u"(A;OICI;0x1301bf;;;BU)"_s << true;
        QTest::newRow("users may create files") << administrators + u"(A;CI;0x2;;;BU)"_s << true;
        QTest::newRow("users may create folders") << administrators + u"(A;CI;0x4;;;AU)"_s << true;
        QTest::newRow("what is created in it") << administrators + u"(A;OICIIO;FA;;;WD)"_s << true;
        QTest::newRow("one user may change the rights")
            << administrators + u"(A;;WD;;;S-1-5-21-1-2-3-1002)"_s << true;
        QTest::newRow("one user may become the owner")
            << administrators + u"(A;;WO;;;S-1-5-21-1-2-3-1002)"_s << true;
        QTest::newRow("users may do everything, in general terms")
            << administrators + u"(A;;GA;;;BU)"_s << true;
        QTest::newRow("users must not write") << u"D:(D;OICI;0x2;;;BU)(A;OICI;FA;;;BA)"_s << false;
    }

    void rightsOfOthersToWriteAreFound()
    {
        QFETCH(const QString, rights);
        PSECURITY_DESCRIPTOR descriptor = nullptr;
        QVERIFY(ConvertStringSecurityDescriptorToSecurityDescriptorW(wide(u"O:BAG:BA"_s + rights).c_str(),
                                                                     SDDL_REVISION_1, &descriptor, nullptr));
        const Descriptor memory(descriptor);
        QTEST(mayOthersWrite(descriptor, L"S-1-5-21-1-2-3-1001"), "mayWrite");
    }

    void entryWithoutAListOfRightsCanBeWrittenByAll()
    {
        SECURITY_DESCRIPTOR descriptor = {};
        QVERIFY(InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION));
        QVERIFY(SetSecurityDescriptorDacl(&descriptor, TRUE, nullptr, FALSE));
        QVERIFY(mayOthersWrite(&descriptor, std::wstring()));
        QVERIFY(!applyDescriptor(openEntry(m_file, READ_CONTROL | WRITE_DAC, 7).get(), &descriptor));
    }

    void folderThatAllMayWriteIsReserved()
    {
        const QString folder = m_folder->path(u"open"_s);
        const QString inner = m_folder->path(u"open/inner/file"_s);
        writeFile(inner, "x");
        const auto everyone = L"O:BAG:BAD:P(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)(A;OICI;FA;;;WD)";
        for (const QString &path : {folder, QFileInfo(inner).path(), inner}) {
            QVERIFY(setRights(path, everyone));
            QVERIFY(Nvx::Util::Platform::rightsOf(path)->othersMayWrite);
        }
        QVERIFY(reserveForAdministrators(folder));
        for (const QString &path : {folder, QFileInfo(inner).path(), inner})
            QVERIFY2(!Nvx::Util::Platform::rightsOf(path)->othersMayWrite, qPrintable(path));
        QCOMPARE(fileBytes(inner), QByteArray("x"));
    }

    void reservedFolderIsNotChanged()
    {
        const QString folder = m_folder->path(u"closed"_s);
        QVERIFY(QDir().mkdir(folder));
        QVERIFY(setRights(folder, L"O:BAG:BAD:P(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)"));
        const QString before = rightsText(folder);
        QVERIFY(reserveForAdministrators(folder));
        QCOMPARE(rightsText(folder), before);
    }

    void scriptFileIsForAdministratorsOnly()
    {
        const QString path = m_folder->path(u"script"_s);
        const ScriptFile script(path, "echo");
        QVERIFY(script);
        const QString rights = rightsText(path);
        QVERIFY2(!rights.contains(u";;;WD)") && !rights.contains(u";;;BU)"), qPrintable(rights));
    }

    void scriptFileCanOnlyBeRead()
    {
        const QString path = m_folder->path(u"script"_s);
        const ScriptFile script(path, "echo");
        QVERIFY(script);
        QVERIFY(openEntry(path, GENERIC_READ, FILE_SHARE_READ));
        for (const DWORD access : {DWORD{GENERIC_WRITE}, DWORD{FILE_APPEND_DATA}, DWORD{DELETE}})
            QVERIFY(!openEntry(path, access, shareAll));
        QVERIFY(!DeleteFileW(wide(path).c_str()));
        QVERIFY(!MoveFileW(wide(path).c_str(), wide(path + u'2').c_str()));
        QVERIFY(!MoveFileExW(wide(m_file).c_str(), wide(path).c_str(), MOVEFILE_REPLACE_EXISTING));
        QCOMPARE(fileBytes(path), QByteArray("echo"));
    }

    void heldFoldersCannotBeRenamedOrRemoved()
    {
        const QString inner = m_folder->path(u"outer/inner"_s);
        QVERIFY(QDir().mkpath(inner));
        {
            const HeldWay way = HeldWay::toFolder(inner);
            QVERIFY(!MoveFileW(wide(m_folder->path(u"outer"_s)).c_str(),
                               wide(m_folder->path(u"moved"_s)).c_str()));
            QVERIFY(!RemoveDirectoryW(wide(inner).c_str()));
            QVERIFY(writeBytes(inner + u"\\file"_s, "x"));
            QVERIFY(QFile::remove(inner + u"\\file"_s));
        }
        QVERIFY(RemoveDirectoryW(wide(inner).c_str()));
    }

    void attributesArePreserved()
    {
        SetFileAttributesW(wide(m_file).c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
        const DWORD before = GetFileAttributesW(wide(m_file).c_str());
        QVERIFY(before & FILE_ATTRIBUTE_HIDDEN);
        QVERIFY(replaceWholeFile(m_file, "new"));
        QCOMPARE(GetFileAttributesW(wide(m_file).c_str()), before);
    }

    void fileThatAScannerHoldsForAMomentIsReplaced()
    {
        const Scanner scanner(m_file, 150ms);
        QVERIFY(replaceWholeFile(m_file, "new"));
        QCOMPARE(fileBytes(m_file), QByteArray("new"));
    }

    void freshFileThatAScannerHoldsForAMomentIsRenamed_data()
    {
        QTest::addColumn<bool>("isReplaced");
        QTest::newRow("to a used name") << true;
        QTest::newRow("to a free name") << false;
    }

    void freshFileThatAScannerHoldsForAMomentIsRenamed()
    {
        QFETCH(const bool, isReplaced);
        const QString fresh = m_folder->path(u"fresh"_s);
        QVERIFY(writeBytes(fresh, "new"));
        const Scanner scanner(fresh, 150ms);
        if (isReplaced)
            QVERIFY(renameOver(fresh, m_file));
        else
            QVERIFY(renameToFreeName(fresh, m_folder->path(u"free"_s)));
        QVERIFY(!QFile::exists(fresh));
    }

    void fileThatStaysOpenIsUnchangedAfterHalfASecond()
    {
        const Handle holder = openEntry(m_file, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
        QElapsedTimer clock;
        clock.start();
        QVERIFY(!replaceWholeFile(m_file, "new"));
        QVERIFY(clock.elapsed() >= 500);
        QCOMPARE(fileBytes(m_file), QByteArray("old"));
        QCOMPARE(namesIn(m_folder->path()), QStringList(u"file"_s));
    }

private:
    std::unique_ptr<TestFolder> m_folder;
    QString m_file;
};

NVX_GUILESS_TEST(tst_file_rights)
#include "tst_file_rights.moc"
