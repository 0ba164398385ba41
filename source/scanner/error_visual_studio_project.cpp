#include "scanner/error_visual_studio_project.h"

#include "clt_xml_text.h"
#include "nvx_util/assertion.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace Scan {

namespace {

constexpr char unit[] = "error_visual_studio_project";

bool isScanned(const QString &sourceFile)
{
    return !sourceFile.isEmpty() && !sourceFile.contains("GeneratedFiles"_L1, Qt::CaseInsensitive) &&
           !sourceFile.contains("Libraries"_L1, Qt::CaseInsensitive);
}

void readPropertyGroup(QXmlStreamReader &xml, VisualStudioProject &project)
{
    NVX_ASSERT(xml.isStartElement() && xml.name() == "PropertyGroup"_L1, unit);
    const bool isGlobals = xml.attributes().value("Label"_L1) == "Globals"_L1;
    while (xml.readNextStartElement()) {
        if (isGlobals && xml.name() == "RootNamespace"_L1)
            project.rootNamespace = xml.readElementText(QXmlStreamReader::SkipChildElements);
        else
            xml.skipCurrentElement();
    }
}

void readItemGroup(QXmlStreamReader &xml, VisualStudioProject &project)
{
    NVX_ASSERT(xml.isStartElement() && xml.name() == "ItemGroup"_L1, unit);
    while (xml.readNextStartElement()) {
        const QString sourceFile = xml.attributes().value("Include"_L1).toString();
        if (xml.name() == "ClCompile"_L1 && isScanned(sourceFile))
            project.sourceFiles.append(sourceFile);
        xml.skipCurrentElement();
    }
}

void readProject(QXmlStreamReader &xml, VisualStudioProject &project)
{
    NVX_ASSERT(xml.isStartElement() && xml.name() == "Project"_L1, unit);
    while (xml.readNextStartElement()) {
        if (xml.name() == "PropertyGroup"_L1)
            readPropertyGroup(xml, project);
        else if (xml.name() == "ItemGroup"_L1)
            readItemGroup(xml, project);
        else
            xml.skipCurrentElement();
    }
}

} // namespace

QString VisualStudioProject::process() const
{
    return rootNamespace == "new_client"_L1 ? u"client"_s : rootNamespace;
}

Nvx::Util::Result<VisualStudioProject> readVisualStudioProject(QIODevice &device)
{
    QXmlStreamReader xml(&device);
    VisualStudioProject project;
    if (xml.readNextStartElement()) {
        if (xml.name() == "Project"_L1)
            readProject(xml, project);
        else
            xml.raiseError(u"Not a project"_s);
    }
    while (Clt::canRead(xml))
        xml.readNext();
    if (xml.hasError())
        return Nvx::Util::Failure{xml.errorString()};
    return project;
}

Nvx::Util::Result<VisualStudioProject> readVisualStudioProject(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return Nvx::Util::Failure{file.errorString()};
    return readVisualStudioProject(file);
}

QString sourceFilePath(const QString &projectFileName, const QString &sourceFile)
{
    const QString relative = QString(sourceFile).replace(u'\\', u'/');
    return QDir::cleanPath(QFileInfo(projectFileName).absoluteDir().filePath(relative));
}

} // namespace Scan
