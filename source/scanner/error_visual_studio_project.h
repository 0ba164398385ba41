#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QIODevice;

namespace Scan {

/// What a Visual Studio project (MSBuild's XML) says about the sources to scan.
struct VisualStudioProject
{
    QString rootNamespace;   ///< empty when the project names none
    QStringList sourceFiles; ///< of C++, as the project writes them: relative to its folder, with "\"

    /// The process of the keys found in the project's sources.
    QString process() const;
};

/// Reads a project: its root namespace, from the property group labelled "Globals", and the files that it
/// compiles, less generated code and libraries. Nothing when it is no well-formed XML or no project.
std::optional<VisualStudioProject> readVisualStudioProject(QIODevice &device);

/// The same from a file.
std::optional<VisualStudioProject> readVisualStudioProject(const QString &fileName);

/// The path of a file that the project of that name lists.
QString sourceFilePath(const QString &projectFileName, const QString &sourceFile);

} // namespace Scan
