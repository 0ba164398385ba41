#include "window/window_memory.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QMainWindow>
#include <QSettings>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Window {

namespace {

const QString geometryKey = u"geometry"_s;
const QString stateKey = u"state"_s;
const QString widthsKey = u"columnWidths"_s;
const QString folderKey = u"lastFolder"_s;

} // namespace

void WindowMemory::restore(QMainWindow &window, QHeaderView &columns) const
{
    const QByteArray geometry = m_settings.value(geometryKey).toByteArray();
    if (geometry.isEmpty() || !window.restoreGeometry(geometry))
        return;
    window.restoreState(m_settings.value(stateKey).toByteArray());
    const QVariantList widths = m_settings.value(widthsKey).toList();
    const auto count = std::min<int>(columns.count(), static_cast<int>(widths.size()));
    for (int column = 0; column < count; ++column)
        columns.resizeSection(column, std::max(widths.at(column).toInt(), columns.minimumSectionSize()));
}

void WindowMemory::store(const QMainWindow &window, const QHeaderView &columns)
{
    m_settings.setValue(geometryKey, window.saveGeometry());
    m_settings.setValue(stateKey, window.saveState());
    QVariantList widths;
    for (int column = 0; column < columns.count(); ++column)
        widths.append(columns.sectionSize(column));
    m_settings.setValue(widthsKey, widths);
}

QString WindowMemory::lastFolder() const
{
    return m_settings.value(folderKey).toString();
}

void WindowMemory::rememberFolderOf(const QString &fileName)
{
    m_settings.setValue(folderKey, QDir::toNativeSeparators(QFileInfo(fileName).absolutePath()));
}

namespace {

const QString settingsKey = u"recentFiles"_s;

QString fullPath(const QString &file)
{
    return QDir::toNativeSeparators(QFileInfo(file).absoluteFilePath());
}

// "&1 C:\tables\errors.xml": the number is the mnemonic.
QString menuText(qsizetype number, QString file)
{
    return u"&%1 "_s.arg(number) + file.replace(u'&', u"&&"_s);
}

} // namespace

QStringList withRecent(QStringList files, const QString &file, qsizetype maximum)
{
    files.removeAll(file);
    files.prepend(file);
    return files.mid(0, maximum);
}

RecentFiles::RecentFiles(QSettings &settings, QWidget *parent)
    : QMenu(parent)
    , m_settings(settings)
    , m_files(settings.value(settingsKey).toStringList().mid(0, maximum))
{
    setObjectName(u"menuRecentFiles"_s);
    setTitle(tr("Open &Recent"));
    fill();
}

void RecentFiles::add(const QString &file)
{
    m_files = withRecent(m_files, fullPath(file), maximum);
    store();
}

void RecentFiles::remove(const QString &file)
{
    m_files.removeAll(fullPath(file));
    store();
}

void RecentFiles::store()
{
    m_settings.setValue(settingsKey, m_files);
    fill();
}

// Called while the chosen action is being handled, so the actions are deleted later.
void RecentFiles::fill()
{
    const QList<QAction *> old = actions();
    for (QAction *action : old) {
        removeAction(action);
        action->deleteLater();
    }
    for (qsizetype index = 0; index < m_files.size(); ++index) {
        const QString &file = m_files.at(index);
        QAction *action = addAction(menuText(index + 1, file));
        connect(action, &QAction::triggered, this, [this, file] { emit chosen(file); });
    }
    setEnabled(!m_files.isEmpty());
}

} // namespace Window
