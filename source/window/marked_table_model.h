#pragma once

#include "window/marked_rows.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QStringList>

namespace Window {

/// The model of marked rows: those that match the filter, in natural order or sorted by a column. It filters
/// and sorts itself because QSortFilterProxyModel of Qt 6.4 hides rows range by range: with 100,000 rows, of
/// which every third matched, setting the filter took 36 s, here 24 to 53 ms.
class MarkedTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The role of a row's RowMark, as an int.
    static constexpr int markRole = Qt::UserRole;

    /// The role of the word for a row's mark; only the first column has it.
    static constexpr int markWordRole = Qt::UserRole + 1;

    explicit MarkedTableModel(const QStringList &headings, QObject *parent = nullptr);

    /// Replaces the rows. The filter and the order remain. The rows may have more columns than there are
    /// headings: these are not shown, but the filter searches them.
    void setRows(MarkedRows rows);

    // Change a row of rows(), which stays where it is until the filter or the order changes. After the last
    // change, call showChangedRows().

    void setRowText(int naturalRow, int column, const QString &text)
    {
        m_rows.setText(naturalRow, column, text);
    }
    void setRowMark(int naturalRow, RowMark mark) { m_rows.setMark(naturalRow, mark); }
    void showChangedRows();

    const MarkedRows &rows() const { return m_rows; }

    /// Sets the tool tip of rows with the mark.
    void setMarkToolTip(RowMark mark, const QString &text);

    /// Sets the word for the mark, which is shown next to the text in the first column. There is none at
    /// first, which suits a table with a column for the state.
    void setMarkWord(RowMark mark, const QString &word);

    /// Shows only the rows that contain the text, case-insensitive; all rows if it is empty.
    void setFilter(const QString &filter);
    const QString &filter() const { return m_filter; }

    /// The index in rows() of a shown row.
    int naturalRow(int shownRow) const { return m_shown[static_cast<std::size_t>(shownRow)]; }

    /// The position at which a row of rows() is shown; -1 if the filter hides it.
    int shownRow(int naturalRow) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// Sorts by a column; restores the natural order for column -1.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    void updateShown();

    QStringList m_headings;
    QHash<RowMark, QString> m_markToolTips;
    QHash<RowMark, QString> m_markWords;
    MarkedRows m_rows;
    QString m_filter;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    std::vector<int> m_sorted; // all rows
    std::vector<int> m_shown;  // those that match the filter
};

} // namespace Window
