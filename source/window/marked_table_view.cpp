#include "window/marked_table_view.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Window {

namespace {

/// Paints a row in the colour of its mark, using the current palette, and the word for the mark at the end of
/// the first cell.
class MarkDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const QString word = index.data(MarkedTableModel::markWordRole).toString();
        if (word.isEmpty()) {
            QStyledItemDelegate::paint(painter, option, index);
            return;
        }
        paintWithWord(*painter, option, index, word);
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const auto mark = static_cast<RowMark>(index.data(MarkedTableModel::markRole).toInt());
        if (mark != RowMark::None)
            option->backgroundBrush = markColor(option->palette, mark);
    }

private:
    void paintWithWord(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                       const QString &word) const;
};

// The cell's text is elided before the word.
void MarkDelegate::paintWithWord(QPainter &painter, const QStyleOptionViewItem &option,
                                 const QModelIndex &index, const QString &word) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    QFont wordFont = cell.font;
    wordFont.setItalic(true);
    const int wordWidth = QFontMetrics(wordFont).horizontalAdvance(word);
    const int gap = cell.fontMetrics.averageCharWidth();
    cell.text =
        cell.fontMetrics.elidedText(cell.text, cell.textElideMode, cell.rect.width() - wordWidth - 4 * gap);
    cell.widget->style()->drawControl(QStyle::CE_ItemViewItem, &cell, &painter, cell.widget);

    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    painter.save();
    painter.setPen(cell.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter.setFont(wordFont);
    painter.drawText(cell.rect.adjusted(gap, 0, -gap, 0), Qt::AlignRight | Qt::AlignVCenter, word);
    painter.restore();
}

} // namespace

QString copiedText(const MarkedTableModel &model, const QModelIndexList &rows)
{
    QList<int> numbers;
    for (const QModelIndex &row : rows)
        numbers.append(row.row());
    std::sort(numbers.begin(), numbers.end());
    QString text;
    for (const int number : std::as_const(numbers)) {
        for (int column = 0; column < model.columnCount(); ++column) {
            text += model.rows().text(model.naturalRow(number), column);
            text += column + 1 < model.columnCount() ? u'\t' : u'\n';
        }
    }
    return text;
}

MarkedTableView::MarkedTableView(const QStringList &headings, QWidget *parent)
    : QTableView(parent)
    , m_rowsModel(headings)
{
    setModel(&m_rowsModel);
    setItemDelegate(new MarkDelegate(this));
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setHorizontalScrollMode(ScrollPerPixel);

    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + fontMetrics().height() / 2);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setSortIndicatorShown(true);
    horizontalHeader()->setSortIndicatorClearable(true);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    connect(horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, &MarkedTableView::sortBy);

    auto *copy = new QAction(tr("Copy"), this);
    copy->setObjectName(u"actionCopy"_s);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &MarkedTableView::copySelectedRows);
    addAction(copy);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void MarkedTableView::showRows(MarkedRows rows)
{
    m_rowsModel.setRows(std::move(rows));
    scrollToTop();
}

void MarkedTableView::setFilter(const QString &filter)
{
    keepingSelection([this, &filter] { m_rowsModel.setFilter(filter); });
}

void MarkedTableView::copySelectedRows()
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    if (!rows.isEmpty())
        QGuiApplication::clipboard()->setText(copiedText(m_rowsModel, rows));
}

void MarkedTableView::sortBy(int column, Qt::SortOrder order)
{
    keepingSelection([this, column, order] { m_rowsModel.sort(column, order); });
}

template<typename Change>
void MarkedTableView::keepingSelection(Change change)
{
    std::vector<bool> selected(static_cast<std::size_t>(m_rowsModel.rows().size()), false);
    const QItemSelection before = selectionModel()->selection();
    for (const QItemSelectionRange &range : before) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            selected[static_cast<std::size_t>(m_rowsModel.naturalRow(row))] = true;
    }
    const int current = currentIndex().isValid() ? m_rowsModel.naturalRow(currentIndex().row()) : -1;

    change();

    if (before.isEmpty() && current < 0)
        return;
    QItemSelection after;
    const int lastColumn = m_rowsModel.columnCount() - 1;
    for (int row = 0; row < m_rowsModel.rowCount();) {
        int end = row;
        while (end < m_rowsModel.rowCount() &&
               selected[static_cast<std::size_t>(m_rowsModel.naturalRow(end))])
            ++end;
        if (end > row)
            after.append({m_rowsModel.index(row, 0), m_rowsModel.index(end - 1, lastColumn)});
        row = std::max(end, row + 1);
    }
    const int shown = current < 0 ? -1 : m_rowsModel.shownRow(current);
    if (shown >= 0) {
        selectionModel()->setCurrentIndex(m_rowsModel.index(shown, 0), QItemSelectionModel::NoUpdate);
        scrollTo(m_rowsModel.index(shown, 0));
    }
    selectionModel()->select(after, QItemSelectionModel::ClearAndSelect);
}

} // namespace Window
