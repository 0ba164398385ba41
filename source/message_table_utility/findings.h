#pragma once

#include "clt_message_key.h"

#include <QString>
#include <QWidget>

#include <optional>
#include <vector>

class QLabel;
class QListWidget;

namespace Clt {
class MessageTable;
}

namespace Translation {
class TranslationTable;
}

namespace MessageWindow {

/// Something to do about a message or its translation.
struct Finding
{
    std::optional<Clt::MessageKey> key; ///< none if the string belongs to no message of the table
    QString text;
};

/// Findings with a line that sums them up.
struct Findings
{
    static constexpr std::size_t maximum = 1000;

    QString summary;
    std::vector<Finding> findings; ///< no more than the maximum
    std::size_t more = 0;          ///< the number of those that are not listed
};

/// The messages that are new, obsolete, or have remarks (message_checks), in key order.
Findings tableFindings(const Clt::MessageTable &table);

/// The strings of a translation file that are not finished, or differ from their source in their places,
/// accelerators or blanks, with the messages that they belong to. The summary names the file.
Findings translationFindings(const Translation::TranslationTable &translation, const QString &fileName,
                             const Clt::MessageTable &table);

/// A list of findings. A finding that the user selects shows its message, Return opens it.
class FindingsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FindingsPanel(QWidget *parent = nullptr);

    /// Replaces the findings. None is selected.
    void show(const Findings &findings);

    /// Gives the focus to the list.
    void begin();

signals:
    /// The user wants to see the message.
    void chosen(const Clt::MessageKey &key);

    /// The user wants to edit it.
    void opened(const Clt::MessageKey &key);

    /// The user wants to return to the table.
    void left();

private:
    /// The message of the finding in that row.
    std::optional<Clt::MessageKey> keyOfRow(int row) const;

    QLabel *m_summary;
    QListWidget *m_list;
    std::vector<Finding> m_findings;
};

} // namespace MessageWindow
