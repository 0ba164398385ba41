#include "cfg_wizard/progress_list.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QStyledItemDelegate>

namespace Nvx::Wizard {

namespace {

// A zero-width space, at which a line may be broken.
constexpr QChar breakPlace(0x200B);

// Shows a row with break places after the separators of a path; the stored text does not change.
class WrappingRows final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &) const override
    {
        QString shown = value.toString();
        for (const QChar separator : {u'\\', u'/'})
            shown.replace(separator, QString(separator) + breakPlace);
        return shown;
    }
};

} // namespace

ProgressList::ProgressList(QWidget *parent)
    : QListWidget(parent)
{
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setWordWrap(true);
    setTextElideMode(Qt::ElideNone);
    setResizeMode(QListView::Adjust);
    setItemDelegate(new WrappingRows(this));
    addMenu();
}

void ProgressList::addMenu()
{
    auto *copy = new QAction(tr("&Copy"), this);
    copy->setShortcut(QKeySequence::Copy);
    connect(copy, &QAction::triggered, this, &ProgressList::copySelectedRows);
    auto *selectAllRows = new QAction(tr("Select &All"), this);
    selectAllRows->setShortcut(QKeySequence::SelectAll);
    connect(selectAllRows, &QAction::triggered, this, &ProgressList::selectAll);

    for (QAction *action : {copy, selectAllRows}) {
        action->setShortcutContext(Qt::WidgetShortcut);
        addAction(action);
    }
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void ProgressList::appendRow(const QString &text)
{
    addItem(text);
    scrollToBottom();
}

void ProgressList::copySelectedRows() const
{
    QStringList rows;
    for (int row = 0; row < count(); ++row) {
        if (item(row)->isSelected())
            rows.append(item(row)->text());
    }
    if (!rows.isEmpty())
        QGuiApplication::clipboard()->setText(rows.join(u'\n'));
}

} // namespace Nvx::Wizard
