#include "listed_folders.h"
#include "scanner/project_folders.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;
using namespace Scan;

/// How the files that a project names are found.
class tst_project_folders : public QObject
{
    Q_OBJECT

private slots:
    void namesMatchPatterns_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<bool>("matches");
        QTest::newRow("the same name") << u"a.cpp"_s << u"a.cpp"_s << true;
        QTest::newRow("other capitals") << u"Ä.CPP"_s << u"ä.cpp"_s << true;
        QTest::newRow("any characters") << u"solver.cpp"_s << u"s*.cpp"_s << true;
        QTest::newRow("no characters") << u"s.cpp"_s << u"s*.cpp"_s << true;
        QTest::newRow("one character") << u"a1.cpp"_s << u"a?.cpp"_s << true;
        QTest::newRow("one character is missing") << u"a.cpp"_s << u"a?.cpp"_s << false;
        QTest::newRow("a longer suffix") << u"a.cppx"_s << u"*.cpp"_s << false;
        QTest::newRow("a shorter name") << u"a.c"_s << u"*.cpp"_s << false;
        QTest::newRow("the first match is too early") << u"a.b.cpp.cpp"_s << u"a*.cpp"_s << true;
        QTest::newRow("what is before a star does not count twice") << u"aba"_s << u"ab*ba"_s << false;
        QTest::newRow("several stars") << u"test_of_x.cxx"_s << u"*_of_*.c*"_s << true;
        QTest::newRow("stars at the end") << u"a"_s << u"a**"_s << true;
        QTest::newRow("every name") << u"README"_s << u"*.*"_s << true;
        QTest::newRow("brackets are characters") << u"[a].cpp"_s << u"[a].*"_s << true;
        QTest::newRow("empty pattern") << u"a"_s << QString() << false;
    }

    void namesMatchPatterns()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, pattern);
        QTEST(matchesName(name, pattern), "matches");
    }

    void patternsFindFilesInNameOrder_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QStringList>("files");
        QTest::newRow("in the folder") << u"*.cpp"_s << QStringList{u"/p/a.cpp"_s, u"/p/B.cpp"_s};
        QTest::newRow("in a folder below") << u"src/*.CPP"_s << QStringList{u"/p/src/c.cpp"_s};
        QTest::newRow("in a folder beside") << u"../q/?.cpp"_s << QStringList{u"/q/z.cpp"_s};
        QTest::newRow("an absolute path") << u"/q/*.cpp"_s << QStringList{u"/q/z.cpp"_s};
        QTest::newRow("backslashes") << u"..\\q\\*"_s << QStringList{u"/q/z.cpp"_s};
        QTest::newRow("in any folder")
            << u"**/*.cpp"_s
            << QStringList{u"/p/a.cpp"_s, u"/p/B.cpp"_s, u"/p/src/c.cpp"_s, u"/p/src/deep/d.cpp"_s};
        QTest::newRow("in any folder of a folder")
            << u"src/**/*.cpp"_s << QStringList{u"/p/src/c.cpp"_s, u"/p/src/deep/d.cpp"_s};
        QTest::newRow("everything below")
            << u"src/**"_s << QStringList{u"/p/src/c.cpp"_s, u"/p/src/deep/d.cpp"_s};
        QTest::newRow("folders that match") << u"s*/d??p/*.cpp"_s << QStringList{u"/p/src/deep/d.cpp"_s};
        QTest::newRow("any folders twice") << u"**/**/deep/**/*.cpp"_s << QStringList{u"/p/src/deep/d.cpp"_s};
        QTest::newRow("a fixed folder in other letters") << u"SRC/*.cpp"_s << QStringList{u"/p/src/c.cpp"_s};
        QTest::newRow("a fixed name at the end") << u"**/D.cpp"_s << QStringList{u"/p/src/deep/d.cpp"_s};
        QTest::newRow("no match") << u"*.cxx"_s << QStringList();
        QTest::newRow("a folder that does not exist") << u"no/*.cpp"_s << QStringList();
    }

    void patternsFindFilesInNameOrder()
    {
        QFETCH(const QString, pattern);
        const auto folders = someFolders();
        ProjectFileFinder finder(*folders, u"/p"_s);
        const auto files = finder.match(u"/p"_s, pattern);
        QVERIFY(files);
        QTEST(*files, "files");
    }

    void patternsOfWholeDrivesAndAboveWildcardsFail_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::newRow("a whole drive") << u"/**/*.cpp"_s;
        QTest::newRow("a whole drive by way of the project") << u"../**/*.cpp"_s;
        QTest::newRow("above a wildcard") << u"*/../a.cpp"_s;
    }

    void patternsOfWholeDrivesAndAboveWildcardsFail()
    {
        QFETCH(const QString, pattern);
        const auto folders = someFolders();
        ProjectFileFinder finder(*folders, u"/p"_s);
        QVERIFY(!finder.match(u"/p"_s, pattern));
    }

    void linksToFoldersAreOnlyFollowedWhereTheyAreNamed()
    {
        const auto folders = someFolders();
        folders->link(u"/p"_s, u"src"_s);
        ProjectFileFinder finder(*folders, u"/p"_s);
        QCOMPARE(*finder.match(u"/p"_s, u"**/c.cpp"_s), QStringList());
        QCOMPARE(*finder.match(u"/p"_s, u"src/*.cpp"_s), QStringList{u"/p/src/c.cpp"_s});
        QCOMPARE(*finder.match(u"/p"_s, u"s?c/*.cpp"_s), QStringList{u"/p/src/c.cpp"_s});
    }

    void filesAreFoundInOtherLetters_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("found");
        QTest::addColumn<bool>("exists");
        QTest::newRow("as written") << u"/p/src/c.cpp"_s << u"/p/src/c.cpp"_s << true;
        QTest::newRow("file") << u"/p/A.CPP"_s << u"/p/a.cpp"_s << true;
        QTest::newRow("folders and file") << u"/p/Src/DEEP/D.cpp"_s << u"/p/src/deep/d.cpp"_s << true;
        QTest::newRow("beside the project") << u"/Q/Z.cpp"_s << u"/q/z.cpp"_s << true;
        QTest::newRow("the exact name first") << u"/p/same/b"_s << u"/p/same/b"_s << true;
        QTest::newRow("otherwise the first in name order")
            << u"/p/same2/FILE"_s << u"/p/same2/File"_s << true;
        QTest::newRow("no such file") << u"/p/SRC/no.cpp"_s << u"/p/src/no.cpp"_s << false;
        QTest::newRow("no such folder") << u"/p/SRC/no/x/Y.cpp"_s << u"/p/src/no/x/Y.cpp"_s << false;
        QTest::newRow("a folder") << u"/p/src"_s << u"/p/src"_s << false;
        QTest::newRow("a file as a folder") << u"/p/a.cpp/b.cpp"_s << u"/p/a.cpp/b.cpp"_s << false;
    }

    void filesAreFoundInOtherLetters()
    {
        QFETCH(const QString, path);
        const auto folders = someFolders();
        ProjectFileFinder finder(*folders, u"/p"_s);
        const auto found = finder.find(path);
        QTEST(found.path, "found");
        QTEST(found.exists, "exists");
    }

    void everyFolderIsListedOnce()
    {
        ListedFolders folders;
        for (int file = 0; file < 1000; ++file)
            folders.add(u"/p/src/%1.cpp"_s.arg(file));
        ProjectFileFinder finder(folders, u"/p"_s);
        for (int file = 0; file < 1000; ++file)
            QVERIFY(finder.find(u"/p/SRC/%1.CPP"_s.arg(file)).exists);
        QVERIFY(finder.match(u"/p"_s, u"**/*"_s));
        QCOMPARE(folders.listed(), 2);
    }

    void hostIsTheFirstPartOfAPathOfTheNetwork_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("host");
        QTest::newRow("backslashes") << u"\\\\Server\\share\\a.cpp"_s << u"server"_s;
        QTest::newRow("slashes") << u"//server/share/a.cpp"_s << u"server"_s;
        QTest::newRow("a device") << u"\\\\.\\pipe\\x"_s << u"."_s;
        QTest::newRow("a path without limits") << u"\\\\?\\UNC\\server\\a.cpp"_s << u"?"_s;
        QTest::newRow("a drive") << u"C:\\a.cpp"_s << QString();
        QTest::newRow("a relative path") << u"..\\a.cpp"_s << QString();
        QTest::newRow("the current drive") << u"\\a.cpp"_s << QString();
    }

    void hostIsTheFirstPartOfAPathOfTheNetwork()
    {
        QFETCH(const QString, path);
        QTEST(hostOf(path), "host");
    }

    void pathsAreRelativeToTheFolder_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("path");
        QTest::newRow("below") << u"/p/q"_s << u"r\\a.cpp"_s << u"/p/q/r/a.cpp"_s;
        QTest::newRow("above") << u"/p/q"_s << u"..\\.\\a.cpp"_s << u"/p/a.cpp"_s;
        QTest::newRow("absolute") << u"/p/q"_s << u"/r//a.cpp"_s << u"/r/a.cpp"_s;
        QTest::newRow("a drive on a system without drives") << u"/p"_s << u"C:\\a.cpp"_s << u"/p/C:/a.cpp"_s;
        QTest::newRow("another drive") << u"C:/p"_s << u"D:\\a.cpp"_s << u"D:/a.cpp"_s;
        QTest::newRow("below on a drive") << u"C:/p"_s << u"..\\q\\a.cpp"_s << u"C:/q/a.cpp"_s;
        QTest::newRow("the same drive") << u"C:/p"_s << u"\\q\\a.cpp"_s << u"C:/q/a.cpp"_s;
    }

    void pathsAreRelativeToTheFolder()
    {
        QFETCH(const QString, folder);
        QFETCH(const QString, name);
        QTEST(absolutePath(folder, name), "path");
    }

    void nativeFoldersListFilesAndFolders()
    {
        const TestFolder folder;
        writeFile(folder.path(u"a/b.cpp"_s), "text");
        writeFile(folder.path(u".hidden"_s), "text");
        const NativeProjectFolders folders;
        QStringList listed;
        for (const auto &entry : folders.entries(QDir::fromNativeSeparators(folder.path())))
            listed.append(entry.name + (entry.kind == ProjectFolders::EntryKind::Folder ? u"/"_s : u""_s));
        listed.sort();
        QCOMPARE(listed, QStringList({u".hidden"_s, u"a/"_s}));
        QVERIFY(folders.entries(folder.path(u"no"_s)).empty());
        QCOMPARE(*folders.contents(folder.path(u"a/b.cpp"_s)), QByteArray("text"));
        QCOMPARE(folders.contents(folder.path(u"a"_s)).error(), u"it is not a regular file"_s);
        QCOMPARE(folders.contents(folder.path(u"no"_s)).error(), u"the file does not exist"_s);
    }

private:
    static std::unique_ptr<ListedFolders> someFolders()
    {
        auto folders = std::make_unique<ListedFolders>();
        for (const char *path : {"/p/a.cpp", "/p/B.cpp", "/p/a.h", "/p/src/c.cpp", "/p/src/deep/d.cpp",
                                 "/q/z.cpp", "/p/same/B", "/p/same/b", "/p/same2/file", "/p/same2/File"})
            folders->add(QString::fromLatin1(path));
        return folders;
    }
};

NVX_GUILESS_TEST(tst_project_folders)

#include "tst_project_folders.moc"
