#pragma once

#include "clt_leftovers.h"
#include "nvx_util/result.h"
#include "window/file_watch.h"
#include "window/marked_rows.h"
#include "window/progress.h"
#include "window/window_memory.h"

#include <QMainWindow>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>
#include <type_traits>

class QAction;
class QLabel;
class QSettings;

namespace Window {

class Dialogs;
class FilterField;
class MarkedTableView;
class RecentFiles;

/// The texts of a table window.
struct TableWindowTexts
{
    QString title;
    /// The folder of window.png, and of new.png, open.png, save.png, saveas.png and exit.png for the actions
    /// that have an icon; for example ":/Utility/images/".
    QString iconFolder;
    QStringList headings;
    QList<int> widths;    ///< of the first columns, unless the user has changed them
    QSize size{960, 600}; ///< of the window, unless the user has changed it
    QString openTitle;    ///< of the file dialog, and of the progress dialog and the message box after it
    QString saveTitle;
    QString filter;    ///< of the files, such as "*.xml"
    QString loading;   ///< in the progress dialog; "%1" is replaced by the file name
    QString notLoaded; ///< the first line of the message box if a file cannot be loaded

    // The status bar after the action; empty clears it. "%1" is replaced by the file name.
    QString created;
    QString opened;
    QString saved;
    QString savedAs;
};

/// A window on a table that is stored in a file: New, Open, Save, Save As, recent files, dropped files, Exit,
/// a filter field at the end of the tool bar, and the question about unsaved changes before they are lost.
/// The title marks unsaved changes. If another program changes the file, the window offers to load it again,
/// and asks before it replaces it. The subclass holds the table. Save, Save As and the subclass's actions are
/// enabled once there is a table; Save only while there is something to save.
///
/// Object names: actionNew, actionOpen, actionSave, actionSaveAs, actionExit, actionAbout; menuBar with
/// menuFile and menuHelp; mainToolBar, statusBar; centralWidget with horizontalLayout holding tableWidget.
class TableWindow : public QMainWindow
{
    Q_OBJECT

public:
    ~TableWindow() override;

    /// Opens a file as open() does, without a file dialog. Returns whether it was opened.
    bool openFile(const QString &fileName);

    /// The current file's full path; empty if there is none.
    const QString &fileName() const { return m_fileName; }

    bool hasUnsavedChanges() const { return m_isUnsaved; }

    /// True while a WindowWork exists; the window then accepts no commands.
    bool isBusy() const { return m_work != nullptr; }

    /// The number of milliseconds after which a long operation shows its progress.
    int progressDelay() const { return m_progressDelay; }
    void setProgressDelay(int milliseconds) { m_progressDelay = milliseconds; }

public slots:
    void newTable();
    void open();

    /// Both return whether the table was saved.
    bool save();
    bool saveAs();

protected:
    /// The dialogs and the settings must outlive the window.
    TableWindow(Dialogs &dialogs, QSettings &settings, const TableWindowTexts &texts);

    // The table, held by the subclass.

    /// Replaces the table by an empty one.
    virtual void clearTable() = 0;

    /// Replaces the table by that of a file. If it fails, as it does when it is cancelled, the table is
    /// unchanged.
    virtual Nvx::Util::Outcome loadTable(const QString &fileName, Progress &progress) = 0;

    /// What saving would lose of the table itself, as a sentence for the user; empty if nothing.
    virtual QString lossBySaving() const { return {}; }

    /// Writes the file whole or not at all. Returns false if it could not be written.
    virtual bool saveTable(const QString &fileName) = 0;

    /// The copy of the previous file that the last save made; empty if it made none.
    virtual QString backupFile() const { return {}; }

    /// What was left over from the file that the table was read from; nothing after it was saved there. The
    /// user sees it, and is asked before that file is replaced.
    virtual Clt::Leftovers leftovers() const { return {}; }

    virtual MarkedRows rows() const = 0;

    // For the subclass.

    /// Adds a button before the filter field. It is enabled once there is a table.
    void addTableAction(QAction *action);

    /// Asks for a file to open; empty if the user cancels. Later dialogs start in the folder of that file,
    /// even if it cannot be used.
    QString chooseFileToOpen(const QString &title, const QString &filter);

    /// Marks the table as changed since it was saved, and enables Save.
    void setUnsaved();

    /// Marks the table as the one that was saved, because the changes were undone; unless another program has
    /// changed the file and the user did not load it again.
    void setUnchanged();

    /// Enables Save without marking the table as changed.
    void enableSave();

    /// Updates the rows on the screen.
    void showTable();

    /// Shows all rows.
    void clearFilter();

    /// Shows the text in the status bar until the next call; an empty text clears it.
    void showStatus(const QString &text);

    /// The text for the status bar, with a note on the copy that saving a file made; empty if it made none.
    static QString withBackupNote(const QString &text, const QString &copy);

    /// Performs a long operation as a WindowWork and returns its result; std::nullopt if the user cancelled
    /// it. The operation takes a Progress &.
    template<typename Operation>
    std::optional<std::invoke_result_t<Operation, Progress &>>
    withProgress(const QString &title, const QString &text, Operation operation);

    Dialogs &dialogs() { return m_dialogs; }
    WindowMemory &memory() { return m_memory; }
    MarkedTableView &view() { return *m_view; }

    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    friend class WindowWork;

    QAction *fileAction(const QString &name, const QString &text, const QString &icon,
                        const QKeySequence &shortcut);
    void makeActions();
    void makeMenus();
    void makeToolBar();
    void makeCentralWidget();
    void makeStatusBar();
    void showAbout();

    void offerToLoadAgain();
    QString chooseFileToSave();
    bool mayLoseChanges();
    bool load(const QString &fileName);
    void showLoadError(const QString &path, const QString &error);
    void showLeftovers();
    bool mayBeSaved(const QString &path);
    bool saveTo(const QString &fileName);
    bool saveShowingWait(const QString &path);
    void tableReplaced(const QString &fileName);
    void updatePlace();
    void markTitle();

    Dialogs &m_dialogs;
    WindowMemory m_memory;
    TableWindowTexts m_texts;
    QString m_fileName;
    FileWatch m_watch;
    bool m_isUnsaved = false;
    bool m_isOutdated = false; // the file was changed, but not loaded again
    Progress *m_work = nullptr;
    bool m_closesAfterWork = false;
    int m_progressDelay = Progress::usualDelay;

    QAction *m_new = nullptr;
    QAction *m_open = nullptr;
    QAction *m_save = nullptr;
    QAction *m_saveAs = nullptr;
    QAction *m_exit = nullptr;
    QList<QAction *> m_tableActions;
    RecentFiles *m_recentFiles;
    MarkedTableView *m_view;
    FilterField *m_filter = nullptr;
    QAction *m_endOfButtons = nullptr;
    QLabel *m_placeLabel = nullptr;
};

/// A long operation of a table window. During its lifetime the window accepts no commands; closing the window
/// cancels the operation, and the window closes after it.
class WindowWork : public Progress
{
public:
    WindowWork(TableWindow &window, const QString &title, const QString &text);
    WindowWork(const WindowWork &) = delete;
    WindowWork &operator=(const WindowWork &) = delete;
    ~WindowWork();

private:
    TableWindow &m_window;
};

template<typename Operation>
std::optional<std::invoke_result_t<Operation, Progress &>>
TableWindow::withProgress(const QString &title, const QString &text, Operation operation)
{
    WindowWork work(*this, title, text);
    auto result = operation(work);
    if (work.isCancelled())
        return std::nullopt;
    return result;
}

} // namespace Window
