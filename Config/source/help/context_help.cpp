#include "help/context_help.h"

#include "help/browser_call.h"
#include "help/help_settings.h"
#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "nvx_util/whole_file.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QPushButton>

#include <chrono>

using Nvx::Util::System;
using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace Nvx::Help {

namespace {

const auto helpIdsFile = u"NVXHelpIds.xml"_s;
constexpr std::chrono::milliseconds maxWait = 30s;

// Far more than the settings need. Reading 100 MB of XML would delay the first page by seconds.
constexpr qint64 maxSettingsBytes = 4'000'000;

QString sharedFolder()
{
    return System::getProgramDataPath(Product::fullName);
}

// The command line of the user's web browser; empty if the registry has none.
QString browserCommandLine()
{
    const Util::RegistryKey key(u"HKEY_CLASSES_ROOT\\http\\shell\\open\\command"_s);
    const QString recorded = key.text(QString()).value_or(QString());
    return expandVariables(recorded, [](const QString &name) {
        const QString value = System::getEnv(name);
        return value.isEmpty() ? QString() : value;
    });
}

} // namespace

ContextHelp::ContextHelp(Util::Machine &machine)
    : m_machine(machine)
{
}

bool ContextHelp::initialise()
{
    m_useDefaultPage =
        m_place == HelpPlace::Installed && !QFileInfo(sharedFolder() + u"/NVXHelp/contexthelp/"_s).isDir();

    QFile file(Util::joinPath(m_machine.executableFolder(), helpIdsFile));
    if (!QFileInfo(file).isFile())
        return true;
    if (file.size() > maxSettingsBytes || !file.open(QIODevice::ReadOnly))
        return false;
    const Util::Result<HelpSettings> settings = readHelpSettings(
        file, m_place, {.sharedFolder = sharedFolder(), .language = helpLanguage(System::getLocale())});
    if (settings)
        m_settings = *settings;
    return static_cast<bool>(settings);
}

void ContextHelp::setOffline(bool offline)
{
    m_place = offline ? HelpPlace::Installed : HelpPlace::Online;
}

QString ContextHelp::defaultPage() const
{
    return m_machine.executableFolder() + u"/NVXDefaultHelp.html"_s;
}

QString ContextHelp::topicAddress(const QString &contextId) const
{
    return m_useDefaultPage ? defaultPage() : Help::topicAddress(m_settings, contextId);
}

QString ContextHelp::searchAddress(const QString &text) const
{
    return m_useDefaultPage ? defaultPage() : Help::searchAddress(m_settings, m_place, text);
}

void ContextHelp::showTopic(const QString &contextId) const
{
    openAddress(topicAddress(contextId));
}

void ContextHelp::showSearch(const QString &text) const
{
    openAddress(searchAddress(text));
}

void ContextHelp::openAddress(const QString &address, HelpWait wait) const
{
    const QString encoded = encodedAddress(address);
    if (encoded.isEmpty())
        return;
    const std::optional<BrowserCall> call = browserCall(browserCommandLine(), encoded);
    if (!call)
        return;
    const std::chrono::milliseconds maxWaitNow = wait == HelpWait::No ? 0ms : maxWait;
    m_machine.startDetached(call->program, call->arguments, static_cast<int>(maxWaitNow.count()));
}

bool writeEmptyHelpIds()
{
    const QString folder = System::getUserDataPath();
    return System::makePath(folder) &&
           Util::replaceWholeFile(Util::joinPath(folder, helpIdsFile), emptyHelpIds());
}

void styleHelpButton(QPushButton &button, HelpButtonFrame frame)
{
    button.setIcon(QIcon(u":/help/help.png"_s));
    button.setText(QString());
    button.setAccessibleName(QCoreApplication::translate("ContextHelp", "Help"));
    button.setDefault(false);
    button.setAutoDefault(false);
    button.setFlat(frame == HelpButtonFrame::Flat);
}

void removeTitleBarHelpButton(QWidget &window)
{
    window.setWindowFlags(window.windowFlags() & ~Qt::WindowContextHelpButtonHint);
}

} // namespace Nvx::Help
