#include "help/context_help.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "support/processor_time.h"
#include "support/recording_machine.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>

#include <memory>

using Nvx::Util::RegistryKey;
using Nvx::Util::System;
using namespace Nvx::Help;
using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray plainSettings = "<help_ids><help_url/></help_ids>";
const auto browser = u"C:\\Browser\\browser.exe"_s;

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
        System::setLocale(u"en-US"_s);
        setBrowser(browser);
    }

    void cleanup()
    {
        browserKey().removeValue(QString());
        m_help.reset();
        m_machine.reset();
        m_folders.reset();
    }

    void withoutSettingsATopicsAddressIsTheId()
    {
        QVERIFY(m_help->initialise());
        QCOMPARE(m_help->topicAddress(u"mesh"_s), u"mesh"_s);
    }

    void aFolderWithTheNameOfTheSettingsIsIgnored()
    {
        QVERIFY(QDir().mkpath(settingsFile()));
        QVERIFY(m_help->initialise());
        QCOMPARE(m_help->topicAddress(u"mesh"_s), u"mesh"_s);
    }

    void invalidSettingsChangeNothing_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("malformed") << QByteArray("<help_ids><help_url online_prefix='x'>");
        QTest::newRow("without the element") << QByteArray("<help_ids/>");
    }

    void invalidSettingsChangeNothing()
    {
        QFETCH(QByteArray, document);
        writeFile(settingsFile(), document);
        QVERIFY(!m_help->initialise());
        QCOMPARE(m_help->topicAddress(u"mesh"_s), u"mesh"_s);

        writeFile(settingsFile(), plainSettings);
        QVERIFY(m_help->initialise());
        const QString before = m_help->topicAddress(u"mesh"_s);
        writeFile(settingsFile(), document);
        QVERIFY(!m_help->initialise());
        QCOMPARE(m_help->topicAddress(u"mesh"_s), before);
    }

    void settingsOf100MegabytesAreNotRead()
    {
        QByteArray document = "<a><help_url online_prefix='x'/>";
        document += QByteArray(100'000'000, ' ') + "</a>";
        writeFile(settingsFile(), document);
        const auto before = processorTime();
        QVERIFY(!m_help->initialise());
        QVERIFY2(processorTime() - before < std::chrono::milliseconds(200),
                 "reading the file would delay the first page");
        QCOMPARE(m_help->topicAddress(u"mesh"_s), u"mesh"_s);
    }

    void settingsAfterManyIdsAreRead()
    {
        QByteArray document = "<a>";
        while (document.size() < 1'000'000)
            document += "<help id='1234'>topic</help>\n";
        writeFile(settingsFile(), document + "<help_url online_prefix='x'/></a>");
        QVERIFY(m_help->initialise());
        QVERIFY(m_help->topicAddress(u"mesh"_s).startsWith(u'x'));
    }

    void onlineHelpIsInTheLanguageOfTheInterface_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("language");
        QTest::newRow("German") << u"de-DE"_s << u"DEU"_s;
        QTest::newRow("Japanese") << u"ja-JP"_s << u"JPN"_s;
        QTest::newRow("French gets English") << u"fr-FR"_s << u"ENU"_s;
    }

    void onlineHelpIsInTheLanguageOfTheInterface()
    {
        QFETCH(QString, locale);
        QFETCH(QString, language);
        System::setLocale(locale);
        writeFile(settingsFile(), plainSettings);
        QVERIFY(m_help->initialise());
        const QString wiki = u"http://help.velmora.example/wiki/KORVA/2017/%1/"_s.arg(language);
        QCOMPARE(m_help->topicAddress(u"mesh"_s), wiki + u"?contextId=mesh"_s);
        QCOMPARE(m_help->searchAddress(u"heat sink"_s), wiki + u"?query=heat sink"_s);
    }

    void theInstalledHelpIsInTheSharedFolder()
    {
        const QString help = sharedFolder() + u"/NVXHelp/"_s;
        QVERIFY(QDir().mkpath(help + u"contexthelp"_s));
        writeFile(settingsFile(), plainSettings);
        m_help->setOffline(true);
        QVERIFY(m_help->initialise());
        QCOMPARE(m_help->topicAddress(u"mesh"_s), u"file:///"_s + help + u"contexthelp/mesh.htm"_s);
        QCOMPARE(m_help->searchAddress(u"heat sink"_s),
                 u"file:///"_s + help + u"index.html?query=heat sink"_s);
    }

    void aMissingInstalledHelpGivesTheDefaultPage_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::newRow("with settings") << plainSettings;
        QTest::newRow("with invalid settings") << QByteArray("<");
        QTest::newRow("without settings") << QByteArray();
    }

    void aMissingInstalledHelpGivesTheDefaultPage()
    {
        QFETCH(QByteArray, document);
        if (!document.isNull())
            writeFile(settingsFile(), document);
        m_help->setOffline(true);
        m_help->initialise();
        const QString page = m_folders->installDir() + u"/NVXDefaultHelp.html"_s;
        QCOMPARE(m_help->topicAddress(u"mesh"_s), page);
        QCOMPARE(m_help->searchAddress(u"heat sink"_s), page);

        m_help->showTopic(u"mesh"_s);
        QCOMPARE(m_machine->starts.size(), 1);
        const QString opened = m_machine->starts.first().arguments.value(0);
        QVERIFY2(opened.startsWith("file:///"_L1), qPrintable(opened));
        QVERIFY2(opened.endsWith("/NVX/NVXDefaultHelp.html"_L1), qPrintable(opened));
    }

    void onlineHelpNeverUsesTheDefaultPage()
    {
        m_help->setOffline(true);
        m_help->initialise();
        m_help->setOffline(false);
        QVERIFY(m_help->initialise());
        QCOMPARE(m_help->topicAddress(u"mesh"_s), u"mesh"_s);
    }

    void theMarkChangesNoAddress()
    {
        writeFile(settingsFile(), plainSettings);
        m_help->initialise();
        const QString before = m_help->topicAddress(u"mesh"_s);
        m_help->setMarked(true);
        QVERIFY(m_help->isMarked());
        m_help->initialise();
        QCOMPARE(m_help->topicAddress(u"mesh"_s), before);
    }

    void aTopicIsShownInTheBrowser()
    {
        writeFile(settingsFile(), plainSettings);
        m_help->initialise();
        m_help->showTopic(u"mesh"_s);
        QCOMPARE(m_machine->starts.size(), 1);
        QCOMPARE(m_machine->starts.first().program, browser);
        QCOMPARE(m_machine->starts.first().arguments,
                 QStringList{u"http://help.velmora.example/wiki/KORVA/2017/ENU/?contextId=mesh"_s});
        QCOMPARE(m_machine->starts.first().waitMs, 0);
    }

    void theTextOfASearchIsNotEncodedInItsAddress_data()
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
        // Characters that an address cannot contain are encoded for the browser.
        row("heat \"sink\"", "heat%20%22sink%22");
        row("50%", "50%25");
        row("a\\b", "a%5Cb");
    }

    void theTextOfASearchIsNotEncodedInItsAddress()
    {
        QFETCH(QString, searched);
        QFETCH(QString, opened);
        writeFile(settingsFile(), plainSettings);
        m_help->initialise();
        const auto wiki = u"http://help.velmora.example/wiki/KORVA/2017/ENU/?query="_s;
        QCOMPARE(m_help->searchAddress(searched), wiki + searched);
        m_help->showSearch(searched);
        QCOMPARE(m_machine->starts.size(), 1);
        QCOMPARE(m_machine->starts.first().arguments, QStringList{wiki + opened});

        const QString help = sharedFolder() + u"/NVXHelp/"_s;
        QVERIFY(QDir().mkpath(help + u"contexthelp"_s));
        m_help->setOffline(true);
        m_help->initialise();
        m_help->showSearch(searched);
        QCOMPARE(m_machine->starts.size(), 2);
        const QString argument = m_machine->starts.last().arguments.value(0);
        QVERIFY2(argument.endsWith(u"/NVXHelp/index.html?query="_s + opened), qPrintable(argument));
    }

    void waitingForTheBrowserEndsAfterThirtySeconds()
    {
        m_help->openAddress(u"http://host/"_s, HelpWait::UntilClosed);
        QCOMPARE(m_machine->starts.size(), 1);
        QCOMPARE(m_machine->starts.first().waitMs, 30000);
    }

    void theAddressReplacesThePlaceholderOfTheBrowsersCommand()
    {
        setBrowser(u"\"%NVX_TEST_FOLDER%\\b.exe\" -url \"%1\""_s);
        m_folders->setVariable("NVX_TEST_FOLDER", u"C:\\My Browser"_s);
        m_help->openAddress(u"http://host/\" -evil \"x & calc"_s);
        QCOMPARE(m_machine->starts.size(), 1);
        QCOMPARE(m_machine->starts.first().program, u"C:\\My Browser\\b.exe"_s);
        QCOMPARE(m_machine->starts.first().arguments,
                 (QStringList{u"-url"_s, u"host/%22%20-evil%20%22x%20&%20calc"_s}));
    }

    void aVariableThatIsNotSetStaysAsItIsInTheBrowsersCommand()
    {
        setBrowser(u"\"%NVX_TEST_FOLDER%\\b.exe\" \"%1\""_s);
        m_folders->unsetVariable("NVX_TEST_FOLDER");
        m_help->openAddress(u"http://host/"_s);
        QCOMPARE(m_machine->starts.size(), 1);
        QCOMPARE(m_machine->starts.first().program, u"%NVX_TEST_FOLDER%\\b.exe"_s);
    }

    void noBrowserIsStartedForAnInvalidAddress()
    {
        m_help->openAddress(QString());
        m_help->openAddress(u"http://host:port/"_s);
        QVERIFY(m_machine->starts.isEmpty());
    }

    void noProgramIsStartedWithoutABrowser()
    {
        browserKey().removeValue(QString());
        m_help->openAddress(u"http://host/"_s);
        QVERIFY(m_machine->starts.isEmpty());
    }

    void anEmptyHelpIdFileIsWrittenForTheUser()
    {
        const QString written = QDir::toNativeSeparators(System::getUserDataPath() + u"/NVXHelpIds.xml"_s);
        QVERIFY(writeEmptyHelpIds());
        QVERIFY(readFile(written).contains("<help_ids/>"));
        writeFile(written, "old");
        QVERIFY(writeEmptyHelpIds());
        QVERIFY(!readFile(written).contains("old"));
    }

    void aHelpIdFileThatCannotBeWrittenReturnsFalse_data()
    {
        QTest::addColumn<bool>("hasFolder");
        QTest::newRow("a file with the folder's name") << false;
        QTest::newRow("a folder with the file's name") << true;
    }

    void aHelpIdFileThatCannotBeWrittenReturnsFalse()
    {
        QFETCH(const bool, hasFolder);
        if (hasFolder)
            QVERIFY(QDir().mkpath(System::getUserDataPath() + u"/NVXHelpIds.xml"_s));
        else
            writeFile(System::getUserDataPath());
        QVERIFY(!writeEmptyHelpIds());
    }

private:
    static RegistryKey browserKey()
    {
        return RegistryKey(u"HKEY_CLASSES_ROOT\\http\\shell\\open\\command"_s);
    }

    static void setBrowser(const QString &commandLine)
    {
        QVERIFY(browserKey().setText(QString(), commandLine));
    }

    static QString sharedFolder() { return System::getProgramDataPath(u"NVX 2017"_s); }

    QString settingsFile() const { return m_folders->installDir() + QDir::separator() + u"NVXHelpIds.xml"_s; }

    std::unique_ptr<TestMachine> m_folders;
    std::unique_ptr<RecordingMachine> m_machine;
    std::unique_ptr<ContextHelp> m_help;
};

NVX_GUILESS_TEST(tst_context_help)
#include "tst_context_help.moc"
