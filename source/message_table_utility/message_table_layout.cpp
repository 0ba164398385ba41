// The menus, panels and dialogs of the window on a message table.

#include "message_table_utility/error_message_table_utility.h"
#include "message_table_utility/find_dialog.h"
#include "message_table_utility/findings.h"
#include "message_table_utility/message_panel.h"
#include "window/marked_table_view.h"
#include "window/wait_cursor.h"

#include <QAction>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

using MessageWindow::FindDialog;
using MessageWindow::FindingsPanel;
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
        addEditAction(u"actionRedo"_s, tr("Redo"), QKeySequence(u"Ctrl+Y"_s), [&stack] { stack.redo(); });
    redo->setShortcuts({redo->shortcut(), QKeySequence(u"Ctrl+Shift+Z"_s)});
    undo->setEnabled(false);
    redo->setEnabled(false);
    connect(&stack, &QUndoStack::canUndoChanged, undo, &QAction::setEnabled);
    connect(&stack, &QUndoStack::canRedoChanged, redo, &QAction::setEnabled);
    m_editMenu->addSeparator();
    addEditAction(u"actionFind"_s, tr("Find and Replace..."), QKeySequence(u"Ctrl+H"_s),
                  [this] { m_find->open(); });
    addEditAction(u"actionFindNext"_s, tr("Find Next"), QKeySequence(u"F3"_s), [this] { findNext(); });
    m_editMenu->addSeparator();
    addEditAction(u"actionEdit"_s, tr("Edit Message"), QKeySequence(u"F2"_s), [this] { editMessage(); });
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
    m_dock = new QDockWidget(tr("Message"), this);
    m_dock->setObjectName(u"messageDock"_s);
    m_dock->setWidget(m_panel);
    m_dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable |
                        QDockWidget::DockWidgetClosable);
    if (!restoreDockWidget(m_dock)) {
        constexpr int usualWidth = 380;
        addDockWidget(Qt::RightDockWidgetArea, m_dock);
        resizeDocks({m_dock}, {usualWidth}, Qt::Horizontal);
    }
    m_editMenu->addSeparator();
    QAction *toggle = m_dock->toggleViewAction();
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
    connect(&view(), &QAbstractItemView::activated, this, &MessageTableUtility::editMessage);
    connect(view().selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &MessageTableUtility::showSelection);
    connect(&view().rowsModel(), &QAbstractItemModel::modelReset, this, &MessageTableUtility::showSelection);
}

void MessageTableUtility::makeFindings()
{
    m_findings = new FindingsPanel;
    m_findings->setObjectName(u"findingsPanel"_s);
    m_findingsDock = new QDockWidget(tr("Findings"), this);
    m_findingsDock->setObjectName(u"findingsDock"_s);
    m_findingsDock->setWidget(m_findings);
    if (!restoreDockWidget(m_findingsDock))
        addDockWidget(Qt::BottomDockWidgetArea, m_findingsDock);
    QAction *toggle = m_findingsDock->toggleViewAction();
    toggle->setObjectName(u"actionFindings"_s);
    m_editMenu->addAction(toggle);
    hideFindings();

    connect(m_findings, &FindingsPanel::chosen, this, &MessageTableUtility::showMessage);
    connect(m_findings, &FindingsPanel::opened, this, [this](const Clt::MessageKey &key) {
        if (showMessage(key))
            editMessage();
    });
    connect(m_findings, &FindingsPanel::left, this, [this] { view().setFocus(Qt::ShortcutFocusReason); });
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
