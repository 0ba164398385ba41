#include "nvx_util/shell_link.h"

#include "platform.h"

#include <array>

#include <windows.h>

#include <objbase.h>
#include <shlobj.h>

namespace Nvx::Util::Platform {

namespace {

// Leaves COM as it was found. A thread that already uses it in another way can make links all the same.
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

    Interface *operator->() const { return m_interface; }
    void **receiver() { return reinterpret_cast<void **>(&m_interface); }

private:
    Interface *m_interface = nullptr;
};

// A text as the shell takes it, followed by zeros. One that is too long is refused before it comes here.
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

HRESULT describe(const ComPointer<IShellLinkW> &shellLink, const ShellLink &link)
{
    HRESULT result = shellLink->SetPath(WideText(link.target).get());
    if (SUCCEEDED(result))
        result = shellLink->SetDescription(WideText(link.description).get());
    if (SUCCEEDED(result))
        result = shellLink->SetWorkingDirectory(WideText(link.workFolder).get());
    if (SUCCEEDED(result))
        result = shellLink->SetArguments(WideText(link.arguments).get());
    if (SUCCEEDED(result) && !link.iconPath.isEmpty())
        result = shellLink->SetIconLocation(WideText(link.iconPath).get(), 0);
    return result;
}

} // namespace

qint32 createShellLink(const ShellLink &link)
{
    if (!tooLongTextOf(link).isEmpty())
        return shellLinkTextTooLong;

    const ComSession session;
    ComPointer<IShellLinkW> shellLink;
    HRESULT result = CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                      shellLink.receiver());
    if (FAILED(result))
        return static_cast<qint32>(result);
    result = describe(shellLink, link);
    if (FAILED(result))
        return static_cast<qint32>(result);

    ComPointer<IPersistFile> file;
    result = shellLink->QueryInterface(IID_IPersistFile, file.receiver());
    if (SUCCEEDED(result))
        result = file->Save(WideText(link.linkPath).get(), TRUE);
    return static_cast<qint32>(result);
}

} // namespace Nvx::Util::Platform
