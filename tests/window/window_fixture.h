#pragma once

// What the tests of all table windows share.

#include "support/file_bytes.h"
#include "support/recording_dialogs.h"
#include "support/test_folder.h"

#include <QAction>
#include <QApplication>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QTableView>
#include <QTest>

#include <initializer_list>

/// The text of each cell in a row.
inline QStringList cellsOf(const QAbstractItemModel &model, int row)
{
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column)
        cells.append(model.index(row, column).data().toString());
    return cells;
}

/// The first row as "PROCESS|CONTEXT|TAG", and so on.
inline QStringList rowsOf(const QAbstractItemModel &model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row)
        rows.append(cellsOf(model, row).join(u'|'));
    return rows;
}

inline QStringList headingsOf(const QAbstractItemModel &model)
{
    QStringList headings;
    for (int column = 0; column < model.columnCount(); ++column)
        headings.append(model.headerData(column, Qt::Horizontal).toString());
    return headings;
}

inline void clickHeading(const QTableView &view, int column)
{
    const QHeaderView *header = view.horizontalHeader();
    const QPoint place(header->sectionViewportPosition(column) + 10, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

/// A table window with dialogs, settings and a folder for its files.
template<typename TestedWindow>
struct WindowFixture
{
    template<typename Object = QObject>
    Object *child(const char *name)
    {
        return window.template findChild<Object *>(QLatin1String(name));
    }

    QAction *action(const char *name) { return child<QAction>(name); }
    bool isEnabled(const char *name) { return action(name)->isEnabled(); }
    QString status() { return window.statusBar()->currentMessage(); }
    QString place() { return child<QLabel>("placeLabel")->text(); }
    QLineEdit *filter() { return child<QLineEdit>("filterField"); }
    QMenu *recentFiles() { return child<QMenu>("menuRecentFiles"); }
    QTableView *view() { return child<QTableView>("tableWidget"); }
    int rowCount() { return view()->model()->rowCount(); }

    /// The rows on the screen, each with "|" between its cells.
    QStringList shownRows() { return rowsOf(*view()->model()); }

    /// True if New, Open and Exit, which need no table, are enabled, and the actions that do need one are as
    /// stated. Save, Save As and the window's own actions need one.
    bool areTableActionsEnabled(bool areEnabled, std::initializer_list<const char *> ownActions)
    {
        bool isAsStated = isEnabled("actionNew") && isEnabled("actionOpen") && isEnabled("actionExit") &&
                          isEnabled("actionSave") == areEnabled && isEnabled("actionSaveAs") == areEnabled;
        for (const char *name : ownActions)
            isAsStated = isAsStated && isEnabled(name) == areEnabled;
        return isAsStated;
    }

    TestFolder folder;
    QSettings settings{folder.path(QStringLiteral("settings.ini")), QSettings::IniFormat};
    RecordingDialogs dialogs;
    TestedWindow window{dialogs, settings};
};

/// Drags one list of files over the window and drops another one. Returns whether the window accepted both.
inline bool drop(QWidget &window, const QList<QUrl> &dragged, const QList<QUrl> &dropped)
{
    QMimeData mime;
    mime.setUrls(dragged);
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&window, &enter);
    if (!enter.isAccepted())
        return false;
    mime.setUrls(dropped);
    QDropEvent dropping(QPoint(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    dropping.ignore();
    QCoreApplication::sendEvent(&window, &dropping);
    return dropping.isAccepted();
}

/// Drags files over the window and drops them. Returns whether the window accepted them.
inline bool drop(QWidget &window, const QList<QUrl> &urls)
{
    return drop(window, urls, urls);
}
