#include "cad/tamsel/tamsel_launcher.h"
#include "cad/tamsel/tamsel_manifest.h"
#include "launcher_fixture.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using Nvx::Util::joinPath;

class tst_tamsel_launcher : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<LauncherFixture>();
        QVERIFY(QDir().mkpath(m_fixture->installed("Launchers/Tamsel")));
    }
    void cleanup() { m_fixture.reset(); }

    void theManifestIsTheTextAsItStands()
    {
        QCOMPARE(tamselManifest(text("C:\\Prog & Co\\NVX")),
                 QByteArray("<?xml version=\"1.0\" encoding=\"utf-16\" standalone=\"no\"?>\n"
                            "<TamselAddIns>\n"
                            "<AddIn Type=\"Application\">\n"
                            "<Name>NVX 2017</Name>\n"
                            "<Assembly>C:\\Prog & Co\\NVX\\Launchers\\Tamsel\\NVX_2017_Tamsel2017.dll"
                            "</Assembly>\n"
                            "<AddInId>D678F341-A94D-43BB-AD6F-8E0E9DABA31A</AddInId>\n"
                            "<VendorId>Velmora, Inc.</VendorId>\n"
                            "<FullClassName>Kelvane_2017.NvxApplication</FullClassName>\n"
                            "</AddIn>\n"
                            "</TamselAddIns>\n"));
    }

    void theManifestIsCutToAsManyBytesAsItHasCharacters_data()
    {
        QTest::addColumn<QString>("installDir");
        QTest::addColumn<int>("cut");
        QTest::newRow("all of ASCII") << text("C:\\NVX") << 0;
        QTest::newRow("two umlauts") << text("C:\\Größe") << 2;
        QTest::newRow("two characters of three bytes") << text("C:\\日本") << 4;
        QTest::newRow("a character of two units and four bytes") << text("C:\\𝄞") << 2;
        QTest::newRow("cut within a character of another language")
            << text("C:\\") + QString(150, QChar(0x65E5)) << 300;
    }

    void theManifestIsCutToAsManyBytesAsItHasCharacters()
    {
        QFETCH(const QString, installDir);
        QFETCH(const int, cut);
        QByteArray whole = tamselManifest(text("C:\\NVX"));
        whole.replace("C:\\NVX", installDir.toUtf8());
        QCOMPARE(tamselManifest(installDir), whole.chopped(cut));
    }

    void aPathThatLooksLikeAPlaceholderStandsAsItIs()
    {
        QVERIFY(tamselManifest(text("C:\\%1%2")).contains("<Assembly>C:\\%1%2\\Launchers"));
    }

    void theFoldersAreThoseOfAllUsers()
    {
        QCOMPARE(SharedFolders().applicationDataOfOld,
                 text("C:\\Documents and Settings\\All Users\\Application Data"));
        QCOMPARE(SharedFolders().applicationData, text("C:\\Users\\All Users"));
    }

    void anAddinIsWrittenAndCopied()
    {
        makeSecondTarget(2017);
        addin(RunMode::Install, 2017);
        const QByteArray manifest = tamselManifest(m_fixture->state.installDir);
        QCOMPARE(readFile(own()), manifest);
        QCOMPARE(readFile(first(2017)), manifest);
        QCOMPARE(readFile(second(2017)), manifest);
        QCOMPARE(m_fixture->takeLines(),
                 removalLines(2017) + QStringList({text("0 Copying:%1 to: %2").arg(own(), first(2017)),
                                                   text("0 Copying:%1 to: %2").arg(own(), second(2017))}));
    }

    void theSecondTargetsFolderIsNotMade()
    {
        addin(RunMode::Install, 2016);
        QVERIFY(QFile::exists(first(2016)));
        QVERIFY(!QFile::exists(m_fixture->folders.applicationData));
    }

    void aRemovalTakesAllThree_data() { addRemovingModes(); }

    void aRemovalTakesAllThree()
    {
        QFETCH(const RunMode, mode);
        makeSecondTarget(2017);
        addin(RunMode::Install, 2017);
        m_fixture->takeLines();
        addin(mode, 2017);
        for (const QString &path : {first(2017), second(2017), own()})
            QVERIFY(!QFile::exists(path));
        QCOMPARE(m_fixture->takeLines(), removalLines(2017));
    }

    void aSecondInstallBringsTheNewManifest()
    {
        makeSecondTarget(2017);
        for (const QString &path : {first(2017), second(2017), own()}) {
            writeFile(path, "old");
            QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
        }
        addin(RunMode::Install, 2017);
        const QByteArray manifest = tamselManifest(m_fixture->state.installDir);
        for (const QString &path : {first(2017), second(2017), own()})
            QCOMPARE(readFile(path), manifest);
    }

    void aManifestThatCannotBeOpenedIsLoggedWithTheFilesError()
    {
        QVERIFY(QDir().mkpath(own()));
        QFile file(own());
        QVERIFY(!file.open(QIODevice::WriteOnly));
        addin(RunMode::Install, 2017);
        QCOMPARE(
            m_fixture->takeLines(),
            removalLines(2017) +
                QStringList({text("%1 Open failed:%2").arg(QString::number(file.error()), file.errorString()),
                             text("0 Copying:%1 to: %2").arg(own(), first(2017)),
                             text("0 Copying:%1 to: %2").arg(own(), second(2017))}));
        QVERIFY(file.error() != QFileDevice::NoError);
        QVERIFY(!QFile::exists(first(2017)));
    }

    void eachTickedEditionIsHandledInItsOrder()
    {
        for (const auto launcher : {Launcher::Tamsel, Launcher::TamselArchitecture, Launcher::TamselMep})
            m_fixture->tick(launcher);
        find(TamselEdition::Plain, 6);
        find(TamselEdition::Plain, 5);
        find(TamselEdition::Mep, 8);
        find(TamselEdition::Architecture, 7);
        step(RunMode::Uninstall);
        QCOMPARE(m_fixture->takeLines(),
                 QStringList{text("progress 0 Tamsel")} + removalLines(2015) + removalLines(2016) +
                     QStringList{text("progress 0 Tamsel Architecture")} + removalLines(2017) +
                     QStringList{text("progress 0 Tamsel MEP")} + removalLines(2018));
    }

    void eachYearHasItsManifestAndAllNameTheSameLibrary()
    {
        m_fixture->tick(Launcher::Tamsel);
        find(TamselEdition::Plain, 6);
        find(TamselEdition::Plain, 7);
        step(RunMode::Install);
        for (const int year : {2016, 2017})
            QVERIFY(readFile(first(year)).contains("NVX_2017_Tamsel2017.dll"));
        QVERIFY(!QFile::exists(first(2015)));
        QVERIFY(!QFile::exists(first(2018)));
    }

    void anEditionWithoutItsBoxIsLeftAlone()
    {
        m_fixture->tick(Launcher::TamselArchitecture);
        find(TamselEdition::Plain, 6);
        find(TamselEdition::Architecture, 7);
        step(RunMode::Install);
        QVERIFY(!QFile::exists(first(2016)));
        QVERIFY(QFile::exists(first(2017)));
    }

    void aYearOfTwoEditionsIsHandledTwice()
    {
        m_fixture->tick(Launcher::Tamsel);
        m_fixture->tick(Launcher::TamselMep);
        find(TamselEdition::Plain, 7);
        find(TamselEdition::Mep, 7);
        step(RunMode::Install);
        QCOMPARE(m_fixture->takeLines().count(text("0 Tamsel Addin")), 2);
        QCOMPARE(readFile(first(2017)), tamselManifest(m_fixture->state.installDir));
    }

    void aFolderThatCannotBeMadeKeepsNothingElseFromBeingWritten()
    {
        const QString inTheWay = m_fixture->folders.applicationDataOfOld;
        writeFile(inTheWay, "a file in the folder's place");
        makeSecondTarget(2017);
        addin(RunMode::Install, 2017);
        QVERIFY(QFileInfo(inTheWay).isFile());
        QCOMPARE(readFile(own()), tamselManifest(m_fixture->state.installDir));
        QCOMPARE(readFile(second(2017)), readFile(own()));
    }

    void aFolderOfAnotherSystemIsNotMadeHere()
    {
        m_fixture->folders.applicationDataOfOld = text("NVX test, not a full path");
        addin(RunMode::Install, 2017);
        QVERIFY(!QFile::exists(m_fixture->folders.applicationDataOfOld));
    }

private:
    void addin(RunMode mode, int year)
    {
        installTamselAddin(m_fixture->context(), m_fixture->folders, mode, year);
    }

    void step(RunMode mode)
    {
        installTamselLauncher(m_fixture->context(), m_fixture->packages, m_fixture->boxes, m_fixture->folders,
                              mode);
    }

    void find(TamselEdition edition, size_t version)
    {
        m_fixture->packages.tamselInstallDirs.at(static_cast<size_t>(edition)).at(version) =
            text("C:\\Tamsel");
    }

    QString own() const { return m_fixture->installed("Launchers/Tamsel/NVX_2017.Addin"); }
    QString first(int year) const { return target(m_fixture->folders.applicationDataOfOld, year); }
    QString second(int year) const { return target(m_fixture->folders.applicationData, year); }

    static QString target(const QString &root, int year)
    {
        return joinPath(root, text("Velmora/Tamsel/Addins/%1/NVX_2017.Addin").arg(year));
    }

    void makeSecondTarget(int year) const { QVERIFY(QDir().mkpath(QFileInfo(second(year)).path())); }

    QStringList removalLines(int year) const
    {
        return {text("0 Tamsel Addin"), text("0 Removing:") + first(year), text("0 Removing:") + second(year),
                text("0 Removing:") + own()};
    }

    std::unique_ptr<LauncherFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_tamsel_launcher)
#include "tst_tamsel_launcher.moc"
