#pragma once

#include "help/help_settings.h"

class QPushButton;
class QWidget;

namespace Nvx::Util {
class Machine;
}

namespace Nvx::Help {

/// Whether to wait after the browser was started.
enum class HelpWait
{
    No,
    UntilClosed ///< for at most 30 seconds
};

/// Shows help topics in the user's web browser, from the installed help or the online help. A process has
/// one, which its windows share.
///
/// If the settings, the help or the browser are missing, no help is shown, and no message either.
class ContextHelp
{
public:
    /// The machine must outlive the help.
    explicit ContextHelp(Util::Machine &machine);

    /// Reads the settings from the file "NVXHelpIds.xml" next to the executable and checks whether the
    /// installed help exists. Returns false if the file cannot be read, is larger than 4 MB, is not well
    /// formed or lacks the settings; the settings do not change then. Nor do they if there is no such file,
    /// but that returns true.
    bool initialise();

    /// Chooses the installed help instead of the online help; takes effect at the next initialise.
    void setOffline(bool offline);

    /// A flag for the callers; this class does not use it.
    void setMarked(bool marked) { m_marked = marked; }
    bool isMarked() const { return m_marked; }

    /// The address of a topic, or of the default page if the installed help is missing.
    QString topicAddress(const QString &contextId) const;

    /// The address of a search, or of the default page if the installed help is missing.
    QString searchAddress(const QString &text) const;

    void showTopic(const QString &contextId) const;

    /// The text is not encoded: a "&" or "#" keeps its meaning in the address.
    void showSearch(const QString &text) const;

    /// Opens an address in the user's web browser. Does nothing if the address is not valid.
    void openAddress(const QString &address, HelpWait wait = HelpWait::No) const;

private:
    QString defaultPage() const;

    Util::Machine &m_machine;
    HelpPlace m_place = HelpPlace::Online;
    bool m_marked = false;
    bool m_useDefaultPage = false;
    HelpSettings m_settings;
};

/// Writes a help id file without ids, "NVXHelpIds.xml", into the user's data folder of the product, which is
/// created if necessary. Returns false if that fails.
bool writeEmptyHelpIds();

enum class HelpButtonFrame
{
    Raised,
    Flat
};

/// Gives a button the help icon and no text, and prevents Enter from pressing it.
void styleHelpButton(QPushButton &button, HelpButtonFrame frame = HelpButtonFrame::Raised);

/// Removes the help button from a window's title bar. Hides the window, as any change of its flags does.
void removeTitleBarHelpButton(QWidget &window);

} // namespace Nvx::Help
