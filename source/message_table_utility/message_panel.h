#pragma once

#include "message_table_utility/message_change.h"

#include <QHash>
#include <QWidget>

#include <map>

class QComboBox;
class QGridLayout;
class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace MessageWindow {

class MessagePreview;

/// The form in which the selected messages are edited: everything of one message, or severity and state of
/// several. It changes nothing itself.
class MessagePanel : public QWidget
{
    Q_OBJECT

public:
    explicit MessagePanel(QWidget *parent = nullptr);

    /// Shows that no message is selected.
    void showNothing();

    /// Shows the message. A field that already has its text keeps its cursor.
    void showMessage(const Clt::Message &message);

    /// Shows that that many messages are selected.
    void showCount(int messages);

    /// Gives the focus to the first field that the message lacks, or to its text.
    void beginEditing();

signals:
    void typed(MessageWindow::Field field, const QString &text);
    void severityChosen(Clt::Severity severity);
    void stateChosen(Clt::MessageState state);

    /// The user wants to return to the table.
    void left();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addRow(const QString &label, QWidget &value);
    void setRowVisible(QWidget &value, bool isVisible);
    QLabel *addKeyLabel(const QString &name, const QString &label);
    QComboBox *addChoice(const QString &name, const QString &label, const QStringList &texts);
    void addField(Field field, const QString &name, const QString &label);
    void setEditable(bool isOne, bool isAny);
    void showRemarks(const Clt::Message &message);
    void showField(Field field, const Clt::Message &message);

    QGridLayout *m_form; // not QFormLayout, whose setRowVisible() writes outside of its memory in Qt 6.4
    std::map<QWidget *, QLabel *> m_labels; // of the rows
    QLabel *m_selection;
    std::map<QString, QLabel *> m_keyLabels;
    QComboBox *m_severity;
    QComboBox *m_state;
    std::map<Field, QPlainTextEdit *> m_fields;
    QLabel *m_remarks;
    MessagePreview *m_preview;
    bool m_isShowing = false; // while the fields are filled, not typed into
};

} // namespace MessageWindow
