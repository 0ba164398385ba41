#pragma once

#include "nvx_util/result.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace Scan {

/// The largest project and source files that are read.
constexpr qint64 maximumFileSize = qint64{64} * 1024 * 1024;

/// What the project reader needs of the file system. Paths are absolute and clean, with "/".
class ProjectFolders
{
public:
    enum class EntryKind : std::uint8_t
    {
        File,
        Folder,
        LinkedFolder ///< a symbolic link or junction to a folder
    };

    struct Entry
    {
        QString name;
        EntryKind kind = EntryKind::File;
    };

    ProjectFolders() = default;
    ProjectFolders(const ProjectFolders &) = delete;
    ProjectFolders &operator=(const ProjectFolders &) = delete;
    virtual ~ProjectFolders() = default;

    /// What is in a folder, in any order; empty if the folder cannot be listed.
    virtual std::vector<Entry> entries(const QString &folder) const = 0;

    /// The bytes of a regular file of up to maximumFileSize.
    virtual Nvx::Util::Result<QByteArray> contents(const QString &path) const = 0;
};

/// The file system of this machine.
class NativeProjectFolders : public ProjectFolders
{
public:
    std::vector<Entry> entries(const QString &folder) const override;
    Nvx::Util::Result<QByteArray> contents(const QString &path) const override;
};

/// The host of a path such as "//host/share/file", in lower case; empty for a path on this machine.
QString hostOf(const QString &path);

/// The absolute, clean path of a name in a project file, relative to a folder. A drive counts if the folder
/// has one.
QString absolutePath(const QString &folder, const QString &name);

/// Finds the files of a project regardless of upper and lower case. Lists each folder once.
class ProjectFileFinder
{
public:
    /// Listings stop after this number of entries in all, which no real project reaches.
    static constexpr qsizetype maximumEntries = 10'000'000;

    /// The finder uses the folder of the project and those above it as they are. The folders must outlive the
    /// finder.
    ProjectFileFinder(const ProjectFolders &folders, const QString &projectFolder);

    struct Found
    {
        QString path; ///< in the letters of the file system as far as it exists
        bool exists = false;
    };

    /// Finds the file with that absolute path. Of several names that differ only in case, the exact one
    /// counts, otherwise the first in name order.
    Found find(const QString &path);

    /// The names of the files in a folder.
    QStringList filesIn(const QString &folder);

    /// True when a folder contains a file or folder of that name.
    bool hasName(const QString &folder, const QString &name) { return entry(folder, name) != nullptr; }

    /// The files that match a pattern, in name order. The folder is absolute; the pattern is relative to it,
    /// with "/" or "\", and contains "*" for any characters of a name, "?" for one, and "**" for any folders.
    /// Links to folders are not followed by "**". Fails if the search would never end or take too long.
    Nvx::Util::Result<QStringList> match(const QString &folder, const QString &pattern);

private:
    struct Listing
    {
        std::vector<ProjectFolders::Entry> entries; // in name order
        QHash<QString, std::size_t> byName;
        QHash<QString, std::size_t> byFoldedName;
    };

    struct Search;

    const Listing &list(const QString &folder);
    const ProjectFolders::Entry *entry(const QString &folder, const QString &name);
    QString actualFolder(const QString &folder);
    void search(Search &search, const QString &folder, qsizetype part);
    void searchBelow(Search &search, const QString &folder, qsizetype part);

    const ProjectFolders &m_folders;
    QString m_projectFolder;
    QHash<QString, Listing> m_listings;
    QHash<QString, QString> m_actualFolders;
    qsizetype m_entriesLeft = maximumEntries;
};

/// True when the name matches a pattern of "*" and "?", regardless of case. "*.*" matches every name.
bool matchesName(QStringView name, QStringView pattern);

/// True when the text contains "*" or "?".
bool isPattern(QStringView text);

} // namespace Scan
