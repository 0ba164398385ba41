#include "nvx_util/trusted_files.h"

#include "platform.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace Nvx::Util {

namespace {

constexpr int maximumLinks = 40;

// The path and its parents, from the drive down.
QStringList withParents(const QString &path)
{
    QStringList paths;
    QString rest = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    for (;;) {
        paths.prepend(QDir::toNativeSeparators(rest));
        const QString parent = QFileInfo(rest).path();
        if (parent == rest || QDir(rest).isRoot())
            return paths;
        rest = parent;
    }
}

} // namespace

std::optional<QString> plantedPointOf(const QList<WayPoint> &way)
{
    const auto isPlanted = [](const WayPoint &point) {
        return !point.isAdministrators && (point.isLink || !point.isHeld);
    };
    const auto found = std::find_if(way.begin(), way.end(), isPlanted);
    return found == way.end() ? std::nullopt : std::optional(found->path);
}

HeldWay HeldWay::toFolder(const QString &path)
{
    HeldWay way;
    QString next = path;
    for (int links = 0; !next.isEmpty() && links < maximumLinks; ++links)
        next = way.add(next);
    return way;
}

HeldWay HeldWay::toEntry(const QString &path)
{
    HeldWay way = toFolder(QFileInfo(path).path());
    if (auto entry =
            Platform::lookAtFolder(QDir::toNativeSeparators(path), way.m_finalPath, Platform::Hold::No)) {
        entry->point.isHeld = true; // it is to be removed
        way.m_points.append(entry->point);
    }
    return way;
}

// Returns the path to which the links on this way lead; empty if there are none.
QString HeldWay::add(const QString &path)
{
    bool hasLinks = false;
    m_finalPath.clear();
    const QStringList folders = withParents(path);
    for (const QString &folder : folders) {
        std::optional<Platform::FolderLook> look =
            Platform::lookAtFolder(folder, m_finalPath, Platform::Hold::Yes);
        if (!look && m_points.isEmpty())
            continue; // the name of a server, which is no folder
        if (!look)
            break;
        hasLinks = hasLinks || look->point.isLink;
        m_finalPath = look->finalPath;
        m_points.append(look->point);
        m_holds.append(std::move(look->hold));
    }
    return hasLinks ? m_finalPath : QString();
}

bool holdsQuoteOrControl(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar character) {
        return character == u'"' || character.category() == QChar::Other_Control;
    });
}

ScriptFile::ScriptFile(const QString &path, const QByteArray &contents)
    : m_path(path)
{
    QFile::remove(path);
    m_hold = Platform::createScriptFile(path, contents);
}

ScriptFile::~ScriptFile()
{
    if (!m_hold)
        return;
    m_hold.reset();
    QFile::remove(m_path);
}

} // namespace Nvx::Util
