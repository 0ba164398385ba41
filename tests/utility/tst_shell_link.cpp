// Shell links and the notification of changed associations, as the shell receives them.

#include "nvx_util/native_machine.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "windows/shell_link_calls.h"

#include <QDir>
#include <QTest>

#include <array>

#include <objbase.h>

using namespace Qt::Literals::StringLiterals;
using Nvx::Util::NativeMachine;
using Link = Nvx::Util::ShellLink; // windows.h has its own ShellLink
using Nvx::Util::Platform::saveShellLink;

// The import pointer of this program through which every call of the shell's function goes.
extern "C" decltype(&SHChangeNotify) __imp_SHChangeNotify; // NOLINT(bugprone-reserved-identifier)

namespace {

Link completeLink()
{
    Link link;
    link.target = u"C:\\NVX\\NVX.exe"_s;
    link.linkPath = u"C:\\a b.lnk"_s;
    link.description = u"Größe 日本"_s;
    link.workFolder = u"C:\\NVX"_s;
    link.iconPath = u"C:\\NVX\\nvz.ico"_s;
    link.arguments = u"-project \"a b\""_s;
    return link;
}

// COM's interfaces are released, never deleted, so their destructors are not virtual.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// A shell object that records the calls and rejects one of them.
class RecordingLink final : public IShellLinkW, public IPersistFile
{
public:
    QStringList told;
    QString refused; ///< the name of the call to reject
    HRESULT saved = S_OK;

    STDMETHODIMP QueryInterface(REFIID id, void **object) override
    {
        *object = nullptr;
        if (id != IID_IPersistFile || refused == "query"_L1)
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
        return take(qPrintable(u"icon %1"_s.arg(index)), text);
    }
    STDMETHODIMP Save(LPCOLESTR path, BOOL remembers) override
    {
        take(remembers ? "save" : "save a copy", path);
        return saved;
    }

    // Never called.
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
        told << call + u'=' + QString::fromWCharArray(text);
        return call == refused ? E_INVALIDARG : S_OK;
    }
};

#pragma GCC diagnostic pop

// What the shell reads from a link file; the icon's index precedes its path.
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
        texts << QString::number(index) + u' ' + text();
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

// Replaces the shell's function in this program during its lifetime.
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
    void everyStringOfALinkIsWrittenBeforeItIsSaved()
    {
        RecordingLink object;
        QCOMPARE(saveShellLink(object, completeLink()), S_OK);
        QCOMPARE(object.told, QStringList({u"path=C:\\NVX\\NVX.exe"_s, u"description=Größe 日本"_s,
                                           u"folder=C:\\NVX"_s, u"arguments=-project \"a b\""_s,
                                           u"icon 0=C:\\NVX\\nvz.ico"_s, u"save=C:\\a b.lnk"_s}));
    }

    void withoutAnIconTheTargetsIconIsUsed()
    {
        Link link = completeLink();
        link.iconPath.clear();
        RecordingLink object;
        saveShellLink(object, link);
        QVERIFY(object.told.filter(u"icon"_s).isEmpty());
    }

    void aLinkIsSavedEvenIfAStringIsRejected_data()
    {
        QTest::addColumn<QString>("call");
        for (const char *call : {"path", "description", "folder", "arguments", "icon 0"})
            QTest::newRow(call) << QString::fromLatin1(call);
    }

    void aLinkIsSavedEvenIfAStringIsRejected()
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
        object.refused = u"path"_s;
        object.saved = STG_E_ACCESSDENIED;
        QCOMPARE(saveShellLink(object, completeLink()), STG_E_ACCESSDENIED);
        object.refused = u"query"_s;
        QCOMPARE(saveShellLink(object, completeLink()), E_NOINTERFACE);
        QCOMPARE(object.told.filter(u"save"_s).size(), 1);
    }

    void theShellReadsEveryStringOfACreatedLink()
    {
        const TestFolder folder;
        Link link = completeLink();
        link.linkPath = folder.path(u"a b.lnk"_s);
        QCOMPARE(NativeMachine().createShellLink(link), 0);
        QCOMPARE(readLink(link.linkPath), QStringList({link.target, link.description, link.workFolder,
                                                       link.arguments, u"0 "_s + link.iconPath}));
    }

    void aLinkWithoutArgumentsAndIconHasNone()
    {
        const TestFolder folder;
        Link link = completeLink();
        link.linkPath = folder.path(u"a.lnk"_s);
        link.arguments.clear();
        link.iconPath.clear();
        QCOMPARE(NativeMachine().createShellLink(link), 0);
        QCOMPARE(readLink(link.linkPath).mid(3), QStringList({QString(), u"0 "_s}));
    }

    void theShellIsNotifiedOfChangedAssociationsWithoutAnItem()
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
