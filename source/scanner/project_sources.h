#pragma once

#include "scanner/error_visual_studio_project.h"
#include "scanner/project_folders.h"
#include "scanner/project_properties.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

namespace Scan {

/// The list of a project's sources, built from its items one after the other. Conditions do not count: a file
/// that any configuration compiles is in the list.
class ProjectSources
{
public:
    /// The path of the project file is absolute. The finder and the properties must outlive the list.
    ProjectSources(const QString &projectPath, ProjectFileFinder &finder, ProjectProperties &properties);

    /// Applies an item of the type ClCompile; origin is its place as text for the user.
    void take(const ProjectStatement &item, const QString &origin);

    /// The sources, in the order of the items and of names.
    QList<ProjectSource> sources() const;

    /// What could not be resolved and is not a source, as text for the user.
    const QStringList &notes() const { return m_notes; }

private:
    // A file that an entry of a list names.
    struct Candidate
    {
        ProjectSource source;
        bool exists = false;
        bool isOneOfMany = false; // found by a wildcard or in one of several configurations
    };

    void include(const ProjectStatement &item, const QString &origin);
    void remove(const QString &list, const QString &origin);
    QList<Candidate> candidatesOf(const QString &entry, const QString &origin);
    QList<Candidate> filesOf(const QString &list, const QString &written, const QString &origin);
    Candidate file(const QString &name, const QString &written, const QString &origin);
    QList<Candidate> matches(const QString &pattern, const QString &origin);
    QSet<QString> pathsOf(const QString &list, const QString &origin);
    void add(const Candidate &candidate);
    const QMultiHash<QString, qsizetype> &index();
    void note(const QString &text);

    QString m_projectPath;
    QString m_folder;
    ProjectFileFinder &m_finder;
    ProjectProperties &m_properties;
    QList<ProjectSource> m_sources;
    QSet<qsizetype> m_removed;              // positions in m_sources
    QMultiHash<QString, qsizetype> m_index; // the positions of the first m_indexed sources, by path
    qsizetype m_indexed = 0;
    QStringList m_notes;
};

/// The longest path in a project file that is looked up.
constexpr qsizetype maximumPathLength = 32767; // of Windows

/// The path relative to the folder, with "\".
QString relativeName(const QString &folder, const QString &path);

} // namespace Scan
