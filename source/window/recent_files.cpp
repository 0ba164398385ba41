#include "window/recent_files.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace Window {

namespace {

const QString settingsKey = QStringLiteral("recentFiles");

QString fullPath(const QString &file)
{
    return QDir::toNativeSeparators(QFileInfo(file).absoluteFilePath());
}

// "&1 C:\tables\errors.xml", with the number as its key.
QString menuText(qsizetype number, QString file)
{
    return QStringLiteral("&%1 ").arg(number) + file.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

QStringList withRecent(QStringList files, const QString &file, qsizetype most)
{
    files.removeAll(file);
    files.prepend(file);
    return files.mid(0, most);
}

RecentFiles::RecentFiles(QSettings &settings, QWidget *parent)
    : QMenu(parent)
    , m_settings(settings)
    , m_files(settings.value(settingsKey).toStringList().mid(0, most))
{
    setObjectName(QStringLiteral("menuRecentFiles"));
    setTitle(tr("Open &Recent"));
    fill();
}

void RecentFiles::add(const QString &file)
{
    m_files = withRecent(m_files, fullPath(file), most);
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

// The action that was chosen may be asking for this: none of them is gone at once.
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
