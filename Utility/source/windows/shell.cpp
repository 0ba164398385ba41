#include "platform.h"
#include "windows/shell_link_calls.h"

#include <array>

#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

namespace Nvx::Util::Platform {

QString commonDesktopFolder()
{
    wchar_t buffer[MAX_PATH] = {};
    if (!SHGetSpecialFolderPathW(nullptr, buffer, CSIDL_COMMON_DESKTOPDIRECTORY, FALSE))
        return QString();
    return QString::fromWCharArray(buffer);
}

void notifyAssociationsChanged()
{
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
}

namespace {

// Initialises COM and restores its state. If the thread already uses COM in another mode, links can be
// created all the same.
class ComSession
{
public:
    ComSession()
        : m_begun(SUCCEEDED(CoInitialize(nullptr)))
    {
    }
    ComSession(const ComSession &) = delete;
    ComSession &operator=(const ComSession &) = delete;
    ~ComSession()
    {
        if (m_begun)
            CoUninitialize();
    }

private:
    bool m_begun;
};

// An interface of a COM object, released at the end of its scope.
template<typename Interface>
class ComPointer
{
public:
    ComPointer() = default;
    ComPointer(const ComPointer &) = delete;
    ComPointer &operator=(const ComPointer &) = delete;
    ~ComPointer()
    {
        if (m_interface)
            m_interface->Release();
    }

    Interface *get() const { return m_interface; }
    Interface *operator->() const { return m_interface; }
    void **receiver() { return reinterpret_cast<void **>(&m_interface); }

private:
    Interface *m_interface = nullptr;
};

// A string for the shell, padded with zeros. Strings that are too long have been rejected before.
class WideText
{
public:
    explicit WideText(const QString &text)
    {
        text.left(shellLinkTextCapacity - 1).toWCharArray(m_buffer.data());
    }
    const wchar_t *get() const { return m_buffer.data(); }

private:
    std::array<wchar_t, static_cast<std::size_t>(shellLinkTextCapacity)> m_buffer{};
};

void describe(IShellLinkW &shellLink, const ShellLink &link)
{
    shellLink.SetPath(WideText(link.target).get());
    shellLink.SetDescription(WideText(link.description).get());
    shellLink.SetWorkingDirectory(WideText(link.workFolder).get());
    shellLink.SetArguments(WideText(link.arguments).get());
    if (!link.iconPath.isEmpty())
        shellLink.SetIconLocation(WideText(link.iconPath).get(), 0);
}

} // namespace

HRESULT saveShellLink(IShellLinkW &shellLink, const ShellLink &link)
{
    describe(shellLink, link);
    ComPointer<IPersistFile> file;
    HRESULT result = shellLink.QueryInterface(IID_IPersistFile, file.receiver());
    if (SUCCEEDED(result))
        result = file->Save(WideText(link.linkPath).get(), TRUE);
    return result;
}

qint32 createShellLink(const ShellLink &link)
{
    if (!tooLongTextOf(link).isEmpty())
        return shellLinkTextTooLong;

    const ComSession session;
    ComPointer<IShellLinkW> shellLink;
    const HRESULT result = CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                            shellLink.receiver());
    return static_cast<qint32>(FAILED(result) ? result : saveShellLink(*shellLink.get(), link));
}

} // namespace Nvx::Util::Platform
