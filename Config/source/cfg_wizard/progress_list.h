#pragma once

#include <QListWidget>

/// The rows of a run as they come. Long rows are wrapped rather than cut off, a path without blanks between
/// its folders. Rows can be selected and copied, with the keys and with a menu.
class ProgressList final : public QListWidget
{
    Q_OBJECT

public:
    explicit ProgressList(QWidget *parent = nullptr);

    /// Adds a row at the end and scrolls to it.
    void appendRow(const QString &text);

    /// Puts the texts of the selected rows on the clipboard, one a line, in the order of the rows. Nothing
    /// happens when none is selected.
    void copySelectedRows() const;

private:
    void addMenu();
};
