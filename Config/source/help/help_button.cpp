#include "help/help_button.h"

#include <QCoreApplication>
#include <QIcon>
#include <QPushButton>

void styleHelpButton(QPushButton &button, HelpButtonFrame frame)
{
    button.setIcon(QIcon(QStringLiteral(":/help/help.png")));
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
