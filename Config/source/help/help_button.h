#pragma once

class QPushButton;
class QWidget;

namespace Nvx::Help {

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
