// How the window on a message table edits messages.

#include "message_table_utility/adoption.h"
#include "message_table_utility/adoption_dialog.h"
#include "message_table_utility/error_message_table_utility.h"
#include "message_table_utility/find_dialog.h"
#include "message_table_utility/message_panel.h"
#include "message_table_utility/message_rows.h"
#include "window/marked_table_view.h"
#include "window/wait_cursor.h"

#include <QAction>
#include <QDockWidget>
#include <QLabel>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

using MessageWindow::Keys;
using MessageWindow::MessageEdits;
using MessageWindow::Numbers;

// Message and row have the same number.
Numbers MessageTableUtility::selectedMessages()
{
    Numbers numbers;
    const QItemSelection selection = view().selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            numbers.push_back(view().rowsModel().naturalRow(row));
    }
    std::ranges::sort(numbers);
    return numbers;
}

Numbers MessageTableUtility::shownMessages()
{
    Numbers numbers;
    for (int row = 0; row < view().rowsModel().rowCount(); ++row)
        numbers.push_back(view().rowsModel().naturalRow(row));
    std::ranges::sort(numbers);
    return numbers;
}

void MessageTableUtility::showSelection()
{
    int count = 0;
    const QItemSelection selection = view().selectionModel()->selection();
    for (const QItemSelectionRange &range : selection)
        count += range.height();
    if (count == 1)
        m_panel->showMessage(m_store.message(selectedMessages().front()));
    else if (count > 1)
        m_panel->showCount(count);
    else
        m_panel->showNothing();
    showStatusCounts();
}

// After an undo the user must see what was undone.
void MessageTableUtility::showMessages(const Numbers &numbers)
{
    Window::MarkedTableModel &model = view().rowsModel();
    for (const int number : numbers)
        MessageWindow::setMessageRow(model, number, m_store.message(number));
    model.showChangedRows();
    if (numbers.size() == 1 && selectedMessages() != numbers) {
        const int shown = model.shownRow(numbers.front());
        if (shown >= 0)
            select(shown);
    }
    showSelection();
}

void MessageTableUtility::showStatusCounts()
{
    const MessageWindow::TableStatus &status = m_store.status();
    m_statusLabel->setText(tr("New: %L1, obsolete: %L2, incomplete: %L3")
                               .arg(status.newMessages)
                               .arg(status.obsolete)
                               .arg(status.incomplete));
}

void MessageTableUtility::select(int shownRow)
{
    const QModelIndex index = view().rowsModel().index(shownRow, 0);
    view().selectionModel()->setCurrentIndex(index,
                                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    view().scrollTo(index);
}

bool MessageTableUtility::select(const Clt::MessageKey &key)
{
    const Window::MarkedTableModel &model = view().rowsModel();
    const int row = MessageWindow::rowOfKey(model.rows(), key);
    const int shown = row < 0 ? -1 : model.shownRow(row);
    if (shown >= 0)
        select(shown);
    return shown >= 0;
}

bool MessageTableUtility::showMessage(const Clt::MessageKey &key)
{
    if (MessageWindow::rowOfKey(view().rowsModel().rows(), key) < 0)
        return false;
    if (select(key))
        return true;
    clearFilter(); // it hides the message
    return select(key);
}

void MessageTableUtility::editMessage()
{
    m_dock->show();
    m_panel->beginEditing();
}

int MessageTableUtility::nextRow(const std::function<bool(int naturalRow)> &test)
{
    const Window::MarkedTableModel &model = view().rowsModel();
    const int count = model.rowCount();
    const int current = view().currentIndex().row(); // -1 if there is none
    for (int step = 1; step <= count; ++step) {
        const int row = (current + step) % count;
        if (test(model.naturalRow(row)))
            return row;
    }
    return -1;
}

void MessageTableUtility::showFindings(const MessageWindow::Findings &findings)
{
    m_findingsDock->toggleViewAction()->setEnabled(true);
    m_findings->show(findings);
    m_findingsDock->show();
    m_findings->begin();
}

void MessageTableUtility::hideFindings()
{
    m_findingsDock->hide();
    m_findingsDock->toggleViewAction()->setEnabled(false);
}

void MessageTableUtility::markAsReviewed()
{
    m_store.edit(tr("Mark as Reviewed"),
                 MessageWindow::stateEdits(m_store.places(), selectedMessages(), Clt::MessageState::InSync));
}

void MessageTableUtility::adoptTexts()
{
    const Numbers selected = selectedMessages();
    if (selected.size() != 1 || m_store.message(selected.front()).state() != Clt::MessageState::New)
        return showStatus(tr("Select a new message"));
    const Clt::MessageKey key = m_store.message(selected.front()).key();
    const Keys candidates = MessageWindow::adoptionCandidates(messages(), key);
    if (candidates.empty())
        return showStatus(tr("No obsolete message has a similar tag or text"));
    auto *dialog = new MessageWindow::AdoptionDialog(messages(), candidates, this);
    connect(dialog, &MessageWindow::AdoptionDialog::chosen, this,
            [this, key](const Clt::MessageKey &adopted) {
                if (const auto adoption = MessageWindow::adoption(messages(), key, adopted))
                    m_store.adopt(tr("Adopt Texts From..."), *adoption);
            });
    dialog->open();
}

void MessageTableUtility::showNextNew()
{
    const Window::MarkedRows &rows = view().rowsModel().rows();
    const int next = nextRow([&rows](int row) { return rows.mark(row) == Window::RowMark::New; });
    if (next >= 0)
        select(next);
    else
        showStatus(tr("There are no new messages"));
}

void MessageTableUtility::findNext()
{
    const MessageWindow::Search search = m_find->search();
    if (isBusy())
        return;
    if (search.text.isEmpty())
        return m_find->open();
    const Window::MarkedRows &rows = view().rowsModel().rows();
    const int next = nextRow([&](int row) { return MessageWindow::rowMatches(rows, row, search); });
    if (next >= 0)
        select(next);
    const QString result = next >= 0 ? QString() : tr("Not found");
    m_find->showResult(result);
    if (!m_find->isVisible())
        showStatus(result);
}

void MessageTableUtility::replaceInCurrent()
{
    const Numbers selected = selectedMessages();
    if (isBusy() || selected.size() != 1)
        return findNext();
    m_store.edit(tr("Replace"), MessageWindow::replacements(m_store.places(), selected, m_find->search(),
                                                            m_find->replacement()));
    findNext();
}

void MessageTableUtility::replaceInAll()
{
    if (isBusy())
        return;
    const Numbers shown = shownMessages();
    const auto replace = [&](Window::Progress &progress) {
        return MessageWindow::replacements(
            m_store.places(), shown, m_find->search(), m_find->replacement(),
            [&](qsizetype done) { return progress.report(done, static_cast<qsizetype>(shown.size())); });
    };
    std::optional<MessageEdits> edits = withProgress(tr("Find and Replace"), tr("Replacing..."), replace);
    m_find->activateWindow(); // the progress may have been in front of it
    if (!edits)
        return m_find->showResult(tr("Cancelled; nothing was replaced"));
    const auto count = edits->size();
    const Window::WaitCursor wait;
    m_store.edit(tr("Replace"), *std::move(edits));
    m_find->showResult(tr("Messages changed: %L1").arg(count));
}
