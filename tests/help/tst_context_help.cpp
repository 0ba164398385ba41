#include "help/context_help.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "support/recording_machine.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QElapsedTimer>
#include <QTest>

#include <memory>

using Nvx::Util::RegistryKey;
using Nvx::Util::System;

namespace {

const QByteArray plainSettings = "<help_ids><help_url/></help_ids>";
const auto browser = QStringLiteral("C:\\Browser\\browser.exe");

} // namespace

class tst_context_help : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folders = std::make_unique<TestMachine>();
        m_machine = std::make_unique<RecordingMachine>();
        m_machine->ownFolder = m_folders->installDir();
        m_help = std::make_unique<ContextHelp>(*m_machine);
        System::setLocale(QStringLiteral("en-US"));
        setBrowser(browser);
    }

    void cleanup()
    {
        browserKey().removeValue(QString());
        m_help.reset();
        m_machine.reset();
        m_folders.reset();
    }

    void withoutSettingsATopicIsTheBareId()
    {
        QVERIFY(m_help->initialise());
        QCOMPARE(m_help->topicAddress(QStringLiteral("mesh")), QStringLiteral("mesh"));
    }

    void aFolderInPlaceOfTheSettingsIsNone()
    {
        QVERIFY(QDir().mkpath(settingsFile()));
        QVERIFY(m_help->initialise());
        QCOMPARE(m_help->topicAddress(QStringLiteral("mesh")), QStringLiteral("mesh"));
    }

    void brokenSettingsLeaveWhatWasThere_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("malformed") << QByteArray("<help_ids><help_url online_prefix='x'>");
        QTest::newRow("without the element") << QByteArray("<help_ids/>");
    }

    void brokenSettingsLeaveWhatWasThere()
    {
        QFETCH(QByteArray, document);
        writeFile(settingsFile(), document);
        QVERIFY(!m_help->initialise());
        QCOMPARE(m_help->topicAddress(QStringLiteral("mesh")), QStringLiteral("mesh"));

        writeFile(settingsFile(), plainSettings);
        QVERIFY(m_help->initialise());
        const QString before = m_help->topicAddress(QStringLiteral("mesh"));
        writeFile(settingsFile(), document);
        QVERIFY(!m_help->initialise());
        QCOMPARE(m_help->topicAddress(QStringLiteral("mesh")), before);
    }

    void settingsOf100MegabytesAreNotRead()
    {
        QByteArray document = "<a><help_url online_prefix='x'/>";
        document += QByteArray(100'000'000, ' ') + "</a>";
        writeFile(settingsFile(), document);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(!m_help->initialise());
        QVERIFY2(timer.elapsed() < 200, "the first page would have to wait");
        QCOMPARE(m_help->topicAddress(QStringLiteral("mesh")), QStringLiteral("mesh"));
    }

    void settingsAmongManyIdsAreRead()
    {
        QByteArray document = "<a>";
        while (document.size() < 1'000'000)
            document += "<help id='1234'>topic</help>\n";
        writeFile(settingsFile(), document + "<help_url online_prefix='x'/></a>");
        QVERIFY(m_help->initialise());
        QVERIFY(m_help->topicAddress(QStringLiteral("mesh")).startsWith(u'x'));
    }

    void onlineHelpIsInTheLanguageOfTheInterface_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("language");
        QTest::newRow("German") << QStringLiteral("de-DE") << QStringLiteral("DEU");
        QTest::newRow("Japanese") << QStringLiteral("ja-JP") << QStringLiteral("JPN");
        QTest::newRow("French reads English") << QStringLiteral("fr-FR") << QStringLiteral("ENU");
    }

    void onlineHelpIsInTheLanguageOfTheInterface()
    {
        QFETCH(QString, locale);
        QFETCH(QString, language);
        System::setLocale(locale);
        writeFile(settingsFile(), plainSettings);
        QVERIFY(m_help->initialise());
        const QString wiki = QStringLiteral("http://help.velmora.example/wiki/KORVA/2017/%1/").arg(language);
        QCOMPARE(m_help->topicAddress(QStringLiteral("mesh")), wiki + QStringLiteral("?contextId=mesh"));
        QCOMPARE(m_help->searchAddress(QStringLiteral("heat sink")),
                 wiki + QStringLiteral("?query=heat sink"));
    }

    void installedHelpLiesInTheSharedFolder()
    {
        const QString help = sharedFolder() + QStringLiteral("/NVXHelp/");
        QVERIFY(QDir().mkpath(help + QStringLiteral("contexthelp")));
        writeFile(settingsFile(), plainSettings);
        m_help->setOffline(true);
        QVERIFY(m_help->initialise());
        QCOMPARE(m_help->topicAddress(QStringLiteral("mesh")),
                 QStringLiteral("file:///") + help + QStringLiteral("contexthelp/mesh.htm"));
        QCOMPARE(m_help->searchAddress(QStringLiteral("heat sink")),
                 QStringLiteral("file:///") + help + QStringLiteral("index.html?query=heat sink"));
    }

    void installedHelpThatIsMissingIsTheDefaultPage_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::newRow("with settings") << plainSettings;
        QTest::newRow("with broken settings") << QByteArray("<");
        QTest::newRow("without settings") << QByteArray();
    }

    void installedHelpThatIsMissingIsTheDefaultPage()
    {
        QFETCH(QByteArray, document);
        if (!document.isNull())
            writeFile(settingsFile(), document);
        m_help->setOffline(true);
        m_help->initialise();
        const QString page = m_folders->installDir() + QStringLiteral("/NVXDefaultHelp.html");
        QCOMPARE(m_help->topicAddress(QStringLiteral("mesh")), page);
        QCOMPARE(m_help->searchAddress(QStringLiteral("heat sink")), page);

        m_help->showTopic(QStringLiteral("mesh"));
        QCOMPARE(m_machine->starts.size(), 1);
        const QString opened = m_machine->starts.first().arguments.value(0);
        QVERIFY2(opened.startsWith(QLatin1String("file:///")), qPrintable(opened));
        QVERIFY2(opened.endsWith(QLatin1String("/NVX/NVXDefaultHelp.html")), qPrintable(opened));
    }

    void onlineHelpNeverNeedsTheDefaultPage()
    {
        m_help->setOffline(true);
        m_help->initialise();
        m_help->setOffline(false);
        QVERIFY(m_help->initialise());
        QCOMPARE(m_help->topicAddress(QStringLiteral("mesh")), QStringLiteral("mesh"));
    }

    void theMarkChangesNoAddress()
    {
        writeFile(settingsFile(), plainSettings);
        m_help->initialise();
        const QString before = m_help->topicAddress(QStringLiteral("mesh"));
        m_help->setMarked(true);
        QVERIFY(m_help->isMarked());
        m_help->initialise();
        QCOMPARE(m_help->topicAddress(QStringLiteral("mesh")), before);
    }

    void aTopicIsShownInTheBrowser()
    {
        writeFile(settingsFile(), plainSettings);
        m_help->initialise();
        m_help->showTopic(QStringLiteral("mesh"));
        QCOMPARE(m_machine->starts.size(), 1);
        QCOMPARE(m_machine->starts.first().program, browser);
        QCOMPARE(
            m_machine->starts.first().arguments,
            QStringList{QStringLiteral("http://help.velmora.example/wiki/KORVA/2017/ENU/?contextId=mesh")});
        QCOMPARE(m_machine->starts.first().waitMs, 0);
    }

    void theTextOfASearchIsPutIntoTheAddressAsItIs_data()
    {
        QTest::addColumn<QString>("searched");
        QTest::addColumn<QString>("opened");
        const auto row = [](const char *searched, const char *opened) {
            QTest::newRow(searched) << QString::fromUtf8(searched) << QString::fromUtf8(opened);
        };
        row("mesh", "mesh");
        row("R&D", "R&D");
        row("C++", "C++");
        row("#3", "#3");
        row("5%20", "5%20");
        row("a=b?c/d", "a=b?c/d");
        // What an address cannot hold is encoded where it is passed to the browser.
        row("heat \"sink\"", "heat%20%22sink%22");
        row("50%", "50%25");
        row("a\\b", "a%5Cb");
    }

    void theTextOfASearchIsPutIntoTheAddressAsItIs()
    {
        QFETCH(QString, searched);
        QFETCH(QString, opened);
        writeFile(settingsFile(), plainSettings);
        m_help->initialise();
        const auto wiki = QStringLiteral("http://help.velmora.example/wiki/KORVA/2017/ENU/?query=");
        QCOMPARE(m_help->searchAddress(searched), wiki + searched);
        m_help->showSearch(searched);
        QCOMPARE(m_machine->starts.size(), 1);
        QCOMPARE(m_machine->starts.first().arguments, QStringList{wiki + opened});

        const QString help = sharedFolder() + QStringLiteral("/NVXHelp/");
        QVERIFY(QDir().mkpath(help + QStringLiteral("contexthelp")));
        m_help->setOffline(true);
        m_help->initialise();
        m_help->showSearch(searched);
        QCOMPARE(m_machine->starts.size(), 2);
        const QString argument = m_machine->starts.last().arguments.value(0);
        QVERIFY2(argument.endsWith(QStringLiteral("/NVXHelp/index.html?query=") + opened),
                 qPrintable(argument));
    }

    void whoWantsToWaitWaitsAtMostThirtySeconds()
    {
        m_help->openAddress(QStringLiteral("http://host/"), HelpWait::UntilClosed);
        QCOMPARE(m_machine->starts.size(), 1);
        QCOMPARE(m_machine->starts.first().waitMs, 30000);
    }

    void theAddressTakesItsPlaceInTheBrowsersCommand()
    {
        setBrowser(QStringLiteral("\"%NVX_TEST_FOLDER%\\b.exe\" -url \"%1\""));
        m_folders->setVariable("NVX_TEST_FOLDER", QStringLiteral("C:\\My Browser"));
        m_help->openAddress(QStringLiteral("http://host/\" -evil \"x & calc"));
        QCOMPARE(m_machine->starts.size(), 1);
        QCOMPARE(m_machine->starts.first().program, QStringLiteral("C:\\My Browser\\b.exe"));
        QCOMPARE(m_machine->starts.first().arguments,
                 (QStringList{QStringLiteral("-url"), QStringLiteral("host/%22%20-evil%20%22x%20&%20calc")}));
    }

    void aVariableThatIsNotSetStaysAsItIsInTheBrowsersCommand()
    {
        setBrowser(QStringLiteral("\"%NVX_TEST_FOLDER%\\b.exe\" \"%1\""));
        m_folders->unsetVariable("NVX_TEST_FOLDER");
        m_help->openAddress(QStringLiteral("http://host/"));
        QCOMPARE(m_machine->starts.size(), 1);
        QCOMPARE(m_machine->starts.first().program, QStringLiteral("%NVX_TEST_FOLDER%\\b.exe"));
    }

    void nothingIsStartedForWhatIsNoAddress()
    {
        m_help->openAddress(QString());
        m_help->openAddress(QStringLiteral("http://host:port/"));
        QVERIFY(m_machine->starts.isEmpty());
    }

    void nothingIsStartedWithoutABrowser()
    {
        browserKey().removeValue(QString());
        m_help->openAddress(QStringLiteral("http://host/"));
        QVERIFY(m_machine->starts.isEmpty());
    }

    void anEmptyFileOfIdsIsWrittenForTheUser()
    {
        const QString written =
            QDir::toNativeSeparators(System::getUserDataPath() + QStringLiteral("/NVXHelpIds.xml"));
        QVERIFY(writeEmptyHelpIds());
        QVERIFY(readFile(written).contains("<help_ids/>"));
        writeFile(written, "old");
        QVERIFY(writeEmptyHelpIds());
        QVERIFY(!readFile(written).contains("old"));
    }

    void anEmptyFileOfIdsThatCannotBeWrittenIsTold_data()
    {
        QTest::addColumn<bool>("hasFolder");
        QTest::newRow("a file in the folder's place") << false;
        QTest::newRow("a folder in the file's place") << true;
    }

    void anEmptyFileOfIdsThatCannotBeWrittenIsTold()
    {
        QFETCH(const bool, hasFolder);
        if (hasFolder)
            QVERIFY(QDir().mkpath(System::getUserDataPath() + QStringLiteral("/NVXHelpIds.xml")));
        else
            writeFile(System::getUserDataPath());
        QVERIFY(!writeEmptyHelpIds());
    }

private:
    static RegistryKey browserKey()
    {
        return RegistryKey(QStringLiteral("HKEY_CLASSES_ROOT\\http\\shell\\open\\command"));
    }

    static void setBrowser(const QString &commandLine)
    {
        QVERIFY(browserKey().setText(QString(), commandLine));
    }

    static QString sharedFolder() { return System::getProgramDataPath(QStringLiteral("NVX 2017")); }

    QString settingsFile() const
    {
        return m_folders->installDir() + QDir::separator() + QStringLiteral("NVXHelpIds.xml");
    }

    std::unique_ptr<TestMachine> m_folders;
    std::unique_ptr<RecordingMachine> m_machine;
    std::unique_ptr<ContextHelp> m_help;
};

NVX_GUILESS_TEST(tst_context_help)
#include "tst_context_help.moc"
