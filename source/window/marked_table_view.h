#pragma once

#include "window/marked_table_model.h"

#include <QTableView>

namespace Window {

/// The text of the selected rows for other programs: a line for each, tabs between its columns.
QString copiedText(const MarkedTableModel &model, const QModelIndexList &rows);

/// A table of marked rows. A click on a heading sorts, a second one turns the order round and a third one
/// goes back to natural order. Selected rows are copied with Ctrl+C or from the context menu; the selection
/// stays with its rows when the table is filtered or sorted.
class MarkedTableView : public QTableView
{
    Q_OBJECT

public:
    explicit MarkedTableView(const QStringList &headings, QWidget *parent = nullptr);

    MarkedTableModel &rowsModel() { return m_rowsModel; }
    const MarkedTableModel &rowsModel() const { return m_rowsModel; }

    /// Shows other rows, with none of them selected and from the first on.
    void showRows(MarkedRows rows);

    /// Shows only the rows that hold the text.
    void setFilter(const QString &filter);

public slots:
    void copySelectedRows();

private:
    void sortBy(int column, Qt::SortOrder order);

    // Does what shows the same rows otherwise, and selects again what was selected.
    template<typename Change>
    void keepingSelection(Change change);

    MarkedTableModel m_rowsModel;
};

} // namespace Window
