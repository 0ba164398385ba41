#pragma once

#include <QString>

class QMimeData;
class QWidget;

namespace Window {

/// What a file dialog shows.
struct FileQuestion
{
    QString title;
    QString folder; ///< where the dialog starts; empty for the system's choice
    QString filter; ///< such as "*.xml"
};

/// What to do with unsaved changes.
enum class UnsavedChoice
{
    Save,
    Discard,
    Cancel
};

/// The message boxes and file dialogs of a window. NativeDialogs shows them; tests pass in an implementation
/// that returns prepared results.
class Dialogs
{
public:
    Dialogs() = default;
    Dialogs(const Dialogs &) = delete;
    Dialogs &operator=(const Dialogs &) = delete;
    virtual ~Dialogs() = default;

    /// The file that the user chose to open; empty if the dialog was cancelled.
    virtual QString fileToOpen(QWidget *parent, const FileQuestion &question) = 0;

    /// The file that the user chose to write; empty if the dialog was cancelled. The user has confirmed that
    /// an existing file is to be replaced.
    virtual QString fileToSave(QWidget *parent, const FileQuestion &question) = 0;

    /// Shows a warning with an OK button.
    virtual void warn(QWidget *parent, const QString &title, const QString &text) = 0;

    /// Shows an information with an OK button.
    virtual void inform(QWidget *parent, const QString &title, const QString &text) = 0;

    /// Asks what to do with unsaved changes.
    virtual UnsavedChoice askAboutUnsaved(QWidget *parent, const QString &title, const QString &text) = 0;

    /// Asks a question whose default is No. True if the answer is Yes.
    virtual bool confirm(QWidget *parent, const QString &title, const QString &question) = 0;
};

/// Qt's message boxes and the system's file dialogs.
class NativeDialogs : public Dialogs
{
public:
    QString fileToOpen(QWidget *parent, const FileQuestion &question) override;
    QString fileToSave(QWidget *parent, const FileQuestion &question) override;
    void warn(QWidget *parent, const QString &title, const QString &text) override;
    void inform(QWidget *parent, const QString &title, const QString &text) override;
    UnsavedChoice askAboutUnsaved(QWidget *parent, const QString &title, const QString &text) override;
    bool confirm(QWidget *parent, const QString &title, const QString &question) override;
};

/// The local file that is being dropped; empty unless it is exactly one.
QString droppedFile(const QMimeData *dropped);

} // namespace Window
