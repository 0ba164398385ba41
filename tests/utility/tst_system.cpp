#include "nvx_util/languages.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;
using Nvx::Util::joinPath;
using Nvx::Util::RegistryKey;
using Nvx::Util::System;

namespace {

QString native(const char *path)
{
    return QDir::toNativeSeparators(QString::fromUtf8(path));
}

} // namespace

class tst_system : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_machine = std::make_unique<TestMachine>(); }
    void cleanup() { m_machine.reset(); }

    void pathsAreJoinedByOneSeparator_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("relative");
        QTest::addColumn<QString>("expected");
        QTest::newRow("a folder and a file") << native("/NVX") << u"a.txt"_s << native("/NVX/a.txt");
        QTest::newRow("slashes become native")
            << native("/NVX") << u"en-US/Examples.7z"_s << native("/NVX/en-US/Examples.7z");
        QTest::newRow("a root already ends with a separator") << native("/") << u"a"_s << native("/a");
        QTest::newRow("no folder") << QString() << u"a"_s << native("/a");
    }

    void pathsAreJoinedByOneSeparator()
    {
        QFETCH(QString, folder);
        QFETCH(QString, relative);
        QTEST(joinPath(folder, relative), "expected");
    }

    void theProductsFoldersAreBelowThoseOfTheMachine()
    {
        const QString release = native("Velmora/NVX 2017");
        QCOMPARE(System::getUserDataPath(), m_machine->path(u"AppData/"_s) + release);
        QCOMPARE(System::getProgramDataPath(u"NVX 2017"_s), m_machine->path(u"ProgramData/"_s) + release);
        QCOMPARE(System::getFlagsDirPath(), System::getProgramDataPath(u"NVX 2017"_s));
        QCOMPARE(System::getTutorialsDirPath(),
                 m_machine->path(u"Public/Documents/"_s) + release + native("/Tutorials"));
    }

    void askingForAFolderDoesNotCreateIt()
    {
        QVERIFY(!QDir(System::getUserDataPath()).exists());
        QVERIFY(!QDir(System::getTutorialsDirPath()).exists());
    }

    void theExecutableFolderIsTheOneOfThisProgram()
    {
        const QString folder = System::getCurrentExePath();
        QCOMPARE(folder, QDir::toNativeSeparators(QCoreApplication::applicationDirPath()));
        QVERIFY(!folder.endsWith(QDir::separator()));
    }

    void theWorkingFolderFollowsTheProcess()
    {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_machine->installDir()));
        const QString working = System::getWorkingDirPath();
        QDir::setCurrent(before);
        QCOMPARE(QDir(working).canonicalPath(), QDir(m_machine->installDir()).canonicalPath());
    }

    void aPathIsCreatedWithItsParents()
    {
        const QString path = m_machine->path(u"a/ü/日本"_s);
        QVERIFY(System::makePath(path));
        QVERIFY(QDir(path).exists());
        QVERIFY(System::makePath(path));
    }

    void aPathThroughAFileCannotBeCreated()
    {
        writeFile(m_machine->path(u"file"_s));
        QVERIFY(!System::makePath(m_machine->path(u"file/below"_s)));
    }

    void validLocalesAreThoseOfTheTableInItsOrder()
    {
        QStringList expected;
        for (const Nvx::Util::Language &language : Nvx::Util::languages)
            expected.append(language.locale);
        QCOMPARE(System::validLocales(), expected);
    }

    void theLanguageIsStoredForTheProduct()
    {
        System::setLocale(u"ja-JP"_s);
        QCOMPARE(System::getLocale(), u"ja-JP"_s);
        QCOMPARE(RegistryKey(u"HKEY_CURRENT_USER\\Software\\Velmora\\NVX\\17.2"_s).text(u"Locale"_s),
                 std::optional<QString>(u"ja-JP"_s));
    }

    void withoutAStoredLanguageTheSystemsIsUsed()
    {
        QCOMPARE(System::getLocale(), Nvx::Util::supportedSystemLocale());
        QVERIFY(System::validLocales().contains(System::getLocale()));
    }

    void aStoredLanguageIsUsedIfItIsALocalesName_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("used");
        QTest::newRow("as the option has it") << u"de-de"_s << true;
        QTest::newRow("a language alone") << u"de"_s << true;
        QTest::newRow("a folder above") << u".."_s << false;
        QTest::newRow("a path") << u"..\\..\\Users\\Public"_s << false;
        QTest::newRow("a path with slashes") << u"../de-DE"_s << false;
        QTest::newRow("a share") << u"\\\\host\\share"_s << false;
        QTest::newRow("a drive") << u"D:"_s << false;
        QTest::newRow("a letter outside ASCII") << u"dé-DE"_s << false;
        QTest::newRow("a blank") << u" "_s << false;
    }

    void aStoredLanguageIsUsedIfItIsALocalesName()
    {
        QFETCH(const QString, stored);
        QFETCH(const bool, used);
        System::setLocale(stored);
        QCOMPARE(System::getLocale(), used ? stored : Nvx::Util::supportedSystemLocale());
    }

    void theSystemsLocaleIsUsedIfItIsSupported_data()
    {
        QTest::addColumn<QString>("systemName");
        QTest::addColumn<QString>("locale");
        QTest::newRow("German") << u"de_DE"_s << u"de-DE"_s;
        QTest::newRow("Chinese in Taiwan") << u"zh_TW"_s << u"zh-TW"_s;
        QTest::newRow("already with a hyphen") << u"ja-JP"_s << u"ja-JP"_s;
        QTest::newRow("German of another country") << u"de_AT"_s << u"en-US"_s;
        QTest::newRow("an unsupported language") << u"sv_SE"_s << u"en-US"_s;
        QTest::newRow("none") << u"C"_s << u"en-US"_s;
    }

    void theSystemsLocaleIsUsedIfItIsSupported()
    {
        QFETCH(QString, systemName);
        QTEST(Nvx::Util::supportedLocale(systemName), "locale");
    }

    void variablesOfTheEnvironmentAreReadAndMissingOnesAreEmpty()
    {
        m_machine->setVariable("NVX_TEST_VARIABLE", u"a b"_s);
        QCOMPARE(System::getEnv(u"NVX_TEST_VARIABLE"_s), u"a b"_s);
        m_machine->unsetVariable("NVX_TEST_VARIABLE");
        QCOMPARE(System::getEnv(u"NVX_TEST_VARIABLE"_s), QString());
    }

    void theProgramFilesFoldersAreReadFromTheRegistry()
    {
        RegistryKey windows(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion"_s);
        const auto own = u"ProgramFilesDir"_s;
        const auto thirtyTwoBit = u"ProgramFilesDir (x86)"_s;
        QVERIFY(windows.setText(own, u"C:\\Program Files"_s));
        QVERIFY(windows.setText(thirtyTwoBit, u"C:\\Program Files (x86)"_s));
        QCOMPARE(System::getProgramFilesPathFromRegistry(false), u"C:\\Program Files"_s);
        QCOMPARE(System::getProgramFilesPathFromRegistry(true), u"C:\\Program Files (x86)"_s);
    }

private:
    std::unique_ptr<TestMachine> m_machine;
};

NVX_GUILESS_TEST(tst_system)
#include "tst_system.moc"
