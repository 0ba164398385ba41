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
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

using MessageWindow::FindDialog;
using MessageWindow::Keys;
using MessageWindow::MessageEdits;
using MessageWindow::MessagePanel;
using MessageWindow::Numbers;

// The widgets, which are deleted after this, must not call the window any more.
MessageTableUtility::~MessageTableUtility()
{
    for (QObject *sender :
         std::initializer_list<QObject *>{&m_store, &m_store.undoStack(), m_panel, m_find, m_findings,
                                          view().selectionModel(), &view().rowsModel()})
        sender->disconnect(this);
}

QAction *MessageTableUtility::addEditAction(const QString &name, const QString &text,
                                            const QKeySequence &shortcut, const std::function<void()> &act)
{
    QAction *action = m_editMenu->addAction(text);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, [this, act] {
        if (!isBusy())
            act();
    });
    return action;
}

void MessageTableUtility::makeEditMenu()
{
    m_editMenu = new QMenu(tr("&Edit"), this);
    m_editMenu->setObjectName(u"menuEdit"_s);
    menuBar()->insertMenu(findChild<QMenu *>(u"menuHelp"_s)->menuAction(), m_editMenu);

    QUndoStack &stack = m_store.undoStack();
    QAction *undo =
        addEditAction(u"actionUndo"_s, tr("Undo"), QKeySequence::Undo, [&stack] { stack.undo(); });
    QAction *redo =
        addEditAction(u"actionRedo"_s, tr("Redo"), QKeySequence::Redo, [&stack] { stack.redo(); });
    undo->setEnabled(false);
    redo->setEnabled(false);
    connect(&stack, &QUndoStack::canUndoChanged, undo, &QAction::setEnabled);
    connect(&stack, &QUndoStack::canRedoChanged, redo, &QAction::setEnabled);
    m_editMenu->addSeparator();
    addEditAction(u"actionFind"_s, tr("Find and Replace..."), QKeySequence(u"Ctrl+H"_s),
                  [this] { m_find->open(); });
    addEditAction(u"actionFindNext"_s, tr("Find Next"), QKeySequence(u"F3"_s), [this] { findNext(); });
    m_editMenu->addSeparator();
    addEditAction(u"actionEdit"_s, tr("Edit Message"), QKeySequence(u"F2"_s),
                  [this] { m_panel->beginEditing(); });
    addEditAction(u"actionReviewed"_s, tr("Mark as Reviewed"), QKeySequence(u"Ctrl+Return"_s),
                  [this] { markAsReviewed(); });
    addEditAction(u"actionAdopt"_s, tr("Adopt Texts From..."), QKeySequence(u"Ctrl+Shift+A"_s),
                  [this] { adoptTexts(); });
    addEditAction(u"actionCheck"_s, tr("Check Messages"), QKeySequence(u"F7"_s), [this] {
        const Window::WaitCursor wait;
        showFindings(MessageWindow::tableFindings(messages()));
    });
    addEditAction(u"actionNextNew"_s, tr("Next New Message"), QKeySequence(u"Ctrl+Down"_s),
                  [this] { showNextNew(); });
}

void MessageTableUtility::makePanel()
{
    m_panel = new MessagePanel;
    m_panel->setObjectName(u"messagePanel"_s);
    auto *dock = new QDockWidget(tr("Message"), this);
    dock->setObjectName(u"messageDock"_s);
    dock->setWidget(m_panel);
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable |
                      QDockWidget::DockWidgetClosable);
    if (!restoreDockWidget(dock)) {
        constexpr int usualWidth = 380;
        addDockWidget(Qt::RightDockWidgetArea, dock);
        resizeDocks({dock}, {usualWidth}, Qt::Horizontal);
    }
    m_editMenu->addSeparator();
    QAction *toggle = dock->toggleViewAction();
    toggle->setObjectName(u"actionPanel"_s);
    m_editMenu->addAction(toggle);

    connect(m_panel, &MessagePanel::typed, this, [this](MessageWindow::Field field, const QString &text) {
        const Numbers selected = selectedMessages();
        if (selected.size() == 1 && !isBusy())
            m_store.type(tr("Typing"), selected.front(), field, text);
    });
    connect(m_panel, &MessagePanel::severityChosen, this, [this](Clt::Severity severity) {
        if (!isBusy())
            m_store.edit(tr("Severity"),
                         MessageWindow::severityEdits(m_store.places(), selectedMessages(), severity));
        showSelection();
    });
    connect(m_panel, &MessagePanel::stateChosen, this, [this](Clt::MessageState state) {
        if (!isBusy())
            m_store.edit(tr("State"), MessageWindow::stateEdits(m_store.places(), selectedMessages(), state));
        showSelection();
    });
    connect(m_panel, &MessagePanel::left, this, [this] { view().setFocus(Qt::ShortcutFocusReason); });
    connect(&view(), &QAbstractItemView::activated, m_panel, &MessagePanel::beginEditing);
    connect(view().selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MessageTableUtility::showSelection);
    connect(&view().rowsModel(), &QAbstractItemModel::modelReset, this, &MessageTableUtility::showSelection);
}

void MessageTableUtility::makeFindings()
{
    m_findings = new MessageWindow::FindingsPanel;
    m_findings->setObjectName(u"findingsPanel"_s);
    m_findingsDock = new QDockWidget(tr("Findings"), this);
    m_findingsDock->setObjectName(u"findingsDock"_s);
    m_findingsDock->setWidget(m_findings);
    if (!restoreDockWidget(m_findingsDock))
        addDockWidget(Qt::BottomDockWidgetArea, m_findingsDock);
    m_findingsDock->hide(); // it is empty
    connect(m_findings, &MessageWindow::FindingsPanel::chosen, this,
            [this](const Clt::MessageKey &key) { select(key); });
}

void MessageTableUtility::showFindings(const MessageWindow::Findings &findings)
{
    m_findings->show(findings);
    m_findingsDock->show();
    m_findings->begin();
}

void MessageTableUtility::makeFindDialog()
{
    m_find = new FindDialog(this);
    connect(m_find, &FindDialog::findNextRequested, this, &MessageTableUtility::findNext);
    connect(m_find, &FindDialog::replaceRequested, this, &MessageTableUtility::replaceInCurrent);
    connect(m_find, &FindDialog::replaceAllRequested, this, &MessageTableUtility::replaceInAll);
}

void MessageTableUtility::connectStore()
{
    m_statusLabel = new QLabel(this);
    m_statusLabel->setObjectName(u"statusLabel"_s);
    m_statusLabel->setTextFormat(Qt::PlainText);
    statusBar()->addPermanentWidget(m_statusLabel);

    connect(&m_store, &MessageWindow::MessageStore::messagesChanged, this,
            &MessageTableUtility::showMessages);
    connect(&m_store, &MessageWindow::MessageStore::tableChanged, this,
            [this](const std::optional<Clt::MessageKey> &shown) {
                showTable();
                if (shown)
                    select(*shown);
            });
    connect(&m_store.undoStack(), &QUndoStack::cleanChanged, this, [this](bool isClean) {
        if (isClean)
            setUnchanged();
        else
            setUnsaved();
    });
}

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

void MessageTableUtility::select(const Clt::MessageKey &key)
{
    const Window::MarkedTableModel &model = view().rowsModel();
    const int row = MessageWindow::rowOfKey(model.rows(), key);
    const int shown = row < 0 ? -1 : model.shownRow(row);
    if (shown >= 0)
        select(shown);
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
        return showStatus(tr("No obsolete message has the same tag or a similar text"));
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
    if (isBusy() || search.text.isEmpty())
        return;
    const Window::MarkedRows &rows = view().rowsModel().rows();
    const int next = nextRow([&](int row) { return MessageWindow::rowMatches(rows, row, search); });
    if (next >= 0)
        select(next);
    m_find->showResult(next >= 0 ? QString() : tr("Not found"));
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
