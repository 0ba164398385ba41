#pragma once

#include "message_table_utility/message_change.h"

#include <QDialog>

class QListWidget;

namespace MessageWindow {

class MessagePreview;

/// Asks whose texts a message adopts. It shows the message of the current candidate.
class AdoptionDialog : public QDialog
{
    Q_OBJECT

public:
    /// There is at least one candidate.
    AdoptionDialog(const Clt::MessageTable &table, Keys candidates, QWidget *parent);

signals:
    void chosen(const Clt::MessageKey &adopted);

private:
    Keys m_candidates;
    QListWidget *m_list;
    MessagePreview *m_preview;
};

} // namespace MessageWindow
