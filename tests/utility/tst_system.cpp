#include "nvx_util/languages.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>

#include <memory>

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
        QTest::newRow("a folder and a file")
            << native("/NVX") << QStringLiteral("a.txt") << native("/NVX/a.txt");
        QTest::newRow("slashes become native")
            << native("/NVX") << QStringLiteral("en-US/Examples.7z") << native("/NVX/en-US/Examples.7z");
        QTest::newRow("a root keeps its one separator") << native("/") << QStringLiteral("a") << native("/a");
        QTest::newRow("no folder") << QString() << QStringLiteral("a") << native("/a");
    }

    void pathsAreJoinedByOneSeparator()
    {
        QFETCH(QString, folder);
        QFETCH(QString, relative);
        QTEST(joinPath(folder, relative), "expected");
    }

    void theProductsFoldersLieWhereTheProductLooksForThem()
    {
        const QString release = native("Velmora/NVX 2017");
        QCOMPARE(System::getUserDataPath(), m_machine->path(QStringLiteral("AppData/")) + release);
        QCOMPARE(System::getProgramDataPath(QStringLiteral("NVX 2017")),
                 m_machine->path(QStringLiteral("ProgramData/")) + release);
        QCOMPARE(System::getFlagsDirPath(), System::getProgramDataPath(QStringLiteral("NVX 2017")));
        QCOMPARE(System::getTutorialsDirPath(),
                 m_machine->path(QStringLiteral("Public/Documents/")) + release + native("/Tutorials"));
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

    void aPathIsMadeWithItsParents()
    {
        const QString path = m_machine->path(QStringLiteral("a/ü/日本"));
        QVERIFY(System::makePath(path));
        QVERIFY(QDir(path).exists());
        QVERIFY(System::makePath(path));
    }

    void aPathThroughAFileCannotBeMade()
    {
        writeFile(m_machine->path(QStringLiteral("file")));
        QVERIFY(!System::makePath(m_machine->path(QStringLiteral("file/below"))));
    }

    void validLocalesAreThoseOfTheTableInItsOrder()
    {
        QStringList expected;
        for (const Nvx::Util::Language &language : Nvx::Util::languages)
            expected.append(language.locale);
        QCOMPARE(System::validLocales(), expected);
    }

    void theLanguageIsRememberedForTheProduct()
    {
        System::setLocale(QStringLiteral("ja-JP"));
        QCOMPARE(System::getLocale(), QStringLiteral("ja-JP"));
        QCOMPARE(RegistryKey(QStringLiteral("HKEY_CURRENT_USER\\Software\\Velmora\\NVX\\17.2"))
                     .text(QStringLiteral("Locale")),
                 std::optional<QString>(QStringLiteral("ja-JP")));
    }

    void withoutARememberedLanguageTheSystemsIsTaken()
    {
        QCOMPARE(System::getLocale(), Nvx::Util::supportedSystemLocale());
        QVERIFY(System::validLocales().contains(System::getLocale()));
    }

    void theSystemsLocaleIsTakenWhenTheProductSpeaksIt_data()
    {
        QTest::addColumn<QString>("systemName");
        QTest::addColumn<QString>("locale");
        QTest::newRow("German") << QStringLiteral("de_DE") << QStringLiteral("de-DE");
        QTest::newRow("Chinese of Taiwan") << QStringLiteral("zh_TW") << QStringLiteral("zh-TW");
        QTest::newRow("written with a hyphen already") << QStringLiteral("ja-JP") << QStringLiteral("ja-JP");
        QTest::newRow("another country's German") << QStringLiteral("de_AT") << QStringLiteral("en-US");
        QTest::newRow("a language that is not spoken") << QStringLiteral("sv_SE") << QStringLiteral("en-US");
        QTest::newRow("none") << QStringLiteral("C") << QStringLiteral("en-US");
    }

    void theSystemsLocaleIsTakenWhenTheProductSpeaksIt()
    {
        QFETCH(QString, systemName);
        QTEST(Nvx::Util::supportedLocale(systemName), "locale");
    }

    void variablesOfTheEnvironmentAreReadAndMissingOnesAreEmpty()
    {
        m_machine->setVariable("NVX_TEST_VARIABLE", QStringLiteral("a b"));
        QCOMPARE(System::getEnv(QStringLiteral("NVX_TEST_VARIABLE")), QStringLiteral("a b"));
        m_machine->unsetVariable("NVX_TEST_VARIABLE");
        QCOMPARE(System::getEnv(QStringLiteral("NVX_TEST_VARIABLE")), QString());
    }

    void theProgramFilesFoldersAreReadFromTheRegistry()
    {
        RegistryKey windows(
            QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion"));
        const auto own = QStringLiteral("ProgramFilesDir");
        const auto thirtyTwoBit = QStringLiteral("ProgramFilesDir (x86)");
        QVERIFY(windows.setText(own, QStringLiteral("C:\\Program Files")));
        QVERIFY(windows.setText(thirtyTwoBit, QStringLiteral("C:\\Program Files (x86)")));
        QCOMPARE(System::getProgramFilesPathFromRegistry(false), QStringLiteral("C:\\Program Files"));
        QCOMPARE(System::getProgramFilesPathFromRegistry(true), QStringLiteral("C:\\Program Files (x86)"));
    }

private:
    std::unique_ptr<TestMachine> m_machine;
};

NVX_GUILESS_TEST(tst_system)
#include "tst_system.moc"
