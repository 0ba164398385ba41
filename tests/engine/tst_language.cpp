#include "engine/engine_fixture.h"
#include "nvx_util/system.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

using Nvx::Util::joinPath;
using Nvx::Util::System;

namespace {

QString flagsFile()
{
    return joinPath(System::getFlagsDirPath(), text("NVX_flags.txt"));
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
                writeFile(m_fixture->test.path(text("NVX/%1/%2").arg(text(locale), text(name))), locale);
        }
        writeFile(m_fixture->installed("ja-JP/ZorvRes.dll"), "Japanese solver");
    }
    void cleanup() { m_fixture.reset(); }

    void anInstallInGermanIsLoggedLineByLine()
    {
        m_fixture->start(text("-I -Lde-DE"));
        const QString dictionary = joinPath(System::getUserDataPath(), text("NVX_db_dictionary.nvxcfg"));
        QCOMPARE(
            languageLines(),
            QStringList({text("   2 Install Language de-DE"), text("   0 Language de-DE"),
                         text("   0 Install Language: de-DE"), text("   0 ChangeLanguage = en-US"),
                         removeSorvane(), text("   0 Install Sorvane"), text("   0 Remove:") + dictionary,
                         text("   0 ChangeLanguage = de-DE"), removeSorvane(), text("   0 Install Sorvane"),
                         text("   0 Remove:") + dictionary}));
        QCOMPARE(System::getLocale(), text("de-DE"));
    }

    void theResourcesComeFromTheRunsLanguage_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QByteArray>("resources");
        QTest::addColumn<QByteArray>("materials");
        QTest::addColumn<QByteArray>("solver");
        QTest::newRow("German") << text("-Lde-DE") << QByteArray("de-DE") << QByteArray("old")
                                << QByteArray();
        QTest::newRow("English") << text("-Len-US") << QByteArray("en-US") << QByteArray("en-US")
                                 << QByteArray();
        QTest::newRow("Japanese") << text("-Lja-JP") << QByteArray("ja-JP") << QByteArray("old")
                                  << QByteArray("Japanese solver");
        QTest::newRow("a language without a folder")
            << text("-Lko-KR") << QByteArray() << QByteArray("old") << QByteArray();
    }

    void theResourcesComeFromTheRunsLanguage()
    {
        QFETCH(QString, option);
        QFETCH(QByteArray, resources);
        writeFile(m_fixture->installed("matprop.new"), "old");
        writeFile(m_fixture->installed("VistrelResources.dll"), "old");
        writeFile(m_fixture->installed("VelmoraApplicationFrameRes.dll"), "old");
        m_fixture->start(text("-I ") + option);
        QCOMPARE(readFile(m_fixture->installed("VistrelResources.dll")), resources);
        QCOMPARE(readFile(m_fixture->installed("VelmoraApplicationFrameRes.dll")), resources);
        QTEST(readFile(m_fixture->installed("matprop.new")), "materials");
        QTEST(readFile(m_fixture->installed("ja/ZorvRes.dll")), "solver");
    }

    void theCopyOfTheMaterialsIsLogged()
    {
        m_fixture->start(text("-I -Len-US"));
        QVERIFY(m_fixture->lines().contains(
            text("   0 COPY:%1 to %2")
                .arg(m_fixture->installed("en-US/matprop.mdb"), m_fixture->installed("matprop.new"))));
    }

    void japaneseIsToldToTheSolverThreeTimesInAll()
    {
        m_fixture->start(text("-I -Lja-JP"));
        QCOMPARE(m_fixture->lines().count(text("   0 zorv :") + m_fixture->test.installDir()), 3);
    }

    void theSolversResourcesFollowTheLanguageInEveryMode_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QByteArray>("solver");
        QTest::addColumn<int>("copies");
        for (const char *mode : {"-U", "-ST", "-T"}) {
            const auto row = [mode](const char *locale, const QByteArray &solver, int copies) {
                QTest::addRow("%s %s", mode, locale)
                    << text("%1 -L%2").arg(text(mode), text(locale)) << solver << copies;
            };
            row("de-DE", QByteArray(), 0);
            row("ja-JP", "Japanese solver", 1);
            row("en-US", "old", 0); // nothing is done once more for the built-in language
        }
        QTest::newRow("install in English") << text("-I -Len-US") << QByteArray() << 0;
        QTest::newRow("no mode, in Japanese") << text("-Lja-JP") << QByteArray("Japanese solver") << 3;
    }

    void theSolversResourcesFollowTheLanguageInEveryMode()
    {
        QFETCH(QString, options);
        writeFile(m_fixture->installed("NVXSolver.exe"));
        writeFile(m_fixture->installed("ja/ZorvRes.dll"), "old");
        m_fixture->start(options);
        QTEST(readFile(m_fixture->installed("ja/ZorvRes.dll")), "solver");
        QTEST(int(m_fixture->lines().count(text("   0 zorv :") + m_fixture->test.installDir())), "copies");
    }

    void anotherLanguageRemovesTheJapaneseSolverResources()
    {
        m_fixture->start(text("-I -Lja-JP"));
        QVERIFY(QFile::exists(m_fixture->installed("ja/ZorvRes.dll")));
        m_fixture->start(text("-I -Lde-DE"));
        QVERIFY(!QDir(m_fixture->installed("ja")).exists());
    }

    void theJapaneseFolderStaysWhenSomethingElseIsInIt()
    {
        writeFile(m_fixture->installed("ja/own.txt"), "mine");
        m_fixture->start(text("-I -Lde-DE"));
        QCOMPARE(readFile(m_fixture->installed("ja/own.txt")), QByteArray("mine"));
    }

    void theUsersDictionaryGoes()
    {
        const QString dictionary = joinPath(System::getUserDataPath(), text("NVX_db_dictionary.nvxcfg"));
        writeFile(dictionary);
        m_fixture->start(text("-I -Lde-DE"));
        QVERIFY(!QFile::exists(dictionary));
    }

    void anUninstallRemembersTheLanguageAndResetsTheCustomisation()
    {
        writeFile(m_fixture->installed("NVXSolver.exe"));
        writeFile(m_fixture->installed("VistrelResources.dll"), "old");
        m_fixture->start(text("-U -Lde-DE"));
        QCOMPARE(languageLines(),
                 QStringList({text("   2 UnInstall Language de-DE"), removeSorvane(),
                              text("   0 UnInstall Sorvane"), text("   0 Language de-DE"),
                              text("   0 ChangeLanguage = en-US"), removeSorvane(),
                              text("   0 UnInstall Sorvane"), text("   0 ChangeLanguage = de-DE"),
                              removeSorvane(), text("   0 UnInstall Sorvane")}));
        QCOMPARE(readFile(m_fixture->installed("VistrelResources.dll")), QByteArray("old"));
        QVERIFY(!QFile::exists(flagsFile()));
    }

    void stoppingServicesUsesTheThirdModeWord()
    {
        writeFile(m_fixture->installed("NVXSolver.exe"));
        m_fixture->start(text("-ST -Len-US"));
        QCOMPARE(languageLines().first(), text("   2 Found  Language en-US"));
    }

    void theCustomisationGoesWithTheLanguage()
    {
        const QString ribbon = joinPath(System::getUserDataPath(), text("ribbon2D.st"));
        writeFile(ribbon);
        m_fixture->start(text("-I -L"));
        QVERIFY(QFile::exists(ribbon));
        m_fixture->start(text("-I -Lde-DE"));
        QVERIFY(!QFile::exists(ribbon));
    }

    void anUninstallWithoutALocaleResetsTheCustomisationAllTheSame()
    {
        writeFile(m_fixture->installed("NVXSolver.exe"));
        m_fixture->start(text("-U -L"));
        QCOMPARE(languageLines(),
                 QStringList({text("   2 UnInstall Language "), removeSorvane(),
                              text("   0 UnInstall Sorvane"), text("   0 No Language locale Specified")}));
    }

    void theUsersMaterialsSurviveEveryLanguage()
    {
        const QString materials =
            joinPath(System::getProgramDataPath(text("NVX 2017")), text("matprop.nvxmdb"));
        writeFile(materials, "mine");
        for (const char *option :
             {"-I -Len-US", "-I -Lde-DE", "-I -Lja-JP", "-I -L", "-Lde-DE", "-ST -Len-US"})
            m_fixture->start(text(option));
        QCOMPARE(readFile(materials), QByteArray("mine"));
    }

    void anEmptyLocaleIsReportedAndNothingElseDone()
    {
        m_fixture->start(text("-I -L"));
        QCOMPARE(languageLines(),
                 QStringList({text("   2 Install Language "), text("   0 No Language locale Specified")}));
        QVERIFY(!QFile::exists(flagsFile()));
    }

    void aRunWithoutAModeSetsUpLikeAnInstall()
    {
        m_fixture->start(text("-Lde-DE"));
        QCOMPARE(languageLines().first(), text("   2 Install Language de-DE"));
        QCOMPARE(readFile(m_fixture->installed("VistrelResources.dll")), QByteArray("de-DE"));
        QVERIFY(m_fixture->engine->state().runMode == RunMode::NotGiven);
    }

    void theFlagsFileIsMadeWithoutBytes()
    {
        m_fixture->start(text("-I"));
        QVERIFY(QFile::exists(flagsFile()));
        QCOMPARE(QFileInfo(flagsFile()).size(), 0);
    }

    void anExistingFlagsFileIsLeftAlone()
    {
        writeFile(flagsFile(), "mine");
        m_fixture->test.setVariable("OSTRADE2017TEMP", m_fixture->test.path(text("prepared")));
        writeFile(m_fixture->test.path(text("prepared/NVX_flags.txt")), "prepared");
        m_fixture->start(text("-I"));
        QCOMPARE(readFile(flagsFile()), QByteArray("mine"));
        QVERIFY(m_fixture->lines().filter(text("Unable to create")).isEmpty());
    }

    void aPreparedFlagsFileIsCopied()
    {
        m_fixture->test.setVariable("OSTRADE2017TEMP", m_fixture->test.path(text("prepared")));
        writeFile(m_fixture->test.path(text("prepared/NVX_flags.txt")), "prepared");
        m_fixture->start(text("-I"));
        QCOMPARE(readFile(flagsFile()), QByteArray("prepared"));
    }

    void aPreparedFlagsFileThatCannotBeCopiedIsLoggedAndComesWithTheNextRun()
    {
        m_fixture->test.setVariable("OSTRADE2017TEMP", m_fixture->test.path(text("prepared")));
        writeFile(m_fixture->test.path(text("prepared/NVX_flags.txt")), "prepared");
        const QString inTheWay = flagsFile() + text(".nvxpart/in the way");
        writeFile(inTheWay);
        m_fixture->start(text("-I"));
        QVERIFY(m_fixture->lines().contains(text("   1 Unable to create ") + flagsFile()));
        QVERIFY(!QFile::exists(flagsFile()));
        QVERIFY(QDir(QFileInfo(inTheWay).path()).removeRecursively());
        m_fixture->start(text("-I"));
        QCOMPARE(readFile(flagsFile()), QByteArray("prepared"));
    }

    void aPreparedFolderWithoutTheFileGivesAnEmptyOne()
    {
        m_fixture->test.setVariable("OSTRADE2017TEMP", m_fixture->test.path(text("prepared")));
        m_fixture->start(text("-I"));
        QVERIFY(QFile::exists(flagsFile()));
        QCOMPARE(QFileInfo(flagsFile()).size(), 0);
    }

    void aFlagsFileThatCannotBeMadeIsLogged()
    {
        writeFile(System::getFlagsDirPath()); // a file is in the folder's place
        m_fixture->start(text("-I"));
        QVERIFY(m_fixture->lines().contains(text("   1 Unable to create ") + flagsFile()));
    }

private:
    static QString removeSorvane()
    {
        return text("   0 Remove: ") +
               joinPath(System::getProgramDataPath(text("NVX 2017")), text("Sorvane"));
    }

    // The lines from the first about the language on, without those of external programs.
    QStringList languageLines() const
    {
        QStringList lines = m_fixture->lines();
        lines.removeIf([](const QString &line) {
            return line.startsWith(text("   0 Command:cmd.exe")) || line == text("   0  output:");
        });
        for (qsizetype i = 0; i < lines.size(); ++i) {
            if (lines.at(i).startsWith(text("   2 ")))
                return lines.mid(i);
        }
        return QStringList();
    }

    std::unique_ptr<EngineFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_language)
#include "tst_language.moc"
