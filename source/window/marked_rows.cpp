#include "window/marked_rows.h"

#include <QStringMatcher>

#include <algorithm>
#include <numeric>

namespace Window {

namespace {

/// Matches the filter against one column; equal consecutive strings are compared once.
class ColumnFilter
{
public:
    explicit ColumnFilter(const QStringMatcher &matcher)
        : m_matcher(matcher)
    {
    }

    bool matches(const QString &text)
    {
        if (text.constData() != m_last || text.size() != m_lastSize) {
            m_last = text.constData();
            m_lastSize = text.size();
            m_lastMatches = m_matcher.indexIn(text) >= 0;
        }
        return m_lastMatches;
    }

private:
    const QStringMatcher &m_matcher;
    const QChar *m_last = nullptr;
    qsizetype m_lastSize = -1;
    bool m_lastMatches = false;
};

} // namespace

void MarkedRows::reserve(std::size_t rows)
{
    m_texts.reserve(rows * static_cast<std::size_t>(m_columns));
    m_marks.reserve(rows);
}

void MarkedRows::add(std::initializer_list<QString> texts, RowMark mark)
{
    m_texts.insert(m_texts.end(), texts);
    m_marks.push_back(mark);
}

std::vector<bool> matchingRows(const MarkedRows &rows, const QString &filter)
{
    std::vector<bool> matching(static_cast<std::size_t>(rows.size()), filter.isEmpty());
    if (filter.isEmpty())
        return matching;
    const QStringMatcher matcher(filter, Qt::CaseInsensitive);
    std::vector<ColumnFilter> columns(static_cast<std::size_t>(rows.columns()), ColumnFilter(matcher));
    for (int row = 0; row < rows.size(); ++row) {
        for (int column = 0; column < rows.columns(); ++column) {
            if (columns[static_cast<std::size_t>(column)].matches(rows.text(row, column))) {
                matching[static_cast<std::size_t>(row)] = true;
                break;
            }
        }
    }
    return matching;
}

std::vector<int> sortedRows(const MarkedRows &rows, int column, Qt::SortOrder order)
{
    std::vector<int> sorted(static_cast<std::size_t>(rows.size()));
    std::iota(sorted.begin(), sorted.end(), 0);
    if (column < 0 || column >= rows.columns())
        return sorted;
    std::stable_sort(sorted.begin(), sorted.end(), [&rows, column, order](int left, int right) {
        const int first = order == Qt::AscendingOrder ? left : right;
        const int second = order == Qt::AscendingOrder ? right : left;
        return rows.text(first, column).compare(rows.text(second, column), Qt::CaseInsensitive) < 0;
    });
    return sorted;
}

} // namespace Window
