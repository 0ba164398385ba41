#pragma once

#include "clt_message_table.h"
#include "message_table_utility/findings.h"
#include "message_table_utility/message_store.h"
#include "message_table_utility/project_scan.h"
#include "window/table_window.h"

#include <functional>
#include <optional>

class QDockWidget;

namespace MessageWindow {
class FindDialog;
class MessagePanel;
} // namespace MessageWindow

namespace Translation {
class TranslationTable;
}

/// The window on a message table: opens and saves it, edits its messages in a panel next to the table,
/// synchronises it with the sources of a project, and updates a translation file from it.
class MessageTableUtility : public Window::TableWindow
{
    Q_OBJECT

public:
    /// The dialogs and the settings must outlive the window.
    MessageTableUtility(Window::Dialogs &dialogs, QSettings &settings);
    ~MessageTableUtility() override;

    const Clt::MessageTable &messages() const { return m_store.table(); }

public slots:
    void synchronize();
    void updateTranslation();

protected:
    void clearTable() override;
    Nvx::Util::Outcome loadTable(const QString &fileName, Window::Progress &progress) override;
    QString lossBySaving() const override;
    bool saveTable(const QString &fileName) override;
    QString backupFile() const override { return messages().backupFile(); }
    Clt::Leftovers leftovers() const override { return messages().leftovers(); }
    Window::MarkedRows rows() const override;

private:
    static Window::TableWindowTexts texts();

    // Both return std::nullopt if the user cancelled.
    std::optional<MessageWindow::ProjectScan> scanShowingProgress(const QString &projectFile,
                                                                  const Scan::VisualStudioProject &project);
    std::optional<Nvx::Util::Outcome> loadTranslation(Translation::TranslationTable &table,
                                                      const QString &fileName);

    void synchronizeWith(const Scan::FoundKeys &keys, qint64 milliseconds);

    // Editing.

    QAction *addEditAction(const QString &name, const QString &text, const QKeySequence &shortcut,
                           const std::function<void()> &act);
    void makeEditMenu();
    void makePanel();
    void makeFindings();
    void showFindings(const MessageWindow::Findings &findings);
    void hideFindings();
    void makeFindDialog();
    void connectStore();

    MessageWindow::Numbers selectedMessages();
    MessageWindow::Numbers shownMessages();
    void showSelection();
    void showMessages(const MessageWindow::Numbers &numbers);
    void showStatusCounts();
    void select(int shownRow);
    bool select(const Clt::MessageKey &key); ///< false if the message is not shown
    void editMessage();
    bool showMessage(const Clt::MessageKey &key); ///< false if there is no such message

    /// The first shown row after the current one, round to it, for which the test is true; -1 if there is
    /// none.
    int nextRow(const std::function<bool(int naturalRow)> &test);

    void markAsReviewed();
    void adoptTexts();
    void showNextNew();
    void findNext();
    void replaceInCurrent();
    void replaceInAll();

    MessageWindow::MessageStore m_store;
    MessageWindow::MessagePanel *m_panel = nullptr;
    MessageWindow::FindDialog *m_find = nullptr;
    MessageWindow::FindingsPanel *m_findings = nullptr;
    QDockWidget *m_dock = nullptr; // of the panel
    QDockWidget *m_findingsDock = nullptr;
    QMenu *m_editMenu = nullptr;
    QLabel *m_statusLabel = nullptr;
};
