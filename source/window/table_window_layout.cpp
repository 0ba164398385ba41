// The layout of a table window.

#include "window/dialogs.h"
#include "window/filter_field.h"
#include "window/marked_table_view.h"
#include "window/table_window.h"
#include "window/window_memory.h"

#include <QAction>
#include <QCoreApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace Window {

TableWindow::TableWindow(Dialogs &dialogs, QSettings &settings, const TableWindowTexts &texts)
    : m_dialogs(dialogs)
    , m_memory(settings)
    , m_texts(texts)
    , m_recentFiles(new RecentFiles(settings, this))
    , m_view(new MarkedTableView(texts.headings))
{
    setWindowTitle(texts.title);
    setWindowIcon(QIcon(texts.iconFolder + u"window.png"_s));
    setAcceptDrops(true);
    // It would offer to hide the tool bar, with no way to show it again.
    setContextMenuPolicy(Qt::NoContextMenu);
    makeActions();
    makeMenus();
    makeToolBar();
    makeCentralWidget();
    makeStatusBar();
    connect(&m_watch, &FileWatch::changed, this, &TableWindow::offerToLoadAgain);
    resize(texts.size);
    for (int column = 0; column < texts.widths.size(); ++column)
        m_view->setColumnWidth(column, texts.widths.at(column));
    m_memory.restore(*this, *m_view->horizontalHeader());
}

QAction *TableWindow::fileAction(const QString &name, const QString &text, const QString &icon,
                                 const QKeySequence &shortcut)
{
    auto *action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    const QString iconFile = m_texts.iconFolder + icon;
    if (QFile::exists(iconFile))
        action->setIcon(QIcon(iconFile));
    return action;
}

void TableWindow::makeActions()
{
    m_new = fileAction(u"actionNew"_s, tr("New"), u"new.png"_s, QKeySequence(u"Ctrl+N"_s));
    m_open = fileAction(u"actionOpen"_s, tr("Open..."), u"open.png"_s, QKeySequence(u"Ctrl+O"_s));
    m_save = fileAction(u"actionSave"_s, tr("Save"), u"save.png"_s, QKeySequence(u"Ctrl+S"_s));
    m_saveAs = fileAction(u"actionSaveAs"_s, tr("Save As..."), u"saveas.png"_s, QKeySequence());
    m_exit = fileAction(u"actionExit"_s, tr("Exit"), u"exit.png"_s, QKeySequence());
    m_save->setEnabled(false);
    m_saveAs->setEnabled(false);
    connect(m_new, &QAction::triggered, this, &TableWindow::newTable);
    connect(m_open, &QAction::triggered, this, &TableWindow::open);
    connect(m_save, &QAction::triggered, this, &TableWindow::save);
    connect(m_saveAs, &QAction::triggered, this, &TableWindow::saveAs);
    connect(m_exit, &QAction::triggered, this, &TableWindow::close);
    connect(m_recentFiles, &RecentFiles::chosen, this, &TableWindow::openFile);
}

void TableWindow::makeMenus()
{
    menuBar()->setObjectName(u"menuBar"_s);
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->setObjectName(u"menuFile"_s);
    file->addActions({m_new, m_open});
    file->addMenu(m_recentFiles);
    file->addSeparator();
    file->addActions({m_save, m_saveAs});
    file->addSeparator();
    file->addAction(m_exit);

    QMenu *help = menuBar()->addMenu(tr("Help"));
    help->setObjectName(u"menuHelp"_s);
    QAction *about = help->addAction(tr("About..."));
    about->setObjectName(u"actionAbout"_s);
    about->setMenuRole(QAction::AboutRole);
    connect(about, &QAction::triggered, this, &TableWindow::showAbout);
}

void TableWindow::makeToolBar()
{
    QToolBar *bar = addToolBar(tr("Tool Bar"));
    bar->setObjectName(u"mainToolBar"_s);
    bar->addActions({m_new, m_open, m_save});
    auto *space = new QWidget(bar);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_endOfButtons = bar->addWidget(space);
    m_filter = new FilterField(bar);
    m_filter->setEnabled(false);
    bar->addWidget(m_filter);
    bar->setMovable(false);
    connect(m_filter, &FilterField::textChanged, this, [this](const QString &text) {
        m_view->setFilter(text);
        updatePlace();
    });
}

void TableWindow::clearFilter()
{
    m_filter->clear();
}

void TableWindow::addTableAction(QAction *action)
{
    action->setEnabled(false);
    m_tableActions.append(action);
    auto *bar = findChild<QToolBar *>(u"mainToolBar"_s);
    if (m_tableActions.size() == 1) {
        // Separates the file buttons from these.
        bar->insertSeparator(m_endOfButtons);
    }
    bar->insertAction(m_endOfButtons, action);
    // Not every window has it in a menu, so the keyboard must be able to reach it here.
    bar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
}

void TableWindow::makeCentralWidget()
{
    auto *central = new QWidget(this);
    central->setObjectName(u"centralWidget"_s);
    auto *layout = new QHBoxLayout(central);
    layout->setObjectName(u"horizontalLayout"_s);
    layout->setContentsMargins(0, 0, 0, 0);
    m_view->setObjectName(u"tableWidget"_s);
    m_view->setAccessibleName(m_texts.title);
    layout->addWidget(m_view);
    setCentralWidget(central);
}

void TableWindow::makeStatusBar()
{
    statusBar()->setObjectName(u"statusBar"_s);
    m_placeLabel = new QLabel(this);
    m_placeLabel->setObjectName(u"placeLabel"_s);
    m_placeLabel->setTextFormat(Qt::PlainText);
    statusBar()->addPermanentWidget(m_placeLabel);
}

void TableWindow::showAbout()
{
    m_dialogs.inform(this, tr("About"),
                     u"%1 %2"_s.arg(m_texts.title, QCoreApplication::applicationVersion()));
}

} // namespace Window
