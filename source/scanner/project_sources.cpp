#include "scanner/project_sources.h"

#include <QDir>

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Scan {

namespace {

bool isScanned(const QString &sourceFile)
{
    return !sourceFile.contains("GeneratedFiles"_L1, Qt::CaseInsensitive) &&
           !sourceFile.contains("Libraries"_L1, Qt::CaseInsensitive);
}

} // namespace

QString relativeName(const QString &folder, const QString &path)
{
    return QDir(folder).relativeFilePath(path).replace(u'/', u'\\');
}

ProjectSources::ProjectSources(const QString &projectPath, ProjectFileFinder &finder,
                               ProjectProperties &properties)
    : m_projectPath(projectPath)
    , m_folder(projectPath.left(projectPath.lastIndexOf(u'/')))
    , m_finder(finder)
    , m_properties(properties)
{
}

void ProjectSources::take(const ProjectStatement &item, const QString &origin)
{
    if (!item.value.isEmpty())
        include(item, origin);
    // With a condition, another configuration still compiles the file.
    if (!item.remove.isEmpty() && !item.isConditional)
        remove(item.remove, origin);
}

QList<ProjectSource> ProjectSources::sources() const
{
    if (m_removed.isEmpty())
        return m_sources;
    QList<ProjectSource> sources;
    for (qsizetype position = 0; position < m_sources.size(); ++position) {
        if (!m_removed.contains(position))
            sources.append(m_sources.at(position));
    }
    return sources;
}

void ProjectSources::include(const ProjectStatement &item, const QString &origin)
{
    QSet<QString> excluded;
    if (!item.exclude.isEmpty())
        excluded = pathsOf(item.exclude, origin);
    for (const QString &entry : listEntries(item.value)) {
        if (!isScanned(entry))
            continue;
        for (const Candidate &candidate : candidatesOf(entry, origin)) {
            if (!excluded.contains(candidate.source.path))
                add(candidate);
        }
    }
}

// Of the names that an entry has in several configurations, those of existing files count.
QList<ProjectSources::Candidate> ProjectSources::candidatesOf(const QString &entry, const QString &origin)
{
    const ProjectTexts texts = m_properties.expand(entry);
    QList<Candidate> first;
    QList<Candidate> existing;
    for (const ProjectText &text : texts) {
        QList<Candidate> found;
        if (text.problem.isEmpty())
            found = filesOf(text.text, entry, origin);
        else
            found.append({.source = {entry, {}, text.problem, origin}});
        if (texts.size() == 1)
            return found;
        for (Candidate &candidate : found)
            candidate.isOneOfMany = true;
        std::ranges::copy_if(found, std::back_inserter(existing), &Candidate::exists);
        if (first.isEmpty())
            first = std::move(found);
    }
    return existing.isEmpty() ? first : existing;
}

QList<ProjectSources::Candidate> ProjectSources::filesOf(const QString &list, const QString &written,
                                                         const QString &origin)
{
    QList<Candidate> files;
    for (const QString &entry : listEntries(list)) {
        const QString name = unescaped(entry);
        if (isPattern(name) && hostOf(name).isEmpty())
            files += matches(name, origin);
        else
            files.append(file(name, written, origin));
    }
    files.removeIf([](const Candidate &candidate) { return !isScanned(candidate.source.name); });
    return files;
}

ProjectSources::Candidate ProjectSources::file(const QString &name, const QString &written,
                                               const QString &origin)
{
    // Opening a file on another host would hand it the user's credentials.
    if (const QString host = hostOf(name); !host.isEmpty() && host != hostOf(m_projectPath))
        return {.source = {name, {}, u"it is on another host than the project"_s, origin}};
    if (name.size() > maximumPathLength)
        return {.source = {name.left(80) + u"..."_s, {}, u"its path is too long"_s, origin}};
    const ProjectFileFinder::Found found = m_finder.find(absolutePath(m_folder, name));
    const QString shown = name == written ? name : relativeName(m_folder, found.path);
    return {.source = {shown, found.path, {}, origin}, .exists = found.exists};
}

QList<ProjectSources::Candidate> ProjectSources::matches(const QString &pattern, const QString &origin)
{
    const Nvx::Util::Result<QStringList> files = m_finder.match(m_folder, pattern);
    if (!files)
        return {{.source = {pattern, {}, files.error(), origin}}};
    if (files->isEmpty())
        note(u"No file matches %1 (%2)"_s.arg(pattern, origin));
    QList<Candidate> found;
    for (const QString &path : *files)
        found.append({.source = {relativeName(m_folder, path), path, {}, origin},
                      .exists = true,
                      .isOneOfMany = true});
    return found;
}

// A list that differs between the configurations leaves nothing out: one of them compiles the file.
QSet<QString> ProjectSources::pathsOf(const QString &list, const QString &origin)
{
    QSet<QString> paths;
    for (const QString &entry : listEntries(list)) {
        const ProjectTexts texts = m_properties.expand(entry);
        if (texts.size() > 1)
            continue;
        if (!texts.first().problem.isEmpty()) {
            note(u"Cannot leave out %1: %2 (%3)"_s.arg(entry, texts.first().problem, origin));
            continue;
        }
        for (const Candidate &candidate : filesOf(texts.first().text, {}, origin))
            paths.insert(candidate.source.path);
    }
    paths.remove(QString());
    return paths;
}

void ProjectSources::remove(const QString &list, const QString &origin)
{
    for (const QString &path : pathsOf(list, origin)) {
        for (const qsizetype position : index().values(path))
            m_removed.insert(position);
        m_index.remove(path);
    }
}

void ProjectSources::add(const Candidate &candidate)
{
    const QString &path = candidate.source.path;
    if (candidate.isOneOfMany && !path.isEmpty() && index().contains(path))
        return;
    m_sources.append(candidate.source);
}

const QMultiHash<QString, qsizetype> &ProjectSources::index()
{
    for (; m_indexed < m_sources.size(); ++m_indexed)
        m_index.insert(m_sources.at(m_indexed).path, m_indexed);
    return m_index;
}

void ProjectSources::note(const QString &text)
{
    constexpr qsizetype maximum = 100;
    if (m_notes.size() < maximum && !m_notes.contains(text))
        m_notes.append(text);
}

} // namespace Scan
