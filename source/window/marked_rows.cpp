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

namespace {

/// A row, and the first letters of its string after those that all strings begin with. They decide most
/// comparisons.
struct SortedRow
{
    quint64 letters;
    int row;
};

/// The strings of a column without their case. Neighbours with the same string share it again.
std::vector<QString> foldedColumn(const MarkedRows &rows, int column)
{
    std::vector<QString> folded;
    folded.reserve(static_cast<std::size_t>(rows.size()));
    const QChar *last = nullptr;
    for (int row = 0; row < rows.size(); ++row) {
        const QString &text = rows.text(row, column);
        const bool isSame = text.constData() == last && !folded.empty() && !text.isEmpty();
        folded.push_back(isSame ? folded.back() : text.toCaseFolded());
        last = text.constData();
    }
    return folded;
}

qsizetype commonBegin(const std::vector<QString> &texts)
{
    if (texts.empty())
        return 0;
    const QString &first = texts.front();
    qsizetype length = first.size();
    for (const QString &text : texts) {
        if (text.constData() == first.constData())
            continue;
        length = std::min(length, text.size());
        length = std::mismatch(first.begin(), first.begin() + length, text.begin()).first - first.begin();
    }
    return length;
}

quint64 lettersFrom(const QString &text, qsizetype begin)
{
    constexpr int letters = 4;
    constexpr int bits = 16;
    quint64 packed = 0;
    for (qsizetype at = begin; at < begin + letters; ++at)
        packed = packed << bits | (at < text.size() ? text.at(at).unicode() : 0U);
    return packed;
}

} // namespace

std::vector<int> sortedRows(const MarkedRows &rows, int column, Qt::SortOrder order)
{
    std::vector<int> numbers(static_cast<std::size_t>(rows.size()));
    std::iota(numbers.begin(), numbers.end(), 0);
    if (column < 0 || column >= rows.columns())
        return numbers;
    const std::vector<QString> texts = foldedColumn(rows, column);
    const qsizetype begin = commonBegin(texts);
    std::vector<SortedRow> sorted;
    sorted.reserve(texts.size());
    for (const int row : numbers)
        sorted.push_back({lettersFrom(texts[static_cast<std::size_t>(row)], begin), row});
    const auto isLess = [&texts](const SortedRow &left, const SortedRow &right) {
        if (left.letters != right.letters)
            return left.letters < right.letters;
        const QString &text = texts[static_cast<std::size_t>(left.row)];
        const QString &other = texts[static_cast<std::size_t>(right.row)];
        return text.constData() != other.constData() && text < other;
    };
    if (order == Qt::AscendingOrder)
        std::stable_sort(sorted.begin(), sorted.end(), isLess);
    else
        std::stable_sort(
            sorted.begin(), sorted.end(),
            [&isLess](const SortedRow &left, const SortedRow &right) { return isLess(right, left); });
    std::transform(sorted.begin(), sorted.end(), numbers.begin(),
                   [](const SortedRow &sortedRow) { return sortedRow.row; });
    return numbers;
}

} // namespace Window
