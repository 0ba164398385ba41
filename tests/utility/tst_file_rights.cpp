#include "nvx_util/whole_file.h"
#include "platform.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "windows/security.h"

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
QString rightsOf(const QString &path)
{
    const Handle entry =
        openEntry(path, READ_CONTROL, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
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
    const Handle entry = openEntry(path, READ_CONTROL | WRITE_DAC | WRITE_OWNER,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
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
        const QString usual = rightsOf(m_file);
        QVERIFY(setRights(m_file, wide(rights).c_str()));
        const QString before = rightsOf(m_file);
        QVERIFY(before != usual);
        QVERIFY(replaceWholeFile(m_file, "new"));
        QCOMPARE(fileBytes(m_file), QByteArray("new"));
        QCOMPARE(rightsOf(m_file), before);
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
