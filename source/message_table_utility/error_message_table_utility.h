#pragma once

#include "clt_message_table.h"
#include "message_table_utility/project_scan.h"
#include "window/table_window.h"

#include <optional>

namespace Error {
class TranslationTable;
}

/// The window on a message table: opens and saves it, brings it in step with the sources of a project, and a
/// translation file in step with it.
class MessageTableUtility : public Window::TableWindow
{
    Q_OBJECT

public:
    /// The dialogs and the settings live longer than the window.
    MessageTableUtility(Window::Dialogs &dialogs, QSettings &settings);

    const Clt::MessageTable &messages() const { return m_messages; }

public slots:
    void synchronize();
    void updateTranslation();

protected:
    void clearTable() override;
    Window::Loading loadTable(const QString &fileName) override;
    bool saveTable(const QString &fileName) override;
    Window::MarkedRows rows() const override;

private:
    static Window::TableWindowTexts texts();

    // Nothing when it was cancelled.
    std::optional<Error::ProjectScan> scanShowingProgress(const QString &projectFile,
                                                          const Scan::VisualStudioProject &project);
    Window::Loading loadTranslation(Error::TranslationTable &table, const QString &fileName);
    void takeKeys(const Scan::FoundKeys &keys, qint64 milliseconds);

    Clt::MessageTable m_messages;
};
