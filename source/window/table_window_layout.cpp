// How a table window is laid out.

#include "window/dialogs.h"
#include "window/filter_field.h"
#include "window/marked_table_view.h"
#include "window/recent_files.h"
#include "window/table_window.h"

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

namespace Window {

TableWindow::TableWindow(Dialogs &dialogs, QSettings &settings, const TableWindowTexts &texts)
    : m_dialogs(dialogs)
    , m_memory(settings)
    , m_texts(texts)
    , m_recentFiles(new RecentFiles(settings, this))
    , m_view(new MarkedTableView(texts.headings))
{
    constexpr QSize usualSize(960, 600);
    setWindowTitle(texts.title);
    setWindowIcon(QIcon(texts.iconFolder + QStringLiteral("window.png")));
    setAcceptDrops(true);
    // It would offer to hide the tool bar, and nothing would bring that back.
    setContextMenuPolicy(Qt::NoContextMenu);
    makeActions();
    makeMenus();
    makeToolBar();
    makeCentralWidget();
    makeStatusBar();
    resize(usualSize);
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
    const QString picture = m_texts.iconFolder + icon;
    if (QFile::exists(picture))
        action->setIcon(QIcon(picture));
    return action;
}

void TableWindow::makeActions()
{
    m_new = fileAction(QStringLiteral("actionNew"), tr("New"), QStringLiteral("new.png"),
                       QKeySequence(QStringLiteral("Ctrl+N")));
    m_open = fileAction(QStringLiteral("actionOpen"), tr("Open..."), QStringLiteral("open.png"),
                        QKeySequence(QStringLiteral("Ctrl+O")));
    m_save = fileAction(QStringLiteral("actionSave"), tr("Save"), QStringLiteral("save.png"),
                        QKeySequence(QStringLiteral("Ctrl+S")));
    m_saveAs = fileAction(QStringLiteral("actionSaveAs"), tr("Save As..."), QStringLiteral("saveas.png"),
                          QKeySequence());
    m_exit = fileAction(QStringLiteral("actionExit"), tr("Exit"), QStringLiteral("exit.png"), QKeySequence());
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
    menuBar()->setObjectName(QStringLiteral("menuBar"));
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->setObjectName(QStringLiteral("menuFile"));
    file->addActions({m_new, m_open});
    file->addMenu(m_recentFiles);
    file->addSeparator();
    file->addActions({m_save, m_saveAs});
    file->addSeparator();
    file->addAction(m_exit);

    QMenu *help = menuBar()->addMenu(tr("Help"));
    help->setObjectName(QStringLiteral("menuHelp"));
    QAction *about = help->addAction(tr("About..."));
    about->setObjectName(QStringLiteral("actionAbout"));
    about->setMenuRole(QAction::AboutRole);
    connect(about, &QAction::triggered, this, &TableWindow::showAbout);
}

void TableWindow::makeToolBar()
{
    QToolBar *bar = addToolBar(tr("Tool Bar"));
    bar->setObjectName(QStringLiteral("mainToolBar"));
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
        showPlace();
    });
}

void TableWindow::addTableAction(QAction *action)
{
    action->setEnabled(false);
    m_tableActions.append(action);
    auto *bar = findChild<QToolBar *>(QStringLiteral("mainToolBar"));
    if (m_tableActions.size() == 1) {
        // The line between the file's buttons and these.
        bar->insertSeparator(m_endOfButtons);
    }
    bar->insertAction(m_endOfButtons, action);
    // The menus do not have it, so the keyboard reaches it here.
    bar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
}

void TableWindow::makeCentralWidget()
{
    auto *central = new QWidget(this);
    central->setObjectName(QStringLiteral("centralWidget"));
    auto *layout = new QHBoxLayout(central);
    layout->setObjectName(QStringLiteral("horizontalLayout"));
    layout->setContentsMargins(0, 0, 0, 0);
    m_view->setObjectName(QStringLiteral("tableWidget"));
    layout->addWidget(m_view);
    setCentralWidget(central);
}

void TableWindow::makeStatusBar()
{
    statusBar()->setObjectName(QStringLiteral("statusBar"));
    m_place = new QLabel(this);
    m_place->setObjectName(QStringLiteral("placeLabel"));
    m_place->setTextFormat(Qt::PlainText);
    statusBar()->addPermanentWidget(m_place);
}

void TableWindow::showAbout()
{
    m_dialogs.tell(this, tr("About"),
                   QStringLiteral("%1 %2").arg(m_texts.title, QCoreApplication::applicationVersion()));
}

} // namespace Window
