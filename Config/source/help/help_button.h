#pragma once

class QPushButton;
class QWidget;

enum class HelpButtonFrame
{
    Raised,
    Flat
};

/// Makes a button a help button: the picture of help, no text, and never the button that Enter presses.
void styleHelpButton(QPushButton &button, HelpButtonFrame frame = HelpButtonFrame::Raised);

/// Takes the help button out of a window's title bar. Hides the window, as every change of its flags does.
void removeTitleBarHelpButton(QWidget &window);
