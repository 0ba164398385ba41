#include "engine/engine_fixture.h"
#include "nvx_util/system.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

using Nvx::Util::joinPath;
using Nvx::Util::System;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace {

QString flagsFile()
{
    return joinPath(System::getFlagsDirPath(), u"NVX_flags.txt"_s);
}

} // namespace

class tst_language : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<EngineFixture>();
        for (const char *locale : {"en-US", "de-DE", "ja-JP"}) {
            for (const char *name : {"matprop.mdb", "VistrelResources.dll", "VelmoraApplicationFrameRes.dll"})
                writeFile(m_fixture->test.path(u"NVX/%1/%2"_s.arg(text(locale), text(name))), locale);
        }
        writeFile(m_fixture->installed("ja-JP/ZorvRes.dll"), "Japanese solver");
    }
    void cleanup() { m_fixture.reset(); }

    void anInstallInGermanIsLoggedLineByLine()
    {
        m_fixture->start(u"-I -Lde-DE"_s);
        const QString dictionary = joinPath(System::getUserDataPath(), u"NVX_db_dictionary.nvxcfg"_s);
        QCOMPARE(languageLines(),
                 QStringList({u"   2 Install Language de-DE"_s, u"   0 Language de-DE"_s,
                              u"   0 Install Language: de-DE"_s, u"   0 ChangeLanguage = en-US"_s,
                              removeSorvane(), u"   0 Install Sorvane"_s, u"   0 Remove:"_s + dictionary,
                              u"   0 ChangeLanguage = de-DE"_s, removeSorvane(), u"   0 Install Sorvane"_s,
                              u"   0 Remove:"_s + dictionary}));
        QCOMPARE(System::getLocale(), u"de-DE"_s);
    }

    void theResourcesComeFromTheRunsLanguage_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QByteArray>("resources");
        QTest::addColumn<QByteArray>("materials");
        QTest::addColumn<QByteArray>("solver");
        QTest::newRow("German") << u"-Lde-DE"_s << QByteArray("de-DE") << QByteArray("old") << QByteArray();
        QTest::newRow("English") << u"-Len-US"_s << QByteArray("en-US") << QByteArray("en-US")
                                 << QByteArray();
        QTest::newRow("Japanese") << u"-Lja-JP"_s << QByteArray("ja-JP") << QByteArray("old")
                                  << QByteArray("Japanese solver");
        QTest::newRow("a language without a folder")
            << u"-Lko-KR"_s << QByteArray() << QByteArray("old") << QByteArray();
    }

    void theResourcesComeFromTheRunsLanguage()
    {
        QFETCH(QString, option);
        QFETCH(QByteArray, resources);
        writeFile(m_fixture->installed("matprop.new"), "old");
        writeFile(m_fixture->installed("VistrelResources.dll"), "old");
        writeFile(m_fixture->installed("VelmoraApplicationFrameRes.dll"), "old");
        m_fixture->start(u"-I "_s + option);
        QCOMPARE(readFile(m_fixture->installed("VistrelResources.dll")), resources);
        QCOMPARE(readFile(m_fixture->installed("VelmoraApplicationFrameRes.dll")), resources);
        QTEST(readFile(m_fixture->installed("matprop.new")), "materials");
        QTEST(readFile(m_fixture->installed("ja/ZorvRes.dll")), "solver");
    }

    void theCopyOfTheMaterialsIsLogged()
    {
        m_fixture->start(u"-I -Len-US"_s);
        QVERIFY(m_fixture->lines().contains(u"   0 COPY:%1 to %2"_s.arg(
            m_fixture->installed("en-US/matprop.mdb"), m_fixture->installed("matprop.new"))));
    }

    void theJapaneseSolverResourcesAreCopiedThreeTimes()
    {
        m_fixture->start(u"-I -Lja-JP"_s);
        QCOMPARE(m_fixture->lines().count(u"   0 zorv :"_s + m_fixture->test.installDir()), 3);
    }

    void theSolversResourcesFollowTheLanguageInEveryMode_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QByteArray>("solver");
        QTest::addColumn<int>("copies");
        for (const char *mode : {"-U", "-ST", "-T"}) {
            const auto row = [mode](const char *locale, const QByteArray &solver, int copies) {
                QTest::addRow("%s %s", mode, locale)
                    << u"%1 -L%2"_s.arg(text(mode), text(locale)) << solver << copies;
            };
            row("de-DE", QByteArray(), 0);
            row("ja-JP", "Japanese solver", 1);
            row("en-US", "old", 0); // no second switch for the built-in language
        }
        QTest::newRow("install in English") << u"-I -Len-US"_s << QByteArray() << 0;
        QTest::newRow("no mode, in Japanese") << u"-Lja-JP"_s << QByteArray("Japanese solver") << 3;
    }

    void theSolversResourcesFollowTheLanguageInEveryMode()
    {
        QFETCH(QString, options);
        writeFile(m_fixture->installed("NVXSolver.exe"));
        writeFile(m_fixture->installed("ja/ZorvRes.dll"), "old");
        m_fixture->start(options);
        QTEST(readFile(m_fixture->installed("ja/ZorvRes.dll")), "solver");
        QTEST(int(m_fixture->lines().count(u"   0 zorv :"_s + m_fixture->test.installDir())), "copies");
    }

    void anotherLanguageRemovesTheJapaneseSolverResources()
    {
        m_fixture->start(u"-I -Lja-JP"_s);
        QVERIFY(QFile::exists(m_fixture->installed("ja/ZorvRes.dll")));
        m_fixture->start(u"-I -Lde-DE"_s);
        QVERIFY(!QDir(m_fixture->installed("ja")).exists());
    }

    void theJapaneseFolderStaysIfItContainsOtherFiles()
    {
        writeFile(m_fixture->installed("ja/own.txt"), "mine");
        m_fixture->start(u"-I -Lde-DE"_s);
        QCOMPARE(readFile(m_fixture->installed("ja/own.txt")), QByteArray("mine"));
    }

    void theUsersDictionaryIsRemoved()
    {
        const QString dictionary = joinPath(System::getUserDataPath(), u"NVX_db_dictionary.nvxcfg"_s);
        writeFile(dictionary);
        m_fixture->start(u"-I -Lde-DE"_s);
        QVERIFY(!QFile::exists(dictionary));
    }

    void anUninstallRemembersTheLanguageAndResetsTheCustomisation()
    {
        writeFile(m_fixture->installed("NVXSolver.exe"));
        writeFile(m_fixture->installed("VistrelResources.dll"), "old");
        m_fixture->start(u"-U -Lde-DE"_s);
        QCOMPARE(languageLines(), QStringList({u"   2 UnInstall Language de-DE"_s, removeSorvane(),
                                               u"   0 UnInstall Sorvane"_s, u"   0 Language de-DE"_s,
                                               u"   0 ChangeLanguage = en-US"_s, removeSorvane(),
                                               u"   0 UnInstall Sorvane"_s, u"   0 ChangeLanguage = de-DE"_s,
                                               removeSorvane(), u"   0 UnInstall Sorvane"_s}));
        QCOMPARE(readFile(m_fixture->installed("VistrelResources.dll")), QByteArray("old"));
        QVERIFY(!QFile::exists(flagsFile()));
    }

    void stoppingServicesUsesTheThirdModeWord()
    {
        writeFile(m_fixture->installed("NVXSolver.exe"));
        m_fixture->start(u"-ST -Len-US"_s);
        QCOMPARE(languageLines().first(), u"   2 Found  Language en-US"_s);
    }

    void aLanguageRemovesTheCustomisation()
    {
        const QString ribbon = joinPath(System::getUserDataPath(), u"ribbon2D.st"_s);
        writeFile(ribbon);
        m_fixture->start(u"-I -L"_s);
        QVERIFY(QFile::exists(ribbon));
        m_fixture->start(u"-I -Lde-DE"_s);
        QVERIFY(!QFile::exists(ribbon));
    }

    void anUninstallWithoutALocaleResetsTheCustomisation()
    {
        writeFile(m_fixture->installed("NVXSolver.exe"));
        m_fixture->start(u"-U -L"_s);
        QCOMPARE(languageLines(),
                 QStringList({u"   2 UnInstall Language "_s, removeSorvane(), u"   0 UnInstall Sorvane"_s,
                              u"   0 No Language locale Specified"_s}));
    }

    void theUsersMaterialsSurviveEveryLanguage()
    {
        const QString materials = joinPath(System::getProgramDataPath(u"NVX 2017"_s), u"matprop.nvxmdb"_s);
        writeFile(materials, "mine");
        for (const char *option :
             {"-I -Len-US", "-I -Lde-DE", "-I -Lja-JP", "-I -L", "-Lde-DE", "-ST -Len-US"})
            m_fixture->start(text(option));
        QCOMPARE(readFile(materials), QByteArray("mine"));
    }

    void anEmptyLocaleIsOnlyReported()
    {
        m_fixture->start(u"-I -L"_s);
        QCOMPARE(languageLines(),
                 QStringList({u"   2 Install Language "_s, u"   0 No Language locale Specified"_s}));
        QVERIFY(!QFile::exists(flagsFile()));
    }

    void aRunWithoutAModeSetsUpLikeAnInstall()
    {
        m_fixture->start(u"-Lde-DE"_s);
        QCOMPARE(languageLines().first(), u"   2 Install Language de-DE"_s);
        QCOMPARE(readFile(m_fixture->installed("VistrelResources.dll")), QByteArray("de-DE"));
        QVERIFY(m_fixture->engine->state().runMode == RunMode::NotGiven);
    }

    void theFlagsFileIsCreatedEmpty()
    {
        m_fixture->start(u"-I"_s);
        QVERIFY(QFile::exists(flagsFile()));
        QCOMPARE(QFileInfo(flagsFile()).size(), 0);
    }

    void anExistingFlagsFileIsLeftAlone()
    {
        writeFile(flagsFile(), "mine");
        m_fixture->test.setVariable("OSTRADE2017TEMP", m_fixture->test.path(u"prepared"_s));
        writeFile(m_fixture->test.path(u"prepared/NVX_flags.txt"_s), "prepared");
        m_fixture->start(u"-I"_s);
        QCOMPARE(readFile(flagsFile()), QByteArray("mine"));
        QVERIFY(m_fixture->lines().filter(u"Unable to create"_s).isEmpty());
    }

    void aPreparedFlagsFileIsCopied()
    {
        m_fixture->test.setVariable("OSTRADE2017TEMP", m_fixture->test.path(u"prepared"_s));
        writeFile(m_fixture->test.path(u"prepared/NVX_flags.txt"_s), "prepared");
        m_fixture->start(u"-I"_s);
        QCOMPARE(readFile(flagsFile()), QByteArray("prepared"));
    }

    void aPreparedFlagsFileThatCannotBeCopiedIsLoggedAndCopiedByTheNextRun()
    {
        m_fixture->test.setVariable("OSTRADE2017TEMP", m_fixture->test.path(u"prepared"_s));
        writeFile(m_fixture->test.path(u"prepared/NVX_flags.txt"_s), "prepared");
        const QString obstacle = flagsFile() + u".nvxpart/a file"_s;
        writeFile(obstacle);
        m_fixture->start(u"-I"_s);
        QVERIFY(m_fixture->lines().contains(u"   1 Unable to create "_s + flagsFile()));
        QVERIFY(!QFile::exists(flagsFile()));
        QVERIFY(QDir(QFileInfo(obstacle).path()).removeRecursively());
        m_fixture->start(u"-I"_s);
        QCOMPARE(readFile(flagsFile()), QByteArray("prepared"));
    }

    void aPreparedFlagsFileThatIsNoSmallOrdinaryFileIsNotCopied_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<bool>("isCopied");
        QTest::newRow("64 KiB") << u"full"_s << true;
        QTest::newRow("larger") << u"large"_s << false;
        QTest::newRow("a folder") << u"folder"_s << false;
        const TestFolder folder;
        const QString link = folder.path(u"link"_s);
        if (QFile::link(folder.path(), link) && QFileInfo(link).isSymLink()) // Windows makes a shortcut
            QTest::newRow("a link") << u"link"_s << false;
    }

    void aPreparedFlagsFileThatIsNoSmallOrdinaryFileIsNotCopied()
    {
        QFETCH(const QString, folder);
        QFETCH(const bool, isCopied);
        const auto prepared = [&](const QString &name) {
            return m_fixture->test.path(name + u"/NVX_flags.txt"_s);
        };
        writeFile(prepared(u"full"_s), QByteArray(65536, 'x'));
        writeFile(prepared(u"large"_s), QByteArray(65537, 'x'));
        QVERIFY(QDir().mkpath(prepared(u"folder"_s)));
        QVERIFY(QDir().mkdir(m_fixture->test.path(u"link"_s)));
        QVERIFY(QFile::link(prepared(u"full"_s), prepared(u"link"_s)));

        m_fixture->test.setVariable("OSTRADE2017TEMP", m_fixture->test.path(folder));
        m_fixture->start(u"-I"_s);
        QCOMPARE(QFileInfo(flagsFile()).size(), isCopied ? 65536 : 0);
        QCOMPARE(
            m_fixture->lines().contains(
                u"   1 %1 is not used; it is not an ordinary file of at most 64 KiB"_s.arg(prepared(folder))),
            !isCopied);
    }

    void aPreparedFlagsFolderThatIsADeviceIsNotOpened_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::newRow("pipes") << u"\\\\.\\pipe"_s;
        QTest::newRow("pipes of a server, with slashes") << u"//localhost/PIPE"_s;
    }

    void aPreparedFlagsFolderThatIsADeviceIsNotOpened()
    {
        QFETCH(const QString, folder);
        m_fixture->test.setVariable("OSTRADE2017TEMP", folder);
        m_fixture->start(u"-I"_s);
        QCOMPARE(QFileInfo(flagsFile()).size(), 0);
        QVERIFY(m_fixture->lines().contains(
            u"   1 %1 is not used; it is not an ordinary file of at most 64 KiB"_s.arg(
                joinPath(folder, u"NVX_flags.txt"_s))));
    }

    void withoutAPreparedFileTheFlagsFileIsEmpty()
    {
        m_fixture->test.setVariable("OSTRADE2017TEMP", m_fixture->test.path(u"prepared"_s));
        m_fixture->start(u"-I"_s);
        QVERIFY(QFile::exists(flagsFile()));
        QCOMPARE(QFileInfo(flagsFile()).size(), 0);
    }

    void aFlagsFileThatCannotBeCreatedIsLogged()
    {
        writeFile(System::getFlagsDirPath()); // a file has the folder's name
        m_fixture->start(u"-I"_s);
        QVERIFY(m_fixture->lines().contains(u"   1 Unable to create "_s + flagsFile()));
    }

private:
    static QString removeSorvane()
    {
        return u"   0 Remove: "_s + joinPath(System::getProgramDataPath(u"NVX 2017"_s), u"Sorvane"_s);
    }

    // The lines from the first one about the language, without those of external programs.
    QStringList languageLines() const
    {
        QStringList lines = m_fixture->lines();
        lines.removeIf([](const QString &line) {
            return line.startsWith(u"   0 Command:cmd.exe"_s) || line == u"   0  output:"_s;
        });
        for (qsizetype i = 0; i < lines.size(); ++i) {
            if (lines.at(i).startsWith(u"   2 "_s))
                return lines.mid(i);
        }
        return QStringList();
    }

    std::unique_ptr<EngineFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_language)
#include "tst_language.moc"
