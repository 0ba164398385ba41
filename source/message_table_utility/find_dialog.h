#pragma once

#include "message_table_utility/message_change.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace MessageWindow {

/// Asks what to find in the texts of the messages and what to replace it by. It stays open beside the window.
class FindDialog : public QDialog
{
    Q_OBJECT

public:
    explicit FindDialog(QWidget *parent);

    /// Shows the dialog, with the focus in the first field.
    void open() override;

    Search search() const;
    QString replacement() const;

    /// Shows the result of the last action.
    void showResult(const QString &text);

signals:
    void findNextRequested();
    void replaceRequested();
    void replaceAllRequested();

private:
    QLineEdit *m_text;
    QLineEdit *m_replacement;
    QCheckBox *m_matchesCase;
    QLabel *m_result;
};

} // namespace MessageWindow
