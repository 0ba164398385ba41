#include "scanner/error_visual_studio_project.h"
#include "scanner/project_folders.h"
#include "scanner/project_properties.h"
#include "scanner/project_sources.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Scan {

namespace {

using Kind = ProjectStatement::Kind;
using Nvx::Util::Failure;
using Nvx::Util::Result;

constexpr int maximumFolders = 32;   // that are searched above the project
constexpr int maximumSolutions = 16; // that are read to find the project's
constexpr int maximumImportDepth = 32;
constexpr qsizetype maximumImports = 256;
constexpr qint64 maximumImportedBytes = 4 * maximumFileSize;
constexpr qsizetype maximumNotes = 100;

QString folderOf(const QString &path)
{
    return path.left(path.lastIndexOf(u'/'));
}

QString nameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

// The position of the suffix with its dot; the end if there is none.
qsizetype suffixBegin(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 ? name.size() : dot;
}

bool endsWithAny(const QString &path, const QStringList &suffixes)
{
    return std::ranges::any_of(
        suffixes, [&path](const QString &suffix) { return path.endsWith(suffix, Qt::CaseInsensitive); });
}

// Editors keep the folders of a project's files, and a user's own settings, next to the project.
bool isNextToProject(const QString &path)
{
    return endsWithAny(path, {u".filters"_s, u".user"_s});
}

// The condition of an import that is followed if the file exists.
bool asksForExistence(const QString &condition)
{
    static const QRegularExpression exists(u"\\A\\s*exists\\s*\\('[^']*'\\)\\s*\\z"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    return exists.match(condition).hasMatch();
}

/// Evaluates a project in two passes, as MSBuild does: first the properties and imports, then the items,
/// whose expressions have the last values of the properties.
class ProjectEvaluation
{
public:
    ProjectEvaluation(const QString &path, const ProjectFolders &folders)
        : m_path(path)
        , m_folder(folderOf(path))
        , m_tree(m_folder)
        , m_folders(folders)
        , m_finder(folders, m_folder)
    {
    }

    Result<VisualStudioProject> evaluate();

private:
    struct Item
    {
        ProjectStatement statement;
        QString file;
    };

    void setProjectProperties();
    void lookAbove();
    void lookAt(const QString &path);
    bool isSolutionOfProject(const QString &path);
    void setSolution(const QString &path);
    void setFile(const QString &path);

    void take(const QString &path, ProjectFile file, bool isConditional, int depth);
    void takeConfiguration(const ProjectStatement &statement);
    void takeImport(const ProjectStatement &statement, const QString &file, bool isConditional, int depth);
    QStringList importedFiles(const QString &entry, const QString &folder, bool isOptional);
    void importFile(const QString &path, const QString &origin, bool isConditional, int depth);
    std::optional<QString> importProblem(const QString &path, int depth) const;

    // The place of a statement in the file that is evaluated.
    QString originOf(int line) const { return m_shownFile + u", line "_s + QString::number(line); }

    QString m_path;
    QString m_folder;
    QString m_tree; // imports from outside of this folder do not count
    const ProjectFolders &m_folders;
    ProjectFileFinder m_finder;
    ProjectProperties m_properties;
    int m_solutions = 0;
    bool m_hasSolution = false;
    QString m_propertiesAbove; // Directory.Build.props
    QString m_targetsAbove;
    QString m_file;      // the one that is evaluated
    QString m_shownFile; // its name for the user
    QSet<QString> m_imported;
    qint64 m_importedBytes = 0;
    std::vector<Item> m_items;
    QStringList m_notes;
};

Result<VisualStudioProject> ProjectEvaluation::evaluate()
{
    if (isNextToProject(m_path))
        return Failure{u"Not a project"_s};
    const Result<QByteArray> xml = m_folders.contents(m_path);
    if (!xml)
        return Failure{xml.error()};
    Result<ProjectFile> project = readProjectFile(*xml);
    if (!project)
        return Failure{project.error()};
    ProjectFile file = *std::move(project);
    const QString writtenNamespace = file.rootNamespace;

    setProjectProperties();
    lookAbove();
    if (!m_propertiesAbove.isEmpty())
        importFile(m_propertiesAbove, {}, false, 0);
    take(m_path, std::move(file), false, 0);
    if (!m_targetsAbove.isEmpty())
        importFile(m_targetsAbove, {}, false, 0);

    ProjectSources sources(m_path, m_finder, m_properties);
    for (const Item &item : m_items) {
        setFile(item.file);
        sources.take(item.statement, originOf(item.statement.line));
    }
    setFile(m_path);
    const ProjectText rootNamespace = m_properties.expand(writtenNamespace).first();
    return VisualStudioProject{.rootNamespace =
                                   rootNamespace.problem.isEmpty() ? rootNamespace.text : writtenNamespace,
                               .sources = sources.sources(),
                               .notes = m_notes + sources.notes()};
}

void ProjectEvaluation::setProjectProperties()
{
    const QString file = nameOf(m_path);
    const QString name = file.left(suffixBegin(file));
    const QString suffix = file.mid(suffixBegin(file));
    const QString folder = m_folder + u'/';
    m_properties.reserve(u"MSBuildProjectDirectory"_s, m_folder);
    m_properties.reserve(u"MSBuildProjectFile"_s, file);
    m_properties.reserve(u"MSBuildProjectName"_s, name);
    m_properties.reserve(u"MSBuildProjectExtension"_s, suffix);
    m_properties.reserve(u"MSBuildProjectFullPath"_s, m_path);
    m_properties.reserve(u"ProjectDir"_s, folder);
    m_properties.reserve(u"ProjectPath"_s, m_path);
    m_properties.reserve(u"ProjectFileName"_s, file);
    m_properties.reserve(u"ProjectExt"_s, suffix);
    m_properties.addValue(u"ProjectName"_s, name);
}

void ProjectEvaluation::setFile(const QString &path)
{
    if (m_file == path)
        return;
    m_file = path;
    m_shownFile = relativeName(m_folder, path);
    const QString file = nameOf(path);
    m_properties.reserve(u"MSBuildThisFile"_s, file);
    m_properties.reserve(u"MSBuildThisFileName"_s, file.left(suffixBegin(file)));
    m_properties.reserve(u"MSBuildThisFileExtension"_s, file.mid(suffixBegin(file)));
    m_properties.reserve(u"MSBuildThisFileFullPath"_s, path);
    m_properties.reserve(u"MSBuildThisFileDirectory"_s, folderOf(path) + u'/');
}

// Looks in the folder of the project and those above it for the nearest solution that contains the project,
// and for the nearest files that MSBuild imports by itself. The project's tree begins in the highest folder
// with one of them or with a repository.
void ProjectEvaluation::lookAbove()
{
    QString folder = m_folder;
    for (int count = 0; count < maximumFolders && !folder.isEmpty(); ++count) {
        for (const QString &name : m_finder.filesIn(folder))
            lookAt(folder + u'/' + name);
        if (m_finder.hasName(folder, u".git"_s))
            m_tree = folder;
        folder.truncate(std::max<qsizetype>(folder.lastIndexOf(u'/'), 0));
    }
}

void ProjectEvaluation::lookAt(const QString &path)
{
    const QString name = nameOf(path);
    QString *above = nullptr;
    if (name.compare("Directory.Build.props"_L1, Qt::CaseInsensitive) == 0)
        above = &m_propertiesAbove;
    else if (name.compare("Directory.Build.targets"_L1, Qt::CaseInsensitive) == 0)
        above = &m_targetsAbove;
    else if (!m_hasSolution && isSolutionOfProject(path))
        setSolution(path);
    if (above && above->isEmpty()) {
        *above = path;
        m_tree = folderOf(path);
    }
}

bool ProjectEvaluation::isSolutionOfProject(const QString &path)
{
    if (!endsWithAny(path, {u".sln"_s, u".slnx"_s}) || ++m_solutions > maximumSolutions)
        return false;
    const Result<QByteArray> text = m_folders.contents(path);
    return text && QString::fromUtf8(*text).contains(nameOf(m_path), Qt::CaseInsensitive);
}

void ProjectEvaluation::setSolution(const QString &path)
{
    const QString file = nameOf(path);
    m_hasSolution = true;
    m_tree = folderOf(path);
    m_properties.reserve(u"SolutionDir"_s, folderOf(path) + u'/');
    m_properties.reserve(u"SolutionPath"_s, path);
    m_properties.reserve(u"SolutionFileName"_s, file);
    m_properties.reserve(u"SolutionName"_s, file.left(suffixBegin(file)));
    m_properties.reserve(u"SolutionExt"_s, file.mid(suffixBegin(file)));
}

void ProjectEvaluation::take(const QString &path, ProjectFile file, bool isConditional, int depth)
{
    setFile(path);
    for (ProjectStatement &statement : file.statements) {
        statement.isConditional = statement.isConditional || isConditional;
        if (statement.kind == Kind::Property) {
            m_properties.assign(statement.name, statement.value, statement.condition,
                                statement.isConditional);
        } else if (statement.kind == Kind::Import) {
            takeImport(statement, path, isConditional, depth);
            setFile(path);
        } else if (statement.name == "ProjectConfiguration"_L1) {
            takeConfiguration(statement);
        } else {
            m_items.push_back({std::move(statement), path});
        }
    }
}

// "Debug|x64" adds a value to both properties.
void ProjectEvaluation::takeConfiguration(const ProjectStatement &statement)
{
    const qsizetype bar = statement.value.indexOf(u'|');
    if (bar < 0)
        return;
    m_properties.addValue(u"Configuration"_s, statement.value.left(bar));
    m_properties.addValue(u"Platform"_s, statement.value.mid(bar + 1));
}

// An expression without a text refers to files of the build tools, outside of the tree.
void ProjectEvaluation::takeImport(const ProjectStatement &statement, const QString &file, bool isConditional,
                                   int depth)
{
    const bool isOptional = statement.isConditional;
    const bool conditional =
        isConditional || (statement.isConditional && !asksForExistence(statement.condition));
    const QString origin = originOf(statement.line);
    for (const ProjectText &text : m_properties.expand(statement.value)) {
        if (!text.problem.isEmpty())
            continue;
        for (const QString &entry : listEntries(text.text)) {
            for (const QString &path : importedFiles(unescaped(entry), folderOf(file), isOptional))
                importFile(path, origin, conditional, depth);
        }
    }
}

QStringList ProjectEvaluation::importedFiles(const QString &entry, const QString &folder, bool isOptional)
{
    if (!hostOf(entry).isEmpty() || entry.size() > maximumPathLength)
        return {};
    if (isPattern(entry)) {
        const Result<QStringList> files = m_finder.match(folder, entry);
        return files ? *files : QStringList();
    }
    const ProjectFileFinder::Found file = m_finder.find(absolutePath(folder, entry));
    return file.exists || !isOptional ? QStringList{file.path} : QStringList();
}

std::optional<QString> ProjectEvaluation::importProblem(const QString &path, int depth) const
{
    if (!path.startsWith(m_tree + u'/', Qt::CaseInsensitive))
        return u"it is outside of the project's tree"_s;
    if (!endsWithAny(path, {u".props"_s, u".targets"_s, u".vcxitems"_s}))
        return u"it is not a .props, .targets or .vcxitems file"_s;
    if (depth >= maximumImportDepth)
        return u"the imports are nested too deeply"_s;
    if (m_imported.size() >= maximumImports || m_importedBytes > maximumImportedBytes)
        return u"the project imports too much"_s;
    return std::nullopt;
}

// A file is imported once, so a cycle ends.
void ProjectEvaluation::importFile(const QString &path, const QString &origin, bool isConditional, int depth)
{
    if (m_imported.contains(path))
        return;
    const auto fail = [&](const QString &reason) {
        const QString place = origin.isEmpty() ? QString() : u" (%1)"_s.arg(origin);
        if (m_notes.size() < maximumNotes)
            m_notes.append(u"Cannot import %1: %2%3"_s.arg(relativeName(m_folder, path), reason, place));
    };
    if (const std::optional<QString> problem = importProblem(path, depth))
        return fail(*problem);
    m_imported.insert(path);
    const Result<QByteArray> xml = m_folders.contents(path);
    if (!xml)
        return fail(xml.error());
    m_importedBytes += xml->size();
    Result<ProjectFile> file = readProjectFile(*xml);
    if (!file)
        return fail(file.error());
    take(path, *std::move(file), isConditional, depth + 1);
}

} // namespace

Result<VisualStudioProject> readVisualStudioProject(const QString &path, const ProjectFolders &folders)
{
    return ProjectEvaluation(path, folders).evaluate();
}

} // namespace Scan
