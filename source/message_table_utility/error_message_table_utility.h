#pragma once

#include "clt_message_table.h"
#include "message_table_utility/project_scan.h"
#include "window/table_window.h"

#include <optional>

namespace Translation {
class TranslationTable;
}

/// The window on a message table: opens and saves it, synchronises it with the sources of a project, and
/// updates a translation file from it.
class MessageTableUtility : public Window::TableWindow
{
    Q_OBJECT

public:
    /// The dialogs and the settings must outlive the window.
    MessageTableUtility(Window::Dialogs &dialogs, QSettings &settings);

    const Clt::MessageTable &messages() const { return m_messages; }

public slots:
    void synchronize();
    void updateTranslation();

protected:
    void clearTable() override;
    Nvx::Util::Outcome loadTable(const QString &fileName, Window::Progress &progress) override;
    bool saveTable(const QString &fileName) override;
    QString savedNote() const override;
    Clt::Leftovers leftovers() const override { return m_messages.leftovers(); }
    Window::MarkedRows rows() const override;

private:
    static Window::TableWindowTexts texts();

    // Both return std::nullopt if the user cancelled.
    std::optional<MessageWindow::ProjectScan> scanShowingProgress(const QString &projectFile,
                                                                  const Scan::VisualStudioProject &project);
    std::optional<Nvx::Util::Outcome> loadTranslation(Translation::TranslationTable &table,
                                                      const QString &fileName);

    void synchronizeWith(const Scan::FoundKeys &keys, qint64 milliseconds);

    Clt::MessageTable m_messages;
};
