#include "window/table_window.h"

#include "window/dialogs.h"
#include "window/filter_field.h"
#include "window/marked_table_view.h"
#include "window/wait_cursor.h"
#include "window/window_memory.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QStatusBar>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Window {

namespace {

// Not QString::arg(), which would complain about a text without the file name.
QString withFile(QString text, const QString &fileName)
{
    return text.replace(u"%1"_s, fileName);
}

} // namespace

TableWindow::~TableWindow() = default;

bool TableWindow::openFile(const QString &fileName)
{
    return !isBusy() && mayLoseChanges() && load(fileName);
}

void TableWindow::newTable()
{
    if (isBusy() || !mayLoseChanges())
        return;
    clearTable();
    m_fileName.clear();
    tableReplaced(QString());
    showStatus(m_texts.created);
}

void TableWindow::open()
{
    if (isBusy() || !mayLoseChanges())
        return;
    const QString chosen = chooseFileToOpen(m_texts.openTitle, m_texts.filter);
    if (!chosen.isEmpty())
        load(chosen);
}

bool TableWindow::save()
{
    if (isBusy())
        return false;
    const QString target = m_fileName.isEmpty() ? chooseFileToSave() : m_fileName;
    if (target.isEmpty() || !saveTo(target))
        return false;
    showStatus(withBackupNote(m_texts.saved, backupFile()));
    return true;
}

bool TableWindow::saveAs()
{
    if (isBusy())
        return false;
    const QString chosen = chooseFileToSave();
    if (chosen.isEmpty() || !saveTo(chosen))
        return false;
    showStatus(withBackupNote(withFile(m_texts.savedAs, m_fileName), backupFile()));
    return true;
}

QString TableWindow::chooseFileToOpen(const QString &title, const QString &filter)
{
    const QString chosen = m_dialogs.fileToOpen(this, {title, m_memory.lastFolder(), filter});
    if (!chosen.isEmpty())
        m_memory.rememberFolderOf(chosen);
    return chosen;
}

QString TableWindow::chooseFileToSave()
{
    const QString chosen =
        m_dialogs.fileToSave(this, {m_texts.saveTitle, m_memory.lastFolder(), m_texts.filter});
    if (!chosen.isEmpty())
        m_memory.rememberFolderOf(chosen);
    return chosen;
}

void TableWindow::setUnsaved()
{
    m_isUnsaved = true;
    enableSave();
    updatePlace();
}

void TableWindow::setUnchanged()
{
    m_isUnsaved = m_isOutdated;
    updatePlace();
}

void TableWindow::enableSave()
{
    m_save->setEnabled(true);
}

void TableWindow::showTable()
{
    m_view->showRows(rows());
    updatePlace();
}

void TableWindow::showStatus(const QString &text)
{
    statusBar()->showMessage(text);
    // The bar cuts off a longer text.
    statusBar()->setToolTip(text);
}

QString TableWindow::withBackupNote(const QString &text, const QString &copy)
{
    return copy.isEmpty() ? text : text + u"   "_s + Clt::backupText(QFileInfo(copy).fileName());
}

bool TableWindow::mayLoseChanges()
{
    if (!m_isUnsaved)
        return true;
    const QString name = m_fileName.isEmpty() ? tr("Untitled") : QFileInfo(m_fileName).fileName();
    switch (
        m_dialogs.askAboutUnsaved(this, m_texts.title, tr("%1 has unsaved changes. Save them?").arg(name))) {
    case UnsavedChoice::Save:
        return save();
    case UnsavedChoice::Discard:
        return true;
    case UnsavedChoice::Cancel:
        break;
    }
    return false;
}

bool TableWindow::load(const QString &fileName)
{
    const QString path = QDir::toNativeSeparators(QFileInfo(fileName).absoluteFilePath());
    const auto loaded = withProgress(m_texts.openTitle, withFile(m_texts.loading, path),
                                     [&](Progress &progress) { return loadTable(path, progress); });
    if (!loaded)
        return false;
    if (!*loaded) {
        showLoadError(path, loaded->error());
        return false;
    }
    tableReplaced(path);
    showStatus(withFile(m_texts.opened, path));
    showLeftovers();
    return true;
}

void TableWindow::showLeftovers()
{
    constexpr std::size_t maximum = 10;
    const Clt::Leftovers left = leftovers();
    if (left.isEmpty())
        return;
    const QString text =
        tr("Not everything in the file was understood. Saving the table drops these parts: %1");
    m_dialogs.warn(
        this, m_texts.openTitle,
        u"%1\n\n%2\n%3"_s.arg(m_fileName, text.arg(left.count()), left.texts(maximum).join(u'\n')));
}

// One question about everything that would be lost.
bool TableWindow::mayBeSaved(const QString &path)
{
    QStringList losses;
    if (path == m_fileName && m_watch.isChanged())
        losses.append(tr("%1 was changed by another program.").arg(path));
    if (const QString loss = lossBySaving(); !loss.isEmpty())
        losses.append(loss);
    const Clt::Leftovers left = leftovers();
    if (!left.isEmpty() && Clt::isSameFile(path, m_fileName))
        losses.append(tr("Saving drops the parts of %1 that were not understood (%2). The old file is kept "
                         "next to it.")
                          .arg(QFileInfo(path).fileName(), QString::number(left.count())));
    if (losses.isEmpty())
        return true;
    losses.append(tr("Save the table anyway?"));
    return m_dialogs.confirm(this, m_texts.saveTitle, losses.join(u"\n\n"_s));
}

void TableWindow::showLoadError(const QString &path, const QString &error)
{
    if (!QFile::exists(path))
        m_recentFiles->remove(path);
    m_dialogs.warn(this, m_texts.openTitle, u"%1\n\n%2\n%3"_s.arg(m_texts.notLoaded, path, error));
}

// Not while a dialog is open or work is going on: they continue with the table that they began with.
void TableWindow::offerToLoadAgain()
{
    if (isBusy() || QApplication::activeModalWidget()) {
        m_watch.notifyLater();
        return;
    }
    m_watch.accept();
    // From now on the table differs from the file.
    const bool wasUnsaved = std::exchange(m_isUnsaved, true);
    m_isOutdated = true;
    enableSave();
    updatePlace();
    QString question = tr("%1 was changed by another program. Load it again?").arg(m_fileName);
    if (wasUnsaved)
        question += u"\n\n"_s + tr("Your unsaved changes will be lost.");
    if (m_dialogs.confirm(this, m_texts.openTitle, question))
        load(m_fileName);
}

bool TableWindow::saveTo(const QString &fileName)
{
    const QString path = QDir::toNativeSeparators(QFileInfo(fileName).absoluteFilePath());
    if (!mayBeSaved(path))
        return false;
    if (!saveShowingWait(path)) {
        m_dialogs.warn(this, m_texts.saveTitle,
                       tr("Could not save %1\n\nThe location may be write-protected or full. The table stays "
                          "open, unsaved; save it in another location.")
                           .arg(path));
        return false;
    }
    m_fileName = path;
    m_watch.setFile(path);
    m_isUnsaved = m_isOutdated = false;
    m_save->setEnabled(false);
    m_memory.rememberFolderOf(path);
    m_recentFiles->add(path);
    updatePlace();
    return true;
}

bool TableWindow::saveShowingWait(const QString &path)
{
    const WaitCursor wait;
    return saveTable(path);
}

void TableWindow::tableReplaced(const QString &fileName)
{
    m_fileName = fileName;
    m_watch.setFile(fileName);
    m_isUnsaved = m_isOutdated = false;
    for (QAction *action : {m_save, m_saveAs})
        action->setEnabled(true);
    for (QAction *action : std::as_const(m_tableActions))
        action->setEnabled(true);
    m_filter->setEnabled(true);
    if (!fileName.isEmpty()) {
        m_memory.rememberFolderOf(fileName);
        m_recentFiles->add(fileName);
    }
    showTable();
}

void TableWindow::updatePlace()
{
    const QString name = m_fileName.isEmpty() ? tr("Untitled") : QFileInfo(m_fileName).fileName();
    const int all = m_view->rowsModel().rows().size();
    const int shown = m_view->rowsModel().rowCount();
    const QString count =
        shown == all ? tr("Rows: %L1").arg(all) : tr("Rows: %L1 of %L2").arg(shown).arg(all);
    const QString place = m_isUnsaved ? tr("%1 (not saved)").arg(name) : name;
    m_placeLabel->setText(place + u"   "_s + count);
    m_placeLabel->setToolTip(m_fileName);
    markTitle();
}

// The placeholder is there only while it is needed, so that the title is otherwise the stated one.
void TableWindow::markTitle()
{
    if (m_isUnsaved) {
        setWindowTitle(m_texts.title + u"[*]"_s);
        setWindowModified(true);
    } else {
        setWindowModified(false);
        setWindowTitle(m_texts.title);
    }
}

void TableWindow::closeEvent(QCloseEvent *event)
{
    if (isBusy()) {
        m_closesAfterWork = true;
        m_work->cancel();
        event->ignore();
        return;
    }
    if (!mayLoseChanges()) {
        event->ignore();
        return;
    }
    m_memory.store(*this, *m_view->horizontalHeader());
    QMainWindow::closeEvent(event);
}

void TableWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!isBusy() && !droppedFile(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

// The program that the file is dragged from waits until this returns, so message boxes must come later.
void TableWindow::dropEvent(QDropEvent *event)
{
    const QString file = droppedFile(event->mimeData());
    if (file.isEmpty())
        return;
    event->acceptProposedAction();
    QMetaObject::invokeMethod(
        this, [this, file] { openFile(file); }, Qt::QueuedConnection);
}

WindowWork::WindowWork(TableWindow &window, const QString &title, const QString &text)
    : Progress(&window, title, text, window.progressDelay())
    , m_window(window)
{
    window.m_work = this;
}

WindowWork::~WindowWork()
{
    m_window.m_work = nullptr;
    if (std::exchange(m_window.m_closesAfterWork, false))
        QMetaObject::invokeMethod(&m_window, &QWidget::close, Qt::QueuedConnection);
}

} // namespace Window
