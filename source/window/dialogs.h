#pragma once

#include <QString>

class QWidget;

namespace Window {

/// A question for a file.
struct FileQuestion
{
    QString title;
    QString folder; ///< where the dialog starts; empty for the system's choice
    QString filter; ///< such as "*.xml"
};

/// What to do with changes that are about to be lost.
enum class UnsavedChoice
{
    Save,
    Discard,
    Cancel
};

/// The boxes and file dialogs of a window. NativeDialogs shows them; tests hand in one that answers by
/// itself.
class Dialogs
{
public:
    Dialogs() = default;
    Dialogs(const Dialogs &) = delete;
    Dialogs &operator=(const Dialogs &) = delete;
    virtual ~Dialogs() = default;

    /// The file that the user chose to open; empty when he cancelled.
    virtual QString fileToOpen(QWidget *parent, const FileQuestion &question) = 0;

    /// The file that the user chose to write, who has agreed to replace one that is there; empty when he
    /// cancelled.
    virtual QString fileToSave(QWidget *parent, const FileQuestion &question) = 0;

    /// Shows a warning with an OK button.
    virtual void warn(QWidget *parent, const QString &title, const QString &text) = 0;

    /// Shows a piece of information with an OK button.
    virtual void tell(QWidget *parent, const QString &title, const QString &text) = 0;

    /// Asks what to do with unsaved changes.
    virtual UnsavedChoice askAboutUnsaved(QWidget *parent, const QString &title, const QString &text) = 0;
};

} // namespace Window
