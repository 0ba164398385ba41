#pragma once

#include "help/help_address.h"

namespace Nvx::Util {
class Machine;
}

/// Whether to go on at once once the browser has been started.
enum class HelpWait
{
    No,
    UntilClosed ///< at most 30 seconds
};

/// Shows topics of the help in the user's web browser, from the installed help or the online help. There is
/// one per process, shared by its windows.
///
/// Whatever is missing - the settings, the help, the browser - leaves the user without help and without a
/// message.
class ContextHelp
{
public:
    /// The machine must live as long as the help.
    explicit ContextHelp(Nvx::Util::Machine &machine);

    /// Reads the settings from the file "NVXHelpIds.xml" beside the executable and looks whether the
    /// installed help is there. Without the file the settings stay as they are. False when the file cannot be
    /// read, is larger than 4 MB, is not well formed or lacks its settings; they stay as they are then, too.
    bool initialise();

    /// Chooses the installed help instead of the online help, for the next initialise.
    void setOffline(bool offline);

    /// A mark for those who show help; the help itself takes no notice of it.
    void setMarked(bool marked) { m_marked = marked; }
    bool isMarked() const { return m_marked; }

    /// The address of a topic, or of the default page when the installed help is not there.
    QString topicAddress(const QString &contextId) const;

    /// The address of a search, or of the default page when the installed help is not there.
    QString searchAddress(const QString &text) const;

    void showTopic(const QString &contextId) const;

    /// The text is part of the address as it is: an "&" or "#" in it has its meaning there.
    void showSearch(const QString &text) const;

    /// Opens an address in the user's web browser. One that is not valid is not opened.
    void openAddress(const QString &address, HelpWait wait = HelpWait::No) const;

private:
    QString defaultPage() const;

    Nvx::Util::Machine &m_machine;
    HelpPlace m_place = HelpPlace::Online;
    bool m_marked = false;
    bool m_useDefaultPage = false;
    HelpSettings m_settings;
};

/// Writes a file of help ids with none in it, "NVXHelpIds.xml", into the product's folder of the user's data,
/// which is made when it is missing. False when it cannot be written.
bool writeEmptyHelpIds();
