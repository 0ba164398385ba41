#pragma once

#include <QListWidget>

namespace Nvx::Wizard {

/// The progress of a run, one row for each line. Long rows are wrapped, a path also between its folders. Rows
/// can be selected and copied with the keyboard and through a context menu.
class ProgressList final : public QListWidget
{
    Q_OBJECT

public:
    explicit ProgressList(QWidget *parent = nullptr);

    /// Adds a row at the end and scrolls to it.
    void appendRow(const QString &text);

    /// Copies the selected rows to the clipboard, one per line, in the order of the list. Does nothing if no
    /// row is selected.
    void copySelectedRows() const;

private:
    void addMenu();
};

} // namespace Nvx::Wizard
