#include "help/help_button.h"

#include <QCoreApplication>
#include <QIcon>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Help {

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
