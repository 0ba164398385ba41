#pragma once

#include "window/marked_table_model.h"

#include <QTableView>

namespace Window {

/// The text of the rows for the clipboard: a line for each row, with tabs between its columns.
QString copiedText(const MarkedTableModel &model, const QModelIndexList &rows);

/// A table of marked rows. A click on a heading sorts the rows, a second one reverses the order, and a third
/// one restores the natural order. Ctrl+C and the context menu copy the selected rows. Filtering and sorting
/// preserve the selection.
class MarkedTableView : public QTableView
{
    Q_OBJECT

public:
    explicit MarkedTableView(const QStringList &headings, QWidget *parent = nullptr);

    MarkedTableModel &rowsModel() { return m_rowsModel; }
    const MarkedTableModel &rowsModel() const { return m_rowsModel; }

    /// Replaces the rows, clears the selection and scrolls to the top.
    void showRows(MarkedRows rows);

    /// Shows only the rows that contain the text.
    void setFilter(const QString &filter);

public slots:
    void copySelectedRows();

private:
    void sortBy(int column, Qt::SortOrder order);

    // Applies a change of the filter or the order and restores the selection.
    template<typename Change>
    void keepingSelection(Change change);

    MarkedTableModel m_rowsModel;
};

} // namespace Window
