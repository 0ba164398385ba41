#include "help/context_help.h"

#include "help/browser_call.h"
#include "help/help_settings.h"
#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "nvx_util/whole_file.h"

#include <QFile>
#include <QFileInfo>

using Nvx::Util::System;

namespace {

const auto helpIdsFile = QStringLiteral("NVXHelpIds.xml");
constexpr int longestWaitMs = 30000;

// Far more than the settings need. Reading 100 MB of XML would keep the first page waiting for seconds.
constexpr qint64 largestSettings = 4'000'000;

QString sharedFolder()
{
    return System::getProgramDataPath(Nvx::Product::fullName);
}

// The command line of the user's web browser; empty when none is recorded.
QString browserCommandLine()
{
    const Nvx::Util::RegistryKey key(QStringLiteral("HKEY_CLASSES_ROOT\\http\\shell\\open\\command"));
    const QString recorded = key.text(QString()).value_or(QString());
    return expandVariables(recorded, [](const QString &name) {
        const QString value = System::getEnv(name);
        return value.isEmpty() ? QString() : value;
    });
}

} // namespace

ContextHelp::ContextHelp(Nvx::Util::Machine &machine)
    : m_machine(machine)
{
}

bool ContextHelp::initialise()
{
    m_useDefaultPage = m_place == HelpPlace::Installed &&
                       !QFileInfo(sharedFolder() + QStringLiteral("/NVXHelp/contexthelp/")).isDir();

    QFile file(Nvx::Util::joinPath(m_machine.executableFolder(), helpIdsFile));
    if (!QFileInfo(file).isFile())
        return true;
    if (file.size() > largestSettings || !file.open(QIODevice::ReadOnly))
        return false;
    const std::optional<HelpSettings> settings =
        readHelpSettings(file, m_place, {sharedFolder(), helpLanguage(System::getLocale())});
    if (settings)
        m_settings = *settings;
    return settings.has_value();
}

void ContextHelp::setOffline(bool offline)
{
    m_place = offline ? HelpPlace::Installed : HelpPlace::Online;
}

QString ContextHelp::defaultPage() const
{
    return m_machine.executableFolder() + QStringLiteral("/NVXDefaultHelp.html");
}

QString ContextHelp::topicAddress(const QString &contextId) const
{
    return m_useDefaultPage ? defaultPage() : ::topicAddress(m_settings, contextId);
}

QString ContextHelp::searchAddress(const QString &text) const
{
    return m_useDefaultPage ? defaultPage() : ::searchAddress(m_settings, m_place, text);
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
    if (call)
        m_machine.startDetached(call->program, call->arguments, wait == HelpWait::No ? 0 : longestWaitMs);
}

bool writeEmptyHelpIds()
{
    const QString folder = System::getUserDataPath();
    return System::makePath(folder) &&
           Nvx::Util::replaceWholeFile(Nvx::Util::joinPath(folder, helpIdsFile), emptyHelpIds());
}
