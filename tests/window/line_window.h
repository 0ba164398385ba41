#pragma once

#include "support/file_bytes.h"
#include "support/recording_dialogs.h"
#include "support/test_folder.h"
#include "window/table_window.h"

#include <QAction>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QTableView>

inline Window::TableWindowTexts sampleTexts()
{
    Window::TableWindowTexts texts;
    texts.title = QStringLiteral("Line Utility");
    texts.headings = QStringList{QStringLiteral("Line")};
    texts.openTitle = QStringLiteral("Open Lines");
    texts.saveTitle = QStringLiteral("Save Lines");
    texts.filter = QStringLiteral("*.txt");
    texts.notLoaded = QStringLiteral("Could not load lines");
    texts.created = QStringLiteral("Created");
    texts.opened = QStringLiteral("Opened %1");
    texts.saved = QStringLiteral("Saved");
    texts.savedAs = QStringLiteral("Saved as %1");
    return texts;
}

/// A window on the lines of a text file.
class LineWindow : public Window::TableWindow
{
public:
    LineWindow(Window::Dialogs &dialogs, QSettings &settings)
        : TableWindow(dialogs, settings, sampleTexts())
        , m_number(new QAction(QStringLiteral("Number"), this))
    {
        m_number->setObjectName(QStringLiteral("actionNumber"));
        addTableAction(m_number);
    }

    void addLine(const QByteArray &line)
    {
        m_lines.append(line);
        setUnsaved();
        showTable();
    }

    // Works until it is cancelled or the time is over.
    void work(int milliseconds)
    {
        Window::WindowWork work(*this, QStringLiteral("Work"), QStringLiteral("Working"));
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < milliseconds && work.report(timer.elapsed(), milliseconds))
            continue;
    }

    const QList<QByteArray> &lines() const { return m_lines; }

protected:
    void clearTable() override { m_lines.clear(); }

    Window::Loading loadTable(const QString &fileName) override
    {
        const std::optional<QByteArray> bytes = fileBytes(fileName);
        if (!bytes)
            return {Window::Loading::Outcome::Failed, QStringLiteral("no such file")};
        if (bytes->isEmpty())
            return {Window::Loading::Outcome::Cancelled, QString()};
        m_lines = bytes->split('\n');
        return {};
    }

    bool saveTable(const QString &fileName) override { return writeBytes(fileName, m_lines.join('\n')); }

    Window::MarkedRows rows() const override
    {
        Window::MarkedRows rows(1);
        for (const QByteArray &line : m_lines)
            rows.add({QString::fromUtf8(line)}, Window::RowMark::None);
        return rows;
    }

private:
    QAction *m_number;
    QList<QByteArray> m_lines;
};

/// A window with all that it needs, and a file of two lines.
struct LineWindowFixture
{
    LineWindowFixture()
    {
        if (!writeBytes(file, "one\ntwo"))
            qFatal("cannot write");
    }

    QAction *action(const char *name) { return window.findChild<QAction *>(QLatin1String(name)); }
    bool isEnabled(const char *name) { return action(name)->isEnabled(); }
    QString status() { return window.statusBar()->currentMessage(); }
    QString place() { return window.findChild<QLabel *>(QStringLiteral("placeLabel"))->text(); }
    QLineEdit *filter() { return window.findChild<QLineEdit *>(QStringLiteral("filterField")); }
    QMenu *recentFiles() { return window.findChild<QMenu *>(QStringLiteral("menuRecentFiles")); }
    int shownRows()
    {
        return window.findChild<QTableView *>(QStringLiteral("tableWidget"))->model()->rowCount();
    }

    TestFolder folder;
    QString file = folder.path(QStringLiteral("lines.txt"));
    QString otherFile = folder.path(QStringLiteral("other.txt"));
    QSettings settings{folder.path(QStringLiteral("settings.ini")), QSettings::IniFormat};
    RecordingDialogs dialogs;
    LineWindow window{dialogs, settings};
};

// Drags a file over the window and drops what comes then; whether the window wanted either.
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

// Drags a file over the window and drops it there; whether the window wanted it.
inline bool drop(QWidget &window, const QList<QUrl> &urls)
{
    return drop(window, urls, urls);
}
