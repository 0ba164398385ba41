#include "window/marked_rows.h"

#include <QPalette>
#include <QStringMatcher>

#include <algorithm>
#include <numeric>

namespace Window {

namespace {

// The tint is so weak that text is as readable as on the base colour.
QColor tinted(const QColor &base, const QColor &tint)
{
    constexpr float share = 0.28F;
    const auto mixed = [](float of, float with) { return of * (1 - share) + with * share; };
    return QColor::fromRgbF(mixed(base.redF(), tint.redF()), mixed(base.greenF(), tint.greenF()),
                            mixed(base.blueF(), tint.blueF()));
}

} // namespace

QColor markColor(const QPalette &palette, RowMark mark)
{
    const QColor base = palette.color(QPalette::Base);
    switch (mark) {
    case RowMark::New:
        return tinted(base, QColor(0x2e, 0xa0, 0x43));
    case RowMark::Obsolete:
        return tinted(base, QColor(0xd9, 0x7a, 0x06));
    case RowMark::None:
        break;
    }
    return base;
}

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

void MarkedRows::set(int row, std::initializer_list<QString> texts, RowMark mark)
{
    std::copy(texts.begin(), texts.end(), m_texts.begin() + static_cast<std::ptrdiff_t>(cell(row, 0)));
    m_marks[static_cast<std::size_t>(row)] = mark;
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
