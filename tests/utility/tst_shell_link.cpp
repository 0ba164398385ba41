// Links of the shell and its notice of changed associations, as the shell gets them.

#include "nvx_util/native_machine.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "windows/shell_link_calls.h"

#include <QDir>
#include <QTest>

#include <array>

#include <objbase.h>

using Nvx::Util::NativeMachine;
using Link = Nvx::Util::ShellLink; // windows.h has a ShellLink of its own
using Nvx::Util::Platform::saveShellLink;

// Where this program keeps the address of the shell's function, which every call of it goes through.
extern "C" decltype(&SHChangeNotify) __imp_SHChangeNotify; // NOLINT(bugprone-reserved-identifier)

namespace {

Link completeLink()
{
    Link link;
    link.target = QStringLiteral("C:\\NVX\\NVX.exe");
    link.linkPath = QStringLiteral("C:\\a b.lnk");
    link.description = QStringLiteral("Größe 日本");
    link.workFolder = QStringLiteral("C:\\NVX");
    link.iconPath = QStringLiteral("C:\\NVX\\nvz.ico");
    link.arguments = QStringLiteral("-project \"a b\"");
    return link;
}

// COM's interfaces are released, never deleted, so their destructors are not virtual.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// A shell object that records the calls and refuses those that the test names.
class RecordingLink final : public IShellLinkW, public IPersistFile
{
public:
    QStringList told;
    QString refused; ///< the name of the call that is refused
    HRESULT saved = S_OK;

    STDMETHODIMP QueryInterface(REFIID id, void **object) override
    {
        *object = nullptr;
        if (id != IID_IPersistFile || refused == QLatin1String("query"))
            return E_NOINTERFACE;
        *object = static_cast<IPersistFile *>(this);
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 1; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }

    STDMETHODIMP SetPath(LPCWSTR text) override { return take("path", text); }
    STDMETHODIMP SetDescription(LPCWSTR text) override { return take("description", text); }
    STDMETHODIMP SetWorkingDirectory(LPCWSTR text) override { return take("folder", text); }
    STDMETHODIMP SetArguments(LPCWSTR text) override { return take("arguments", text); }
    STDMETHODIMP SetIconLocation(LPCWSTR text, int index) override
    {
        return take(qPrintable(QStringLiteral("icon %1").arg(index)), text);
    }
    STDMETHODIMP Save(LPCOLESTR path, BOOL remembers) override
    {
        take(remembers ? "save" : "save a copy", path);
        return saved;
    }

    // What is not called.
    STDMETHODIMP GetPath(LPWSTR, int, WIN32_FIND_DATAW *, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDList(LPITEMIDLIST *) override { return E_NOTIMPL; }
    STDMETHODIMP SetIDList(LPCITEMIDLIST) override { return E_NOTIMPL; }
    STDMETHODIMP GetDescription(LPWSTR, int) override { return E_NOTIMPL; }
    STDMETHODIMP GetWorkingDirectory(LPWSTR, int) override { return E_NOTIMPL; }
    STDMETHODIMP GetArguments(LPWSTR, int) override { return E_NOTIMPL; }
    STDMETHODIMP GetHotkey(WORD *) override { return E_NOTIMPL; }
    STDMETHODIMP SetHotkey(WORD) override { return E_NOTIMPL; }
    STDMETHODIMP GetShowCmd(int *) override { return E_NOTIMPL; }
    STDMETHODIMP SetShowCmd(int) override { return E_NOTIMPL; }
    STDMETHODIMP GetIconLocation(LPWSTR, int, int *) override { return E_NOTIMPL; }
    STDMETHODIMP SetRelativePath(LPCWSTR, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP Resolve(HWND, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP GetClassID(CLSID *) override { return E_NOTIMPL; }
    STDMETHODIMP IsDirty() override { return E_NOTIMPL; }
    STDMETHODIMP Load(LPCOLESTR, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP SaveCompleted(LPCOLESTR) override { return E_NOTIMPL; }
    STDMETHODIMP GetCurFile(LPOLESTR *) override { return E_NOTIMPL; }

private:
    HRESULT take(const char *name, const wchar_t *text)
    {
        const QString call = QString::fromLatin1(name);
        told << call + QLatin1Char('=') + QString::fromWCharArray(text);
        return call == refused ? E_INVALIDARG : S_OK;
    }
};

#pragma GCC diagnostic pop

// What the shell reads in a link file; the icon with its index before it.
QStringList readLink(const QString &path)
{
    std::array<wchar_t, MAX_PATH> buffer{};
    const auto text = [&buffer] { return QString::fromWCharArray(buffer.data()); };
    const auto size = static_cast<int>(buffer.size());
    QStringList texts;
    CoInitialize(nullptr);
    IShellLinkW *link = nullptr;
    IPersistFile *file = nullptr;
    if (SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                   reinterpret_cast<void **>(&link))) &&
        SUCCEEDED(link->QueryInterface(IID_IPersistFile, reinterpret_cast<void **>(&file))) &&
        SUCCEEDED(file->Load(qUtf16Printable(QDir::toNativeSeparators(path)), STGM_READ))) {
        link->GetPath(buffer.data(), size, nullptr, SLGP_RAWPATH);
        texts << text();
        link->GetDescription(buffer.data(), size);
        texts << text();
        link->GetWorkingDirectory(buffer.data(), size);
        texts << text();
        link->GetArguments(buffer.data(), size);
        texts << text();
        int index = -1;
        link->GetIconLocation(buffer.data(), size, &index);
        texts << QString::number(index) + QLatin1Char(' ') + text();
    }
    if (file)
        file->Release();
    if (link)
        link->Release();
    CoUninitialize();
    return texts;
}

struct Notice
{
    LONG event;
    UINT flags;
    LPCVOID first;
    LPCVOID second;
};

QList<Notice> notices;

void WINAPI recordNotice(LONG event, UINT flags, LPCVOID first, LPCVOID second)
{
    notices.append({event, flags, first, second});
}

// While this lives, the shell's function is replaced in this program.
class RecordedNotices
{
public:
    RecordedNotices()
        : m_kept(__imp_SHChangeNotify)
    {
        replace(recordNotice);
        notices.clear();
    }
    RecordedNotices(const RecordedNotices &) = delete;
    RecordedNotices &operator=(const RecordedNotices &) = delete;
    ~RecordedNotices() { replace(m_kept); }

private:
    static void replace(decltype(&SHChangeNotify) function)
    {
        DWORD old = 0;
        VirtualProtect(&__imp_SHChangeNotify, sizeof(function), PAGE_READWRITE, &old);
        __imp_SHChangeNotify = function;
        VirtualProtect(&__imp_SHChangeNotify, sizeof(function), old, &old);
    }

    decltype(&SHChangeNotify) m_kept;
};

} // namespace

class tst_shell_link : public QObject
{
    Q_OBJECT

private slots:
    void aLinkIsWrittenWholeAndThenSaved()
    {
        RecordingLink object;
        QCOMPARE(saveShellLink(object, completeLink()), S_OK);
        QCOMPARE(
            object.told,
            QStringList({QStringLiteral("path=C:\\NVX\\NVX.exe"), QStringLiteral("description=Größe 日本"),
                         QStringLiteral("folder=C:\\NVX"), QStringLiteral("arguments=-project \"a b\""),
                         QStringLiteral("icon 0=C:\\NVX\\nvz.ico"), QStringLiteral("save=C:\\a b.lnk")}));
    }

    void withoutAnIconTheTargetsOwnIsLeft()
    {
        Link link = completeLink();
        link.iconPath.clear();
        RecordingLink object;
        saveShellLink(object, link);
        QVERIFY(object.told.filter(QStringLiteral("icon")).isEmpty());
    }

    void aTextThatIsRefusedDoesNotKeepTheLinkFromBeingSaved_data()
    {
        QTest::addColumn<QString>("call");
        for (const char *call : {"path", "description", "folder", "arguments", "icon 0"})
            QTest::newRow(call) << QString::fromLatin1(call);
    }

    void aTextThatIsRefusedDoesNotKeepTheLinkFromBeingSaved()
    {
        RecordingLink whole;
        saveShellLink(whole, completeLink());
        RecordingLink object;
        QFETCH(const QString, call);
        object.refused = call;
        QCOMPARE(saveShellLink(object, completeLink()), S_OK);
        QCOMPARE(object.told, whole.told);
    }

    void theResultIsThatOfTheLastCall()
    {
        RecordingLink object;
        object.refused = QStringLiteral("path");
        object.saved = STG_E_ACCESSDENIED;
        QCOMPARE(saveShellLink(object, completeLink()), STG_E_ACCESSDENIED);
        object.refused = QStringLiteral("query");
        QCOMPARE(saveShellLink(object, completeLink()), E_NOINTERFACE);
        QCOMPARE(object.told.filter(QStringLiteral("save")).size(), 1);
    }

    void theShellReadsEveryTextOfALinkThatWasMade()
    {
        const TestFolder folder;
        Link link = completeLink();
        link.linkPath = folder.path(QStringLiteral("a b.lnk"));
        QCOMPARE(NativeMachine().createShellLink(link), 0);
        QCOMPARE(readLink(link.linkPath),
                 QStringList({link.target, link.description, link.workFolder, link.arguments,
                              QStringLiteral("0 ") + link.iconPath}));
    }

    void aLinkWithoutArgumentsAndIconHasNone()
    {
        const TestFolder folder;
        Link link = completeLink();
        link.linkPath = folder.path(QStringLiteral("a.lnk"));
        link.arguments.clear();
        link.iconPath.clear();
        QCOMPARE(NativeMachine().createShellLink(link), 0);
        QCOMPARE(readLink(link.linkPath).mid(3), QStringList({QString(), QStringLiteral("0 ")}));
    }

    void theNoticeIsThatAssociationsChangedWithoutAnItem()
    {
        const RecordedNotices recorded;
        NativeMachine().notifyAssociationsChanged();
        QCOMPARE(notices.size(), 1);
        QCOMPARE(notices.first().event, LONG{SHCNE_ASSOCCHANGED});
        QCOMPARE(notices.first().flags, UINT{SHCNF_IDLIST});
        QVERIFY(!notices.first().first && !notices.first().second);
    }
};

NVX_GUILESS_TEST(tst_shell_link)
#include "tst_shell_link.moc"
