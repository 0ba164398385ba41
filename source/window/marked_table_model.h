#pragma once

#include "window/marked_rows.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QStringList>

namespace Window {

/// Shows marked rows to a view: those that the filter lets through, in natural order or sorted by a column.
class MarkedTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// The role of a row's RowMark, as an int.
    static constexpr int markRole = Qt::UserRole;

    /// The role of the word for a row's mark, in the first column only.
    static constexpr int markWordRole = Qt::UserRole + 1;

    explicit MarkedTableModel(const QStringList &headings, QObject *parent = nullptr);

    /// Shows other rows, under the filter and sorting that are there.
    void setRows(MarkedRows rows);
    const MarkedRows &rows() const { return m_rows; }

    /// What the tool tip of a row with the mark says.
    void setMarkToolTip(RowMark mark, const QString &text);

    /// The word that stands for the mark in the first column of a row, beside its text; none at first, which
    /// suits a table that has the state in a column of its own.
    void setMarkWord(RowMark mark, const QString &word);

    /// Shows only the rows that hold the text, whatever the case; all when it is empty.
    void setFilter(const QString &filter);
    const QString &filter() const { return m_filter; }

    /// The row of rows() that is shown in a row.
    int naturalRow(int shownRow) const { return m_shown[static_cast<std::size_t>(shownRow)]; }

    /// Where a row of rows() is shown; -1 when the filter keeps it back.
    int shownRow(int naturalRow) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// By the texts of a column; back to natural order for the column -1.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    void show();

    QStringList m_headings;
    QHash<RowMark, QString> m_markToolTips;
    QHash<RowMark, QString> m_markWords;
    MarkedRows m_rows;
    QString m_filter;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    std::vector<int> m_sorted; // all rows
    std::vector<int> m_shown;  // those that the filter lets through
};

} // namespace Window
