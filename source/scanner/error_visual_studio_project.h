#pragma once

#include "nvx_util/result.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace Scan {

class ProjectFolders;
class SourceScanner;

/// A statement of a project file (MSBuild's XML) that matters for the list of sources.
struct ProjectStatement
{
    enum class Kind : std::uint8_t
    {
        Property,
        Import,
        Item
    };

    Kind kind = Kind::Property;
    bool isConditional = false; ///< it or an element around it has a condition
    int line = 0;
    QString name = {};      ///< of the property, or the type of the item
    QString value = {};     ///< of the property; the files that are imported or included
    QString condition = {}; ///< its own
    QString exclude = {};   ///< of an item
    QString remove = {};    ///< of an item
};

/// A project file or a file that it imports.
struct ProjectFile
{
    QString rootNamespace; ///< from the property group labelled "Globals", as written; empty if there is none
    std::vector<ProjectStatement> statements;
};

/// Reads the text of a project file. Fails if it is not well-formed XML or not a project.
Nvx::Util::Result<ProjectFile> readProjectFile(const QByteArray &xml);

/// A C++ source file of a project.
struct ProjectSource
{
    QString name;    ///< as written in the project, or relative to its folder, with "\"
    QString path;    ///< absolute; empty if there is a problem
    QString problem; ///< why the file cannot be opened, if that is known
    QString origin;  ///< "FILE, line LINE"
};

/// The part of a Visual Studio project that the scan needs.
struct VisualStudioProject
{
    QString rootNamespace = {};        ///< empty if the project has none
    QList<ProjectSource> sources = {}; ///< in the order of the project
    QStringList notes = {};            ///< what else could not be resolved, as text for the user

    /// The process of the keys found in the project's sources.
    QString process() const;

    /// The paths of the sources.
    QStringList paths() const;
};

/// Why a source could not be opened, as text for the user, after its scan; empty if it was opened.
QString openProblem(const ProjectSource &source, const SourceScanner &scanner);

/// Reads a project: its root namespace, and the C++ files that it compiles in any configuration, except
/// generated code and libraries. Follows the imports in the project's tree. docs/update-error-table.md says
/// what is evaluated. Fails if the project file cannot be read or is not a project.
Nvx::Util::Result<VisualStudioProject> readVisualStudioProject(const QString &fileName);

/// The same for a project in these folders; its path is absolute and clean, with "/".
Nvx::Util::Result<VisualStudioProject> readVisualStudioProject(const QString &path,
                                                               const ProjectFolders &folders);

} // namespace Scan
