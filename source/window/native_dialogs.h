#pragma once

#include "window/dialogs.h"

namespace Window {

/// Qt's message boxes and the system's file dialogs.
class NativeDialogs : public Dialogs
{
public:
    QString fileToOpen(QWidget *parent, const FileQuestion &question) override;
    QString fileToSave(QWidget *parent, const FileQuestion &question) override;
    void warn(QWidget *parent, const QString &title, const QString &text) override;
    void inform(QWidget *parent, const QString &title, const QString &text) override;
    UnsavedChoice askAboutUnsaved(QWidget *parent, const QString &title, const QString &text) override;
};

} // namespace Window
