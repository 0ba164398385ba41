#include "window/marked_table_model.h"

#include <algorithm>
#include <utility>

namespace Window {

MarkedTableModel::MarkedTableModel(const QStringList &headings, QObject *parent)
    : QAbstractTableModel(parent)
    , m_headings(headings)
    , m_rows(static_cast<int>(headings.size()))
{
}

void MarkedTableModel::setRows(MarkedRows rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    m_sorted = sortedRows(m_rows, m_sortColumn, m_sortOrder);
    updateShown();
    endResetModel();
}

// The view only repaints what is on the screen, so finding the changed rows would take longer.
void MarkedTableModel::showChangedRows()
{
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

void MarkedTableModel::setMarkToolTip(RowMark mark, const QString &text)
{
    m_markToolTips.insert(mark, text);
}

void MarkedTableModel::setMarkWord(RowMark mark, const QString &word)
{
    m_markWords.insert(mark, word);
}

void MarkedTableModel::setFilter(const QString &filter)
{
    if (filter == m_filter)
        return;
    beginResetModel();
    m_filter = filter;
    updateShown();
    endResetModel();
}

int MarkedTableModel::shownRow(int naturalRow) const
{
    const auto found = std::find(m_shown.begin(), m_shown.end(), naturalRow);
    return found == m_shown.end() ? -1 : static_cast<int>(found - m_shown.begin());
}

int MarkedTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

int MarkedTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_headings.size());
}

QVariant MarkedTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const int row = naturalRow(index.row());
    if (role == Qt::DisplayRole)
        return m_rows.text(row, index.column());
    const RowMark mark = m_rows.mark(row);
    if (role == markRole)
        return static_cast<int>(mark);
    if (mark == RowMark::None)
        return QVariant();
    if (role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole)
        return m_markToolTips.value(mark);
    if (role == markWordRole && index.column() == 0)
        return m_markWords.value(mark);
    return QVariant();
}

QVariant MarkedTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return m_headings.value(section);
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
        return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    return QAbstractTableModel::headerData(section, orientation, role);
}

void MarkedTableModel::sort(int column, Qt::SortOrder order)
{
    if (column == m_sortColumn && order == m_sortOrder)
        return;
    beginResetModel();
    m_sortColumn = column;
    m_sortOrder = order;
    m_sorted = sortedRows(m_rows, column, order);
    updateShown();
    endResetModel();
}

void MarkedTableModel::updateShown()
{
    if (m_filter.isEmpty()) {
        m_shown = m_sorted;
        return;
    }
    const std::vector<bool> matching = matchingRows(m_rows, m_filter);
    m_shown.clear();
    std::copy_if(m_sorted.begin(), m_sorted.end(), std::back_inserter(m_shown),
                 [&matching](int row) { return matching[static_cast<std::size_t>(row)]; });
}

} // namespace Window
