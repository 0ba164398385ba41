#include "cad/cad_systems.h"
#include "cad/tamsel/tamsel.h"
#include "launcher_fixture.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

using namespace Nvx::Cad;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

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

    void theManifestHasTenLines()
    {
        QCOMPARE(tamselManifest(u"C:\\Prog & Co\\NVX"_s),
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

    void theManifestHasAsManyBytesAsTheTextHasCharacters_data()
    {
        QTest::addColumn<QString>("installDir");
        QTest::addColumn<int>("cut");
        QTest::newRow("ASCII only: not cut") << u"C:\\NVX"_s << 0;
        QTest::newRow("two umlauts") << u"C:\\Größe"_s << 2;
        QTest::newRow("two characters of three bytes") << u"C:\\日本"_s << 4;
        QTest::newRow("a surrogate pair of four bytes") << u"C:\\𝄞"_s << 2;
        QTest::newRow("cut within a character") << u"C:\\"_s + QString(150, QChar(0x65E5)) << 300;
    }

    void theManifestHasAsManyBytesAsTheTextHasCharacters()
    {
        QFETCH(const QString, installDir);
        QFETCH(const int, cut);
        QByteArray whole = tamselManifest(u"C:\\NVX"_s);
        whole.replace("C:\\NVX", installDir.toUtf8());
        QCOMPARE(tamselManifest(installDir), whole.chopped(cut));
    }

    void placeholdersInThePathAreNotReplaced()
    {
        QVERIFY(tamselManifest(u"C:\\%1%2"_s).contains("<Assembly>C:\\%1%2\\Launchers"));
    }

    void theDefaultFoldersAreThoseOfAllUsers()
    {
        QCOMPARE(SharedFolders().formerApplicationData,
                 u"C:\\Documents and Settings\\All Users\\Application Data"_s);
        QCOMPARE(SharedFolders().applicationData, u"C:\\Users\\All Users"_s);
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
                 removalLines(2017) + QStringList({u"0 Copying:%1 to: %2"_s.arg(own(), first(2017)),
                                                   u"0 Copying:%1 to: %2"_s.arg(own(), second(2017))}));
    }

    void theSecondTargetsFolderIsNotCreated()
    {
        addin(RunMode::Install, 2016);
        QVERIFY(QFile::exists(first(2016)));
        QVERIFY(!QFile::exists(m_fixture->folders.applicationData));
    }

    void aRemovalDeletesAllThreeFiles_data() { addRemovingModes(); }

    void aRemovalDeletesAllThreeFiles()
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

    void aSecondInstallReplacesTheManifest()
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
        QCOMPARE(m_fixture->takeLines(),
                 removalLines(2017) + QStringList({u"%1 Open failed:%2"_s.arg(QString::number(file.error()),
                                                                              file.errorString()),
                                                   u"0 Copying:%1 to: %2"_s.arg(own(), first(2017)),
                                                   u"0 Copying:%1 to: %2"_s.arg(own(), second(2017))}));
        QVERIFY(file.error() != QFileDevice::NoError);
        QVERIFY(!QFile::exists(first(2017)));
    }

    void checkedEditionsAreConfiguredInTheirOrder()
    {
        for (const auto launcher : {Launcher::Tamsel, Launcher::TamselArchitecture, Launcher::TamselMep})
            m_fixture->check(launcher);
        find(TamselEdition::Plain, 2015);
        find(TamselEdition::Plain, 2016);
        find(TamselEdition::Mep, 2018);
        find(TamselEdition::Architecture, 2017);
        step(RunMode::Uninstall);
        QCOMPARE(m_fixture->takeLines(),
                 QStringList{u"progress 0 Tamsel"_s} + removalLines(2015) + removalLines(2016) +
                     QStringList{u"progress 0 Tamsel Architecture"_s} + removalLines(2017) +
                     QStringList{u"progress 0 Tamsel MEP"_s} + removalLines(2018));
    }

    void theManifestsOfAllYearsNameTheSameLibrary()
    {
        m_fixture->check(Launcher::Tamsel);
        find(TamselEdition::Plain, 2016);
        find(TamselEdition::Plain, 2017);
        step(RunMode::Install);
        for (const int year : {2016, 2017})
            QVERIFY(readFile(first(year)).contains("NVX_2017_Tamsel2017.dll"));
        QVERIFY(!QFile::exists(first(2015)));
        QVERIFY(!QFile::exists(first(2018)));
    }

    void anUncheckedEditionIsNotChanged()
    {
        m_fixture->check(Launcher::TamselArchitecture);
        find(TamselEdition::Plain, 2016);
        find(TamselEdition::Architecture, 2017);
        step(RunMode::Install);
        QVERIFY(!QFile::exists(first(2016)));
        QVERIFY(QFile::exists(first(2017)));
    }

    void aYearOfTwoEditionsIsConfiguredTwice()
    {
        m_fixture->check(Launcher::Tamsel);
        m_fixture->check(Launcher::TamselMep);
        find(TamselEdition::Plain, 2017);
        find(TamselEdition::Mep, 2017);
        step(RunMode::Install);
        QCOMPARE(m_fixture->takeLines().count(u"0 Tamsel Addin"_s), 2);
        QCOMPARE(readFile(first(2017)), tamselManifest(m_fixture->state.installDir));
    }

    void theOtherFilesAreWrittenIfAFolderCannotBeCreated()
    {
        const QString inTheWay = m_fixture->folders.formerApplicationData;
        writeFile(inTheWay, "a file with the name of the folder");
        makeSecondTarget(2017);
        addin(RunMode::Install, 2017);
        QVERIFY(QFileInfo(inTheWay).isFile());
        QCOMPARE(readFile(own()), tamselManifest(m_fixture->state.installDir));
        QCOMPARE(readFile(second(2017)), readFile(own()));
    }

    void aRelativeFolderIsNotCreated()
    {
        m_fixture->folders.formerApplicationData = u"NVX test, not a full path"_s;
        addin(RunMode::Install, 2017);
        QVERIFY(!QFile::exists(m_fixture->folders.formerApplicationData));
    }

private:
    void addin(RunMode mode, int year) { installTamselAddin(m_fixture->step(mode), year); }

    void step(RunMode mode)
    {
        for (const Launcher edition : {Launcher::Tamsel, Launcher::TamselArchitecture, Launcher::TamselMep})
            cadSystem(edition).install(m_fixture->step(mode));
    }

    void find(TamselEdition edition, int year)
    {
        m_fixture->packages.tamselInstalls.append({edition, year, u"C:\\Tamsel"_s});
    }

    QString own() const { return m_fixture->installed("Launchers/Tamsel/NVX_2017.Addin"); }
    QString first(int year) const { return target(m_fixture->folders.formerApplicationData, year); }
    QString second(int year) const { return target(m_fixture->folders.applicationData, year); }

    static QString target(const QString &root, int year)
    {
        return joinPath(root, u"Velmora/Tamsel/Addins/%1/NVX_2017.Addin"_s.arg(year));
    }

    void makeSecondTarget(int year) const { QVERIFY(QDir().mkpath(QFileInfo(second(year)).path())); }

    QStringList removalLines(int year) const
    {
        return {u"0 Tamsel Addin"_s, u"0 Removing:"_s + first(year), u"0 Removing:"_s + second(year),
                u"0 Removing:"_s + own()};
    }

    std::unique_ptr<LauncherFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_tamsel_launcher)
#include "tst_tamsel_launcher.moc"
