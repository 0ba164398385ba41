#include "cad/spaceclaim/spaceclaim_launcher.h"
#include "launcher_fixture.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using Nvx::Util::joinPath;

namespace {

const char *const library = "NVX_2017_SpaceClaim.dll";
const char *const manifest = "NVX_2017_SpaceClaim.xml";

} // namespace

class tst_space_claim_launcher : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<LauncherFixture>();
        m_fixture->tick(Launcher::SpaceClaim);
        writeFile(source(library), "library");
        writeFile(source(manifest), "manifest");
        QVERIFY(QDir().mkpath(QFileInfo(m_fixture->folders.spaceClaimAddin).path()));
    }
    void cleanup() { m_fixture.reset(); }

    void theFolderIsTheOneOfSpaceClaim()
    {
        QCOMPARE(SharedFolders().spaceClaimAddin,
                 text("C:\\ProgramData\\SpaceClaim\\Addins\\NVX_2017_SpaceClaim"));
    }

    void anInstallCopiesTheAddin()
    {
        step(RunMode::Install);
        QCOMPARE(readFile(target(library)), QByteArray("library"));
        QCOMPARE(readFile(target(manifest)), QByteArray("manifest"));
        QCOMPARE(m_fixture->takeLines(),
                 QStringList({text("progress 0 SpaceClaim"),
                              text("0 Copying:%1 to: %2").arg(source(library), target(library)),
                              text("0 Copying:%1 to: %2").arg(source(manifest), target(manifest))}));
    }

    void aSecondInstallBringsTheNewFiles()
    {
        step(RunMode::Install);
        writeFile(source(library), "newer");
        step(RunMode::Install);
        QCOMPARE(readFile(target(library)), QByteArray("newer"));
    }

    void aWriteProtectedAddinIsReplaced()
    {
        step(RunMode::Install);
        QVERIFY(QFile::setPermissions(target(library), QFile::ReadOwner));
        writeFile(source(library), "newer");
        step(RunMode::Install);
        QCOMPARE(readFile(target(library)), QByteArray("newer"));
    }

    void aRemovalTakesTheFilesAndLeavesTheFolder_data() { addRemovingModes(); }

    void aRemovalTakesTheFilesAndLeavesTheFolder()
    {
        QFETCH(const RunMode, mode);
        step(RunMode::Install);
        writeFile(target("NVX_2017_SpaceClaim.txt"), "somebody's");
        m_fixture->takeLines();
        step(mode);
        QCOMPARE(m_fixture->takeLines(), QStringList{text("progress 0 SpaceClaim")});
        QCOMPARE(QDir(m_fixture->folders.spaceClaimAddin).entryList(QDir::Files),
                 QStringList{text("NVX_2017_SpaceClaim.txt")});
        QVERIFY(QFile::exists(source(library)));
    }

    void theFolderIsMadeWithoutItsParents()
    {
        m_fixture->folders.spaceClaimAddin = m_fixture->test.path(text("no/Addins/NVX_2017_SpaceClaim"));
        step(RunMode::Install);
        QVERIFY(!QFile::exists(m_fixture->test.path(text("no"))));
        QCOMPARE(m_fixture->takeLines().size(), 3);
    }

    void missingSourcesAreNoError()
    {
        QVERIFY(QFile::remove(source(library)));
        step(RunMode::Install);
        QVERIFY(!QFile::exists(target(library)));
        QVERIFY(QFile::exists(target(manifest)));
    }

    void withoutItsBoxNothingHappens()
    {
        step(RunMode::Install);
        m_fixture->takeLines();
        m_fixture->boxes.setFound(Launcher::SpaceClaim, false);
        step(RunMode::Uninstall);
        QVERIFY(QFile::exists(target(library)));
        QVERIFY(m_fixture->takeLines().isEmpty());
    }

    void aFolderOfAnotherSystemIsNotMadeHere()
    {
        m_fixture->folders.spaceClaimAddin = text("NVX test, not a full path");
        step(RunMode::Install);
        QVERIFY(!QFile::exists(m_fixture->folders.spaceClaimAddin));
    }

private:
    void step(RunMode mode)
    {
        installSpaceClaimLauncher(m_fixture->context(), m_fixture->boxes, m_fixture->folders, mode);
    }

    QString source(const char *name) const
    {
        return joinPath(m_fixture->installed("Launchers/SpaceClaim"), text(name));
    }

    QString target(const char *name) const
    {
        return joinPath(m_fixture->folders.spaceClaimAddin, text(name));
    }

    std::unique_ptr<LauncherFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_space_claim_launcher)
#include "tst_space_claim_launcher.moc"
