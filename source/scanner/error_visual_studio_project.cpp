#include "scanner/error_visual_studio_project.h"

#include "clt_xml_text.h"
#include "nvx_util/assertion.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

namespace Scan {

namespace {

constexpr char unit[] = "error_visual_studio_project";

bool isScanned(const QString &sourceFile)
{
    return !sourceFile.isEmpty() &&
           !sourceFile.contains(QLatin1String("GeneratedFiles"), Qt::CaseInsensitive) &&
           !sourceFile.contains(QLatin1String("Libraries"), Qt::CaseInsensitive);
}

void readPropertyGroup(QXmlStreamReader &xml, VisualStudioProject &project)
{
    NVX_ASSERT(xml.isStartElement() && xml.name() == QLatin1String("PropertyGroup"), unit);
    const bool isGlobals = xml.attributes().value(QLatin1String("Label")) == QLatin1String("Globals");
    while (xml.readNextStartElement()) {
        if (isGlobals && xml.name() == QLatin1String("RootNamespace"))
            project.rootNamespace = xml.readElementText(QXmlStreamReader::SkipChildElements);
        else
            xml.skipCurrentElement();
    }
}

void readItemGroup(QXmlStreamReader &xml, VisualStudioProject &project)
{
    NVX_ASSERT(xml.isStartElement() && xml.name() == QLatin1String("ItemGroup"), unit);
    while (xml.readNextStartElement()) {
        const QString sourceFile = xml.attributes().value(QLatin1String("Include")).toString();
        if (xml.name() == QLatin1String("ClCompile") && isScanned(sourceFile))
            project.sourceFiles.append(sourceFile);
        xml.skipCurrentElement();
    }
}

void readProject(QXmlStreamReader &xml, VisualStudioProject &project)
{
    NVX_ASSERT(xml.isStartElement() && xml.name() == QLatin1String("Project"), unit);
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("PropertyGroup"))
            readPropertyGroup(xml, project);
        else if (xml.name() == QLatin1String("ItemGroup"))
            readItemGroup(xml, project);
        else
            xml.skipCurrentElement();
    }
}

} // namespace

QString VisualStudioProject::process() const
{
    return rootNamespace == QLatin1String("new_client") ? QStringLiteral("client") : rootNamespace;
}

std::optional<VisualStudioProject> readVisualStudioProject(QIODevice &device)
{
    QXmlStreamReader xml(&device);
    VisualStudioProject project;
    if (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("Project"))
            readProject(xml, project);
        else
            xml.raiseError(QStringLiteral("Not a project"));
    }
    while (Clt::canRead(xml))
        xml.readNext();
    return xml.hasError() ? std::nullopt : std::optional(project);
}

std::optional<VisualStudioProject> readVisualStudioProject(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return readVisualStudioProject(file);
}

QString sourceFilePath(const QString &projectFileName, const QString &sourceFile)
{
    const QString relative = QString(sourceFile).replace(u'\\', u'/');
    return QDir::cleanPath(QFileInfo(projectFileName).absoluteDir().filePath(relative));
}

} // namespace Scan
