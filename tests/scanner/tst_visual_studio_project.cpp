#include "scanner/error_visual_studio_project.h"
#include "support/broken_device.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QBuffer>
#include <QDir>
#include <QTest>

using namespace Scan;

namespace {

std::optional<VisualStudioProject> read(const QByteArray &xml)
{
    QBuffer buffer;
    buffer.setData(xml);
    buffer.open(QIODevice::ReadOnly);
    return readVisualStudioProject(buffer);
}

QByteArray withGlobals(const QByteArray &properties)
{
    return "<Project><PropertyGroup Label=\"Globals\">" + properties + "</PropertyGroup></Project>";
}

QByteArray withItems(const QByteArray &items)
{
    return "<Project><ItemGroup>" + items + "</ItemGroup></Project>";
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
        QTest::newRow("named") << withGlobals(element) << QStringLiteral("client");
        QTest::newRow("among other properties")
            << withGlobals("<ProjectGuid>x</ProjectGuid>" + element + "<Keyword/>")
            << QStringLiteral("client");
        QTest::newRow("in another group")
            << QByteArray("<Project><PropertyGroup>" + element + "</PropertyGroup></Project>") << QString();
        QTest::newRow("deeper in the globals")
            << withGlobals("<Choose>" + element + "</Choose>") << QString();
        QTest::newRow("not named") << withGlobals("") << QString();
        QTest::newRow("label in another case") << QByteArray("<Project><PropertyGroup Label=\"globals\">" +
                                                             element + "</PropertyGroup></Project>")
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
        QTest::newRow("new_client") << QStringLiteral("new_client") << QStringLiteral("client");
        QTest::newRow("client") << QStringLiteral("client") << QStringLiteral("client");
        QTest::newRow("another case") << QStringLiteral("New_client") << QStringLiteral("New_client");
        QTest::newRow("a part of it") << QStringLiteral("new_clients") << QStringLiteral("new_clients");
        QTest::newRow("none") << QString() << QString();
    }

    void processIsTheRootNamespaceExceptForTheNewClient()
    {
        QFETCH(const QString, rootNamespace);
        QTEST((VisualStudioProject{rootNamespace, {}}.process()), "process");
    }

    void sourceFilesAreThoseCompiled_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QStringList>("files");
        QTest::newRow("one") << withItems("<ClCompile Include=\"a.cpp\"/>")
                             << QStringList{QStringLiteral("a.cpp")};
        QTest::newRow("with settings")
            << withItems("<ClCompile Include=\"a.cpp\"><Optimization>x</Optimization></ClCompile>"
                         "<ClCompile Include=\"b.cpp\"/>")
            << QStringList{QStringLiteral("a.cpp"), QStringLiteral("b.cpp")};
        QTest::newRow("path and entities as they stand")
            << withItems("<ClCompile Include=\"..\\a &amp; b\\c.cpp\"/>")
            << QStringList{QStringLiteral("..\\a & b\\c.cpp")};
        QTest::newRow("several groups in order")
            << QByteArray("<Project><ItemGroup><ClCompile Include=\"z.cpp\"/></ItemGroup><ItemGroup/>"
                          "<ItemGroup><ClCompile Include=\"a.cpp\"/></ItemGroup></Project>")
            << QStringList{QStringLiteral("z.cpp"), QStringLiteral("a.cpp")};
        QTest::newRow("headers are not compiled")
            << withItems("<ClInclude Include=\"a.h\"/>") << QStringList();
        QTest::newRow("no name") << withItems("<ClCompile Remove=\"a.cpp\"/><ClCompile Include=\"\"/>")
                                 << QStringList();
        QTest::newRow("definitions are no items")
            << QByteArray("<Project><ItemDefinitionGroup><ClCompile "
                          "Include=\"a.cpp\"/></ItemDefinitionGroup></Project>")
            << QStringList();
        QTest::newRow("groups of a choice or a target are none of the project")
            << QByteArray("<Project><Choose><ItemGroup><ClCompile Include=\"a.cpp\"/></ItemGroup></Choose>"
                          "<Target><ItemGroup><ClCompile Include=\"b.cpp\"/></ItemGroup></Target>"
                          "<ItemGroup><ClCompile Include=\"c.cpp\"/></ItemGroup></Project>")
            << QStringList{QStringLiteral("c.cpp")};
        QTest::newRow("generated code")
            << withItems("<ClCompile Include=\"x\\generatedFILES\\a.cpp\"/>") << QStringList();
        QTest::newRow("libraries") << withItems("<ClCompile Include=\"..\\libRAries\\a.cpp\"/>")
                                   << QStringList();
        QTest::newRow("a part of a name")
            << withItems("<ClCompile Include=\"OurLibrariesList.cpp\"/>") << QStringList();
        QTest::newRow("nearly") << withItems("<ClCompile Include=\"Library\\Generated\\a.cpp\"/>")
                                << QStringList{QStringLiteral("Library\\Generated\\a.cpp")};
    }

    void sourceFilesAreThoseCompiled()
    {
        QFETCH(const QByteArray, xml);
        const auto project = read(xml);
        QVERIFY(project);
        QTEST(project->sourceFiles, "files");
    }

    void whatCannotBeParsedIsNoProject_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::newRow("no bytes") << QByteArray();
        QTest::newRow("no XML") << QByteArray("Microsoft Visual Studio Solution File");
        QTest::newRow("cut off") << withItems("<ClCompile Include=\"a.cpp\"/>").chopped(5);
        QTest::newRow("another root") << QByteArray("<Solution><Project/></Solution>");
        QTest::newRow("text behind the root") << QByteArray("<Project/>more");
    }

    void whatCannotBeParsedIsNoProject()
    {
        QFETCH(const QByteArray, xml);
        QVERIFY(!read(xml));
    }

    void projectMayBeginWithAByteOrderMark()
    {
        const auto project = read("\xEF\xBB\xBF" + withGlobals("<RootNamespace>client</RootNamespace>"));
        QVERIFY(project);
        QCOMPARE(project->rootNamespace, QStringLiteral("client"));
    }

    void projectIsReadFromItsFile()
    {
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("größe.vcxproj"));
        QVERIFY(writeBytes(fileName, withItems("<ClCompile Include=\"a.cpp\"/>")));
        const auto project = readVisualStudioProject(fileName);
        QVERIFY(project);
        QCOMPARE(project->sourceFiles, QStringList{QStringLiteral("a.cpp")});
        QVERIFY(writeBytes(fileName, "<Project>"));
        QVERIFY(!readVisualStudioProject(fileName));
    }

    void fileThatCannotBeOpenedIsNoProject()
    {
        const TestFolder folder;
        QVERIFY(!readVisualStudioProject(folder.path(QStringLiteral("no.vcxproj"))));
    }

    void sourceFilesLieRelativeToTheProject_data()
    {
        QTest::addColumn<QString>("sourceFile");
        QTest::addColumn<QString>("path");
        QTest::newRow("beside it") << QStringLiteral("a.cpp") << QStringLiteral("p/q/a.cpp");
        QTest::newRow("below") << QStringLiteral("r\\s\\a.cpp") << QStringLiteral("p/q/r/s/a.cpp");
        QTest::newRow("above") << QStringLiteral("..\\..\\a b.cpp") << QStringLiteral("a b.cpp");
        QTest::newRow("slashes") << QStringLiteral("../a.cpp") << QStringLiteral("p/a.cpp");
    }

    void sourceFilesLieRelativeToTheProject()
    {
        QFETCH(const QString, sourceFile);
        QFETCH(const QString, path);
        QCOMPARE(sourceFilePath(QDir::current().filePath(QStringLiteral("p/q/x.vcxproj")), sourceFile),
                 QDir::current().filePath(path));
        QCOMPARE(sourceFilePath(QStringLiteral("p/q/x.vcxproj"), sourceFile), QDir::current().filePath(path));
    }

    void deviceThatBreaksGivesNoProject()
    {
        BrokenDevice device("<Project><PropertyGroup/>");
        QVERIFY(!Scan::readVisualStudioProject(device));
    }
};

NVX_GUILESS_TEST(tst_visual_studio_project)

#include "tst_visual_studio_project.moc"
