#include "scanner/error_visual_studio_project.h"

#include "clt_xml_text.h"
#include "nvx_util/assertion.h"
#include "scanner/project_folders.h"
#include "scanner/source_scanner.h"

#include <QDir>
#include <QFileInfo>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace Scan {

namespace {

using Kind = ProjectStatement::Kind;

constexpr char unit[] = "error_visual_studio_project";
constexpr int maximumChoices = 16; // within each other

class ProjectFileReader
{
public:
    explicit ProjectFileReader(const QByteArray &xml)
        : m_xml(xml)
    {
    }

    Nvx::Util::Result<ProjectFile> read()
    {
        skipProlog();
        if (m_xml.isStartElement() && m_xml.name() == "Project"_L1)
            readProject();
        else
            m_xml.raiseError(u"Not a project"_s);
        while (Clt::canRead(m_xml))
            m_xml.readNext();
        if (m_xml.hasError())
            return Nvx::Util::Failure{m_xml.errorString()};
        return std::move(m_file);
    }

private:
    // No project declares entities, and they may be short names of very long texts.
    void skipProlog()
    {
        while (Clt::canRead(m_xml) && !m_xml.isStartElement()) {
            m_xml.readNext();
            if (m_xml.isDTD() && !m_xml.entityDeclarations().isEmpty())
                m_xml.raiseError(u"Entities are not supported"_s);
        }
    }

    void readProject()
    {
        NVX_ASSERT(m_xml.isStartElement() && m_xml.name() == "Project"_L1, unit);
        readGroups(false, 0);
    }

    void readGroups(bool isConditional, int choices)
    {
        while (m_xml.readNextStartElement()) {
            const bool conditional = isConditional || hasCondition();
            if (m_xml.name() == "PropertyGroup"_L1)
                readPropertyGroup(conditional);
            else if (m_xml.name() == "ItemGroup"_L1)
                readItemGroup(conditional);
            else if (m_xml.name() == "Import"_L1)
                readImport(conditional);
            else if (m_xml.name() == "ImportGroup"_L1)
                readImportGroup(conditional);
            else if (m_xml.name() == "Choose"_L1 && choices < maximumChoices)
                readChoice(choices + 1);
            else
                m_xml.skipCurrentElement();
        }
    }

    void readChoice(int choices)
    {
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == "When"_L1 || m_xml.name() == "Otherwise"_L1)
                readGroups(true, choices);
            else
                m_xml.skipCurrentElement();
        }
    }

    void readPropertyGroup(bool isConditional)
    {
        NVX_ASSERT(m_xml.isStartElement() && m_xml.name() == "PropertyGroup"_L1, unit);
        const bool isGlobals = attribute("Label"_L1) == "Globals"_L1;
        while (m_xml.readNextStartElement()) {
            ProjectStatement &property = add(Kind::Property, isConditional);
            property.value = m_xml.readElementText(QXmlStreamReader::SkipChildElements);
            if (isGlobals && property.name == "RootNamespace"_L1)
                m_file.rootNamespace = property.value;
        }
    }

    void readItemGroup(bool isConditional)
    {
        NVX_ASSERT(m_xml.isStartElement() && m_xml.name() == "ItemGroup"_L1, unit);
        while (m_xml.readNextStartElement()) {
            // The list of the folders in which an editor shows the files of the project with that name.
            if (m_xml.name() == "Filter"_L1)
                m_xml.raiseError(u"Not a project"_s);
            if (m_xml.name() == "ClCompile"_L1 || m_xml.name() == "ProjectConfiguration"_L1) {
                ProjectStatement &item = add(Kind::Item, isConditional);
                item.value = attribute("Include"_L1);
                item.exclude = attribute("Exclude"_L1);
                item.remove = attribute("Remove"_L1);
            }
            m_xml.skipCurrentElement();
        }
    }

    void readImportGroup(bool isConditional)
    {
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == "Import"_L1)
                readImport(isConditional);
            else
                m_xml.skipCurrentElement();
        }
    }

    void readImport(bool isConditional)
    {
        ProjectStatement &import = add(Kind::Import, isConditional);
        import.value = attribute("Project"_L1);
        m_xml.skipCurrentElement();
    }

    ProjectStatement &add(Kind kind, bool isConditional)
    {
        return m_file.statements.emplace_back(
            ProjectStatement{.kind = kind,
                             .isConditional = isConditional || hasCondition(),
                             .line = static_cast<int>(m_xml.lineNumber()),
                             .name = m_xml.name().toString(),
                             .condition = attribute("Condition"_L1)});
    }

    QString attribute(QLatin1StringView name) const { return m_xml.attributes().value(name).toString(); }
    bool hasCondition() const { return m_xml.attributes().hasAttribute("Condition"_L1); }

    QXmlStreamReader m_xml;
    ProjectFile m_file;
};

} // namespace

Nvx::Util::Result<ProjectFile> readProjectFile(const QByteArray &xml)
{
    return ProjectFileReader(xml).read();
}

QString VisualStudioProject::process() const
{
    return rootNamespace == "new_client"_L1 ? u"client"_s : rootNamespace;
}

QStringList VisualStudioProject::paths() const
{
    QStringList paths;
    for (const ProjectSource &source : sources)
        paths.append(source.path);
    return paths;
}

QString openProblem(const ProjectSource &source, const SourceScanner &scanner)
{
    return source.problem.isEmpty() ? scanner.openProblem() : source.problem;
}

Nvx::Util::Result<VisualStudioProject> readVisualStudioProject(const QString &fileName)
{
    return readVisualStudioProject(QDir::cleanPath(QFileInfo(fileName).absoluteFilePath()),
                                   NativeProjectFolders());
}

} // namespace Scan
