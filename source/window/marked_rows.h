#pragma once

#include <QColor>
#include <QString>
#include <QStringView>

#include <cstddef>
#include <initializer_list>
#include <vector>

class QPalette;

namespace Window {

/// How a row differs from the others.
enum class RowMark
{
    None,
    New,
    Obsolete
};

/// The background of a marked row: the palette's base colour, tinted so weakly that the palette's text colour
/// is readable on it on light and dark palettes. The base colour itself for RowMark::None.
QColor markColor(const QPalette &palette, RowMark mark);

/// The rows of a table in their natural order: a string for each column, and a mark. Neighbours with the same
/// string should share its memory, which makes filtering fast.
class MarkedRows
{
public:
    explicit MarkedRows(int columns = 0)
        : m_columns(columns)
    {
    }

    int columns() const { return m_columns; }
    int size() const { return static_cast<int>(m_marks.size()); }

    void reserve(std::size_t rows);

    /// Appends a row. There must be a string for each column.
    void add(std::initializer_list<QString> texts, RowMark mark);

    void setText(int row, int column, const QString &text) { m_texts[cell(row, column)] = text; }
    void setMark(int row, RowMark mark) { m_marks[static_cast<std::size_t>(row)] = mark; }

    const QString &text(int row, int column) const { return m_texts[cell(row, column)]; }
    RowMark mark(int row) const { return m_marks[static_cast<std::size_t>(row)]; }

private:
    std::size_t cell(int row, int column) const
    {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
               static_cast<std::size_t>(column);
    }

    int m_columns;
    std::vector<QString> m_texts; // row after row
    std::vector<RowMark> m_marks;
};

/// For each row, whether one of its strings contains the filter; case-insensitive. Every row matches an empty
/// filter.
std::vector<bool> matchingRows(const MarkedRows &rows, const QString &filter);

/// The numbers of the rows, sorted by a column; case-insensitive and stable. The natural order for column -1.
std::vector<int> sortedRows(const MarkedRows &rows, int column, Qt::SortOrder order);

} // namespace Window
