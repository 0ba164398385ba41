#include "scanner/project_folders.h"

#include "nvx_util/regular_file.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Scan {

namespace {

using Nvx::Util::Failure;
using Nvx::Util::Result;

constexpr qsizetype maximumDepth = 64; // of the folders that a pattern reaches

QString inFolder(const QString &folder, const QString &name)
{
    return folder.isEmpty() || folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

QString parentOf(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    return slash < 0 ? QString() : path.left(slash);
}

bool hasDrive(const QString &path)
{
    return path.size() > 1 && path.at(1) == u':';
}

bool isFolder(const ProjectFolders::Entry &entry)
{
    return entry.kind != ProjectFolders::EntryKind::File;
}

bool isNameLess(const QString &left, const QString &right)
{
    const int order = left.compare(right, Qt::CaseInsensitive);
    return order == 0 ? left < right : order < 0;
}

} // namespace

std::vector<ProjectFolders::Entry> NativeProjectFolders::entries(const QString &folder) const
{
    std::vector<Entry> entries;
    QDirIterator all(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (all.hasNext()) {
        all.next();
        const QFileInfo info = all.fileInfo();
        auto kind = EntryKind::File;
        if (info.isDir())
            kind = info.isSymLink() || info.isJunction() ? EntryKind::LinkedFolder : EntryKind::Folder;
        entries.push_back({.name = info.fileName(), .kind = kind});
    }
    return entries;
}

Result<QByteArray> NativeProjectFolders::contents(const QString &path) const
{
    Nvx::Util::FileContents contents = Nvx::Util::readRegularFile(path, maximumFileSize);
    if (!contents.bytes)
        return Failure{std::move(contents.problem)};
    return *std::move(contents.bytes);
}

QString hostOf(const QString &path)
{
    const QString slashed = QString(path).replace(u'\\', u'/');
    return slashed.startsWith("//"_L1) ? slashed.section(u'/', 2, 2).toLower() : QString();
}

// The system's own rules would not do: they add the current folder or drive.
QString absolutePath(const QString &folder, const QString &name)
{
    const QString slashed = QString(name).replace(u'\\', u'/');
    if (hasDrive(folder) && hasDrive(slashed))
        return QDir::cleanPath(slashed);
    if (hasDrive(folder) && slashed.startsWith(u'/') && !slashed.startsWith("//"_L1))
        return QDir::cleanPath(folder.left(2) + slashed);
    return QDir::cleanPath(slashed.startsWith(u'/') ? slashed : folder + u'/' + slashed);
}

ProjectFileFinder::ProjectFileFinder(const ProjectFolders &folders, const QString &projectFolder)
    : m_folders(folders)
    , m_projectFolder(projectFolder)
{
}

const ProjectFileFinder::Listing &ProjectFileFinder::list(const QString &folder)
{
    if (const auto known = m_listings.constFind(folder); known != m_listings.cend())
        return *known;
    Listing listing;
    if (m_entriesLeft > 0)
        listing.entries =
            m_folders.entries(folder.isEmpty() || folder.endsWith(u':') ? folder + u'/' : folder);
    m_entriesLeft -= static_cast<qsizetype>(listing.entries.size()) + 1;
    std::ranges::sort(listing.entries, isNameLess, &ProjectFolders::Entry::name);
    for (std::size_t index = 0; index < listing.entries.size(); ++index) {
        const QString &name = listing.entries[index].name;
        listing.byName.insert(name, index);
        if (const QString folded = name.toCaseFolded(); !listing.byFoldedName.contains(folded))
            listing.byFoldedName.insert(folded, index);
    }
    return *m_listings.insert(folder, std::move(listing));
}

const ProjectFolders::Entry *ProjectFileFinder::entry(const QString &folder, const QString &name)
{
    const Listing &listing = list(folder);
    auto found = listing.byName.constFind(name);
    if (found == listing.byName.cend()) {
        found = listing.byFoldedName.constFind(name.toCaseFolded());
        if (found == listing.byFoldedName.cend())
            return nullptr;
    }
    return &listing.entries[*found];
}

QString ProjectFileFinder::actualFolder(const QString &folder)
{
    if (const auto known = m_actualFolders.constFind(folder); known != m_actualFolders.cend())
        return *known;
    // The folders above the project are used as they are, because some of them may be closed to listing.
    QString actual = folder;
    QStringList below;
    while (!actual.isEmpty() && actual != m_projectFolder && !m_projectFolder.startsWith(actual + u'/')) {
        const qsizetype slash = actual.lastIndexOf(u'/');
        if (slash < 0)
            break; // a drive
        below.prepend(actual.mid(slash + 1));
        actual.truncate(slash);
    }
    for (qsizetype index = 0; index < below.size(); ++index) {
        const ProjectFolders::Entry *found = entry(actual, below.at(index));
        if (!found || !isFolder(*found)) {
            actual += u'/' + below.mid(index).join(u'/');
            break;
        }
        actual += u'/' + found->name;
    }
    m_actualFolders.insert(folder, actual);
    return actual;
}

ProjectFileFinder::Found ProjectFileFinder::find(const QString &path)
{
    const QString folder = actualFolder(parentOf(path));
    const QString name = path.mid(path.lastIndexOf(u'/') + 1);
    const ProjectFolders::Entry *found = entry(folder, name);
    if (!found || isFolder(*found))
        return {.path = folder + u'/' + name};
    return {.path = folder + u'/' + found->name, .exists = true};
}

QStringList ProjectFileFinder::filesIn(const QString &folder)
{
    QStringList names;
    for (const ProjectFolders::Entry &entry : list(folder).entries) {
        if (!isFolder(entry))
            names.append(entry.name);
    }
    return names;
}

struct ProjectFileFinder::Search
{
    QStringList parts; // of the pattern
    qsizetype depth = 0;
    QSet<std::pair<QString, qsizetype>> begun; // several "**" reach a folder on several ways
    QStringList files = {};
};

Result<QStringList> ProjectFileFinder::match(const QString &folder, const QString &pattern)
{
    Search search;
    const QString slashed = QString(pattern).replace(u'\\', u'/');
    QString begin = folder;
    if (slashed.startsWith(u'/'))
        begin = hasDrive(folder) ? folder.left(2) : u"/"_s;
    else if (hasDrive(folder) && hasDrive(slashed))
        begin.clear();
    for (const QString &part : slashed.split(u'/', Qt::SkipEmptyParts)) {
        const bool isFixed = search.parts.isEmpty() && !isPattern(part);
        if (isFixed)
            begin = QDir::cleanPath(inFolder(begin, part));
        else if (part == ".."_L1)
            return Failure{u"\"..\" after a wildcard is not supported"_s};
        else if (part != "."_L1 &&
                 !(part == "**"_L1 && !search.parts.isEmpty() && search.parts.last() == part))
            search.parts.append(part);
    }
    if (search.parts.isEmpty() || search.parts.last() == "**"_L1)
        search.parts.append(u"*"_s);
    const bool isDrive = begin.isEmpty() || begin == "/"_L1 || begin.endsWith(u':');
    if (isDrive && search.parts.first() == "**"_L1)
        return Failure{u"the wildcard would search a whole drive"_s};

    this->search(search, actualFolder(begin.endsWith(u'/') ? begin.chopped(1) : begin), 0);
    if (m_entriesLeft <= 0)
        return Failure{u"the wildcards of the project search too many files"_s};
    std::ranges::sort(search.files, isNameLess);
    return search.files;
}

void ProjectFileFinder::search(Search &search, const QString &folder, qsizetype part)
{
    if (m_entriesLeft <= 0 || search.depth > maximumDepth || search.begun.contains({folder, part}))
        return;
    search.begun.insert({folder, part});
    if (search.parts.at(part) == "**"_L1) {
        this->search(search, folder, part + 1);
        searchBelow(search, folder, part);
        return;
    }
    if (part + 1 < search.parts.size()) {
        searchBelow(search, folder, part);
        return;
    }
    // A copy of the listing is not needed: nothing is listed in this loop.
    const Listing &listing = list(folder);
    m_entriesLeft -= static_cast<qsizetype>(listing.entries.size());
    for (const ProjectFolders::Entry &entry : listing.entries) {
        if (!isFolder(entry) && matchesName(entry.name, search.parts.at(part)))
            search.files.append(folder + u'/' + entry.name);
    }
}

void ProjectFileFinder::searchBelow(Search &search, const QString &folder, qsizetype part)
{
    const QString &pattern = search.parts.at(part);
    const bool anyDepth = pattern == "**"_L1;
    QStringList folders;
    const Listing &listing = list(folder);
    m_entriesLeft -= static_cast<qsizetype>(listing.entries.size());
    for (const ProjectFolders::Entry &entry : listing.entries) {
        const bool isMatch = anyDepth ? entry.kind == ProjectFolders::EntryKind::Folder
                                      : isFolder(entry) && matchesName(entry.name, pattern);
        if (isMatch)
            folders.append(folder + u'/' + entry.name);
    }
    ++search.depth;
    for (const QString &below : folders)
        this->search(search, below, anyDepth ? part : part + 1);
    --search.depth;
}

bool matchesName(QStringView name, QStringView pattern)
{
    if (pattern == "*.*"_L1)
        return true;
    qsizetype at = 0;
    qsizetype in = 0;
    qsizetype star = -1; // the last one, and where its match ends
    qsizetype starEnd = 0;
    while (at < name.size()) {
        const bool same = in < pattern.size() && pattern[in] != u'*' &&
                          (pattern[in] == u'?' || pattern[in].toCaseFolded() == name[at].toCaseFolded());
        if (same) {
            ++at;
            ++in;
        } else if (in < pattern.size() && pattern[in] == u'*') {
            star = in++;
            starEnd = at;
        } else if (star >= 0) {
            in = star + 1;
            at = ++starEnd;
        } else {
            return false;
        }
    }
    while (in < pattern.size() && pattern[in] == u'*')
        ++in;
    return in == pattern.size();
}

bool isPattern(QStringView text)
{
    return text.contains(u'*') || text.contains(u'?');
}

} // namespace Scan
