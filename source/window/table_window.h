#pragma once

#include "window/marked_rows.h"
#include "window/progress.h"
#include "window/window_memory.h"

#include <QMainWindow>
#include <QString>
#include <QStringList>

class QAction;
class QLabel;
class QSettings;

namespace Window {

class Dialogs;
class FilterField;
class MarkedTableView;
class RecentFiles;

/// What a table window is called and says.
struct TableWindowTexts
{
    QString title;
    /// With window.png, and new.png, open.png, save.png, saveas.png and exit.png for the actions that have a
    /// picture, such as ":/Utility/images/".
    QString iconFolder;
    QStringList headings;
    QList<int> widths; ///< of the first columns, unless others are remembered
    QString openTitle; ///< of the file dialog
    QString saveTitle;
    QString filter;    ///< of the files, such as "*.xml"
    QString notLoaded; ///< what the box says first when a file cannot be loaded

    // What the status bar then shows; empty clears it. "%1" becomes the file's name.
    QString created;
    QString opened;
    QString saved;
    QString savedAs;
};

/// How the loading of a file ended.
struct Loading
{
    enum class Outcome
    {
        Loaded,
        Cancelled,
        Failed
    };

    Outcome outcome = Outcome::Loaded;
    QString reason; ///< why it failed, for the user
};

/// A window on a table that is kept in a file: New, Open, Save, Save As, recent files, dropped files, Exit, a
/// filter field at the end of the tool bar, and the question what to do with unsaved changes before they are
/// lost. Its subclass has the table itself. Save, Save As and the subclass's actions are enabled once there
/// is a table; Save only while there is something to save.
///
/// Object names: actionNew, actionOpen, actionSave, actionSaveAs, actionExit, actionAbout; menuBar with
/// menuFile and menuHelp; mainToolBar, statusBar; centralWidget with horizontalLayout holding tableWidget.
class TableWindow : public QMainWindow
{
    Q_OBJECT

public:
    ~TableWindow() override;

    /// Opens a file as open() does, without asking which. False when it was not opened.
    bool openFile(const QString &fileName);

    /// The current file's full path; empty when there is none.
    const QString &fileName() const { return m_fileName; }

    bool hasUnsavedChanges() const { return m_isUnsaved; }

    /// True while a WindowWork lasts; the window takes no orders then.
    bool isBusy() const { return m_work != nullptr; }

    /// After how many milliseconds long work shows its progress.
    int progressDelay() const { return m_progressDelay; }
    void setProgressDelay(int milliseconds) { m_progressDelay = milliseconds; }

public slots:
    void newTable();
    void open();

    /// These two answer whether the table was saved.
    bool save();
    bool saveAs();

protected:
    /// The dialogs and the settings live longer than the window.
    TableWindow(Dialogs &dialogs, QSettings &settings, const TableWindowTexts &texts);

    // The table, kept by the subclass.

    /// Puts an empty table in place of the present one.
    virtual void clearTable() = 0;

    /// Puts the table of a file in place of the present one, which stays if that fails or is cancelled.
    virtual Loading loadTable(const QString &fileName) = 0;

    /// Writes the file whole or not at all. False when it could not be written.
    virtual bool saveTable(const QString &fileName) = 0;

    /// What the status bar adds after the table was saved; usually empty.
    virtual QString savedNote() const { return {}; }

    virtual MarkedRows rows() const = 0;

    // For the subclass.

    /// Adds a button before the filter field. It is enabled once there is a table.
    void addTableAction(QAction *action);

    /// Asks for a file to open; empty when the user cancels. Later dialogs start in the folder of the file,
    /// also when it turns out to be unusable.
    QString chooseFileToOpen(const QString &title, const QString &filter);

    /// Tells that the table has changed since it was saved: Save is enabled.
    void setUnsaved();

    /// Enables Save for a table that may well be that of its file.
    void enableSave();

    /// Shows the rows of the table anew.
    void showTable();

    /// Shows a text in the status bar until the next one; none for an empty text.
    void showStatus(const QString &text);

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

    QString chooseFileToSave();
    void showSaved(const QString &text);
    bool mayLoseChanges();
    bool load(const QString &fileName);
    bool saveTo(const QString &fileName);
    bool saveShowingWait(const QString &path);
    void takeOver(const QString &fileName);
    void showPlace();

    Dialogs &m_dialogs;
    WindowMemory m_memory;
    TableWindowTexts m_texts;
    QString m_fileName;
    bool m_isUnsaved = false;
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
    QLabel *m_place = nullptr;
};

/// Work of a table window that takes long. While it lasts the window takes no orders; when the window is
/// closed the work is cancelled, and the window closes after it.
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

} // namespace Window
