#pragma once

#include "nvx_util/result.h"

#include <QString>
#include <QStringList>

class QIODevice;

namespace Scan {

/// The part of a Visual Studio project (MSBuild's XML) that the scan needs.
struct VisualStudioProject
{
    QString rootNamespace;   ///< empty if the project has none
    QStringList sourceFiles; ///< of C++, as written in the project: relative to its folder, with "\"

    /// The process of the keys found in the project's sources.
    QString process() const;
};

/// Reads a project: its root namespace, from the property group labelled "Globals", and the files that it
/// compiles, except generated code and libraries. Fails if it is not well-formed XML or not a project.
Nvx::Util::Result<VisualStudioProject> readVisualStudioProject(QIODevice &device);

/// Reads a project file.
Nvx::Util::Result<VisualStudioProject> readVisualStudioProject(const QString &fileName);

/// The path of a source file of the project with that file name.
QString sourceFilePath(const QString &projectFileName, const QString &sourceFile);

} // namespace Scan
