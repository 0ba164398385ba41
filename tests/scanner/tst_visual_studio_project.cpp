#include "listed_folders.h"
#include "scanner/error_visual_studio_project.h"
#include "support/file_bytes.h"
#include "support/processor_time.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Scan;

namespace {

Nvx::Util::Result<VisualStudioProject> read(const QByteArray &xml)
{
    ListedFolders folders;
    folders.add(u"/p/client.vcxproj"_s, xml);
    return readVisualStudioProject(u"/p/client.vcxproj"_s, folders);
}

QStringList namesOf(const VisualStudioProject &project)
{
    QStringList names;
    for (const ProjectSource &source : project.sources)
        names.append(source.name);
    return names;
}

QByteArray withGlobals(const QByteArray &properties)
{
    return "<Project><PropertyGroup Label=\"Globals\">" + properties + "</PropertyGroup></Project>";
}

QByteArray withItems(const QByteArray &items)
{
    return "<Project><ItemGroup>" + items + "</ItemGroup></Project>";
}

/// A source in so many choices, each within the next.
QByteArray withChoices(int depth)
{
    const QByteArray begin = QByteArray("<Choose><When>").repeated(depth);
    const QByteArray end = QByteArray("</When></Choose>").repeated(depth);
    return "<Project>" + begin + "<ItemGroup><ClCompile Include=\"a.cpp\"/></ItemGroup>" + end + "</Project>";
}

} // namespace

class tst_visual_studio_project : public QObject
{
    Q_OBJECT

private slots:
    void rootNamespaceComesFromTheGlobals_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("rootNamespace");
        const QByteArray element = "<RootNamespace>client</RootNamespace>";
        QTest::newRow("named") << withGlobals(element) << u"client"_s;
        QTest::newRow("among other properties")
            << withGlobals("<ProjectGuid>x</ProjectGuid>" + element + "<Keyword/>") << u"client"_s;
        QTest::newRow("in another group")
            << QByteArray("<Project><PropertyGroup>" + element + "</PropertyGroup></Project>") << QString();
        QTest::newRow("deeper in the globals")
            << withGlobals("<Choose>" + element + "</Choose>") << QString();
        QTest::newRow("not named") << withGlobals("") << QString();
        QTest::newRow("label with other capitals")
            << QByteArray("<Project><PropertyGroup Label=\"globals\">" + element +
                          "</PropertyGroup></Project>")
            << QString();
    }

    void rootNamespaceComesFromTheGlobals()
    {
        QFETCH(const QByteArray, xml);
        const auto project = read(xml);
        QVERIFY(project);
        QTEST(project->rootNamespace, "rootNamespace");
    }

    void processIsTheRootNamespaceExceptForTheNewClient_data()
    {
        QTest::addColumn<QString>("rootNamespace");
        QTest::addColumn<QString>("process");
        QTest::newRow("new_client") << u"new_client"_s << u"client"_s;
        QTest::newRow("client") << u"client"_s << u"client"_s;
        QTest::newRow("other capitals") << u"New_client"_s << u"New_client"_s;
        QTest::newRow("a longer name") << u"new_clients"_s << u"new_clients"_s;
        QTest::newRow("empty") << QString() << QString();
    }

    void processIsTheRootNamespaceExceptForTheNewClient()
    {
        QFETCH(const QString, rootNamespace);
        QTEST(VisualStudioProject{.rootNamespace = rootNamespace}.process(), "process");
    }

    void sourceFilesAreTheCompiledFiles_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QStringList>("files");
        QTest::newRow("one") << withItems("<ClCompile Include=\"a.cpp\"/>") << QStringList{u"a.cpp"_s};
        QTest::newRow("with settings")
            << withItems("<ClCompile Include=\"a.cpp\"><Optimization>x</Optimization></ClCompile>"
                         "<ClCompile Include=\"b.cpp\"/>")
            << QStringList{u"a.cpp"_s, u"b.cpp"_s};
        QTest::newRow("path and entities unchanged")
            << withItems("<ClCompile Include=\"..\\a &amp; b\\c.cpp\"/>")
            << QStringList{u"..\\a & b\\c.cpp"_s};
        QTest::newRow("several files in one item")
            << withItems("<ClCompile Include=\"a.cpp;b.cpp; c.cpp\n;\"/>")
            << QStringList{u"a.cpp"_s, u"b.cpp"_s, u"c.cpp"_s};
        QTest::newRow("conditions do not count")
            << withItems("<ClCompile Include=\"a.cpp\" Condition=\"false\"/><ClCompile Include=\"b.cpp\">"
                         "<ExcludedFromBuild>true</ExcludedFromBuild></ClCompile>")
            << QStringList{u"a.cpp"_s, u"b.cpp"_s};
        QTest::newRow("several groups in order")
            << QByteArray("<Project><ItemGroup><ClCompile Include=\"z.cpp\"/></ItemGroup><ItemGroup/>"
                          "<ItemGroup><ClCompile Include=\"a.cpp\"/></ItemGroup></Project>")
            << QStringList{u"z.cpp"_s, u"a.cpp"_s};
        QTest::newRow("headers are not compiled")
            << withItems("<ClInclude Include=\"a.h\"/>") << QStringList();
        QTest::newRow("without a name")
            << withItems("<ClCompile Remove=\"a.cpp\"/><ClCompile Include=\"\"/>") << QStringList();
        QTest::newRow("definitions are not items")
            << QByteArray("<Project><ItemDefinitionGroup><ClCompile "
                          "Include=\"a.cpp\"/></ItemDefinitionGroup></Project>")
            << QStringList();
        QTest::newRow("groups in a choice or a target are skipped")
            << QByteArray("<Project><Choose><ItemGroup><ClCompile Include=\"a.cpp\"/></ItemGroup></Choose>"
                          "<Target><ItemGroup><ClCompile Include=\"b.cpp\"/></ItemGroup></Target>"
                          "<ItemGroup><ClCompile Include=\"c.cpp\"/></ItemGroup></Project>")
            << QStringList{u"c.cpp"_s};
        QTest::newRow("groups of a choice count for any configuration")
            << QByteArray("<Project><Choose><When Condition=\"false\"><ItemGroup><ClCompile "
                          "Include=\"a.cpp\"/></ItemGroup></When><Otherwise><ItemGroup><ClCompile "
                          "Include=\"b.cpp\"/></ItemGroup></Otherwise></Choose></Project>")
            << QStringList{u"a.cpp"_s, u"b.cpp"_s};
        QTest::newRow("sixteen choices within each other") << withChoices(16) << QStringList{u"a.cpp"_s};
        QTest::newRow("more choices within each other are skipped") << withChoices(17) << QStringList();
        QTest::newRow("generated code")
            << withItems("<ClCompile Include=\"x\\generatedFILES\\a.cpp\"/>") << QStringList();
        QTest::newRow("libraries") << withItems("<ClCompile Include=\"..\\libRAries\\a.cpp\"/>")
                                   << QStringList();
        QTest::newRow("an excluded word within a name")
            << withItems("<ClCompile Include=\"OurLibrariesList.cpp\"/>") << QStringList();
        QTest::newRow("parts of the excluded words")
            << withItems("<ClCompile Include=\"Library\\Generated\\a.cpp\"/>")
            << QStringList{u"Library\\Generated\\a.cpp"_s};
    }

    void sourceFilesAreTheCompiledFiles()
    {
        QFETCH(const QByteArray, xml);
        const auto project = read(xml);
        QVERIFY(project);
        QTEST(namesOf(*project), "files");
    }

    void filesThatAreNotProjectsFail_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::newRow("empty file") << QByteArray();
        QTest::newRow("not XML") << QByteArray("Microsoft Visual Studio Solution File");
        QTest::newRow("truncated") << withItems("<ClCompile Include=\"a.cpp\"/>").chopped(5);
        QTest::newRow("another root") << QByteArray("<Solution><Project/></Solution>");
        QTest::newRow("text after the root") << QByteArray("<Project/>more");
        QTest::newRow("entities") << QByteArray(
            "<!DOCTYPE p [<!ENTITY a \"aaaaaaaa\">]><Project>&a;</Project>");
        QTest::newRow("the folders of an editor")
            << withItems("<Filter Include=\"Source Files\"/><ClCompile Include=\"a.cpp\"/>");
    }

    void filesThatAreNotProjectsFail()
    {
        QFETCH(const QByteArray, xml);
        QVERIFY(!read(xml));
    }

    void anotherRootIsNamedInTheError() { QCOMPARE(read("<Solution/>").error(), u"Not a project"_s); }

    void projectMayBeginWithAByteOrderMark()
    {
        const auto project = read("\xEF\xBB\xBF" + withGlobals("<RootNamespace>client</RootNamespace>"));
        QVERIFY(project);
        QCOMPARE(project->rootNamespace, u"client"_s);
    }

    void projectIsReadFromItsFile()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"größe.vcxproj"_s);
        QVERIFY(writeBytes(fileName, withItems("<ClCompile Include=\"a.cpp\"/>")));
        const auto project = readVisualStudioProject(fileName);
        QVERIFY(project);
        QCOMPARE(namesOf(*project), QStringList{u"a.cpp"_s});
        QCOMPARE(project->sources.first().path, QDir::cleanPath(QDir(folder.path()).filePath(u"a.cpp"_s)));
        QVERIFY(writeBytes(fileName, "<Project>"));
        QVERIFY(!readVisualStudioProject(fileName));
    }

    void fileThatCannotBeOpenedFails()
    {
        const TestFolder folder;
        const auto project = readVisualStudioProject(folder.path(u"no.vcxproj"_s));
        QVERIFY(!project);
        QVERIFY(!project.error().isEmpty());
    }

    void filesThatEditorsKeepNextToAProjectAreNoProjects_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("its folders") << u"/p/client.vcxproj.filters"_s;
        QTest::newRow("a user's settings") << u"/p/client.vcxproj.USER"_s;
    }

    void filesThatEditorsKeepNextToAProjectAreNoProjects()
    {
        QFETCH(const QString, name);
        ListedFolders folders;
        folders.add(name, withItems("<ClCompile Include=\"a.cpp\"/>"));
        QVERIFY(!readVisualStudioProject(name, folders));
    }

    void sourceFilesAreRelativeToTheProject_data()
    {
        QTest::addColumn<QByteArray>("sourceFile");
        QTest::addColumn<QString>("path");
        QTest::newRow("next to it") << QByteArray("a.cpp") << u"/p/q/a.cpp"_s;
        QTest::newRow("below") << QByteArray("r\\s\\a.cpp") << u"/p/q/r/s/a.cpp"_s;
        QTest::newRow("above") << QByteArray("..\\..\\a b.cpp") << u"/a b.cpp"_s;
        QTest::newRow("slashes") << QByteArray("../a.cpp") << u"/p/a.cpp"_s;
        QTest::newRow("escaped characters") << QByteArray("a%20%28b%29%3b.cpp") << u"/p/q/a (b);.cpp"_s;
        QTest::newRow("a percent sign") << QByteArray("100%.cpp") << u"/p/q/100%.cpp"_s;
    }

    void sourceFilesAreRelativeToTheProject()
    {
        QFETCH(const QByteArray, sourceFile);
        ListedFolders folders;
        folders.add(u"/p/q/x.vcxproj"_s, withItems("<ClCompile Include=\"" + sourceFile + "\"/>"));
        const auto project = readVisualStudioProject(u"/p/q/x.vcxproj"_s, folders);
        QVERIFY(project);
        QTEST(project->sources.value(0).path, "path");
    }

    void millionItemsTakeTimeInProportion()
    {
        const auto timeOf = [](int count) {
            QByteArray items;
            for (int item = 0; item < count; ++item)
                items += "<ClCompile Include=\"s\\f" + QByteArray::number(item) + ".cpp\"/>";
            const QByteArray xml = withItems(items);
            const auto before = processorTime();
            const auto project = read(xml);
            return project && project->sources.size() == count ? processorTime() - before
                                                               : std::chrono::milliseconds(-1);
        };
        // Fewer with sanitizers, where it is about the memory and not the time.
        const auto part = timeOf(100'000 / sanitizerFactor);
        const auto all = timeOf(1'000'000 / sanitizerFactor);
        QVERIFY(part.count() > 0);
        QVERIFY2(all < 20 * part, qPrintable(u"%1 ms, then %2 ms"_s.arg(part.count()).arg(all.count())));
    }
};

NVX_GUILESS_TEST(tst_visual_studio_project)

#include "tst_visual_studio_project.moc"
