#include "window/file_watch.h"

#include <QFileInfo>

namespace Window {

namespace {

// Programs write a file in several steps, or replace it by another one.
constexpr int pauseInMilliseconds = 300;

} // namespace

FileWatch::FileWatch(QObject *parent)
    : QObject(parent)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseInMilliseconds);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this] { m_pause.start(); });
    connect(&m_pause, &QTimer::timeout, this, &FileWatch::check);
}

void FileWatch::setFile(const QString &fileName)
{
    if (!m_watcher.files().isEmpty())
        m_watcher.removePaths(m_watcher.files());
    m_pause.stop();
    m_fileName = fileName;
    accept();
    if (!fileName.isEmpty())
        m_watcher.addPath(fileName);
}

bool FileWatch::isChanged() const
{
    const Stamp now = stampOf(m_fileName);
    return now.size >= 0 && !(now == m_stamp);
}

void FileWatch::accept()
{
    m_stamp = stampOf(m_fileName);
}

void FileWatch::notifyLater()
{
    m_pause.start();
}

FileWatch::Stamp FileWatch::stampOf(const QString &fileName)
{
    const QFileInfo file(fileName);
    return file.exists() ? Stamp{file.size(), file.lastModified()} : Stamp();
}

void FileWatch::check()
{
    // The watcher forgets a file that was replaced.
    if (!m_watcher.files().contains(m_fileName) && QFileInfo::exists(m_fileName))
        m_watcher.addPath(m_fileName);
    if (isChanged())
        emit changed();
}

} // namespace Window
