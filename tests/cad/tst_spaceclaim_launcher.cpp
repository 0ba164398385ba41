#include "cad/spaceclaim/spaceclaim.h"
#include "launcher_fixture.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

using namespace Nvx::Cad;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

using Nvx::Util::joinPath;

namespace {

const char *const library = "NVX_2017_SpaceClaim.dll";
const char *const manifest = "NVX_2017_SpaceClaim.xml";

} // namespace

class tst_spaceclaim_launcher : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<LauncherFixture>();
        m_fixture->check(Launcher::SpaceClaim);
        writeFile(source(library), "library");
        writeFile(source(manifest), "manifest");
        QVERIFY(QDir().mkpath(QFileInfo(m_fixture->folders.spaceClaimAddin).path()));
    }
    void cleanup() { m_fixture.reset(); }

    void theDefaultFolderIsThatOfSpaceClaim()
    {
        QCOMPARE(SharedFolders().spaceClaimAddin,
                 u"C:\\ProgramData\\SpaceClaim\\Addins\\NVX_2017_SpaceClaim"_s);
    }

    void anInstallCopiesTheAddin()
    {
        step(RunMode::Install);
        QCOMPARE(readFile(target(library)), QByteArray("library"));
        QCOMPARE(readFile(target(manifest)), QByteArray("manifest"));
        QCOMPARE(m_fixture->takeLines(),
                 QStringList({u"progress 0 SpaceClaim"_s,
                              u"0 Copying:%1 to: %2"_s.arg(source(library), target(library)),
                              u"0 Copying:%1 to: %2"_s.arg(source(manifest), target(manifest))}));
    }

    void aSecondInstallReplacesTheFiles()
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

    void aRemovalDeletesTheFilesAndPreservesTheFolder_data() { addRemovingModes(); }

    void aRemovalDeletesTheFilesAndPreservesTheFolder()
    {
        QFETCH(const RunMode, mode);
        step(RunMode::Install);
        writeFile(target("NVX_2017_SpaceClaim.txt"), "of another program");
        m_fixture->takeLines();
        step(mode);
        QCOMPARE(m_fixture->takeLines(), QStringList{u"progress 0 SpaceClaim"_s});
        QCOMPARE(QDir(m_fixture->folders.spaceClaimAddin).entryList(QDir::Files),
                 QStringList{u"NVX_2017_SpaceClaim.txt"_s});
        QVERIFY(QFile::exists(source(library)));
    }

    void parentFoldersAreNotCreated()
    {
        m_fixture->folders.spaceClaimAddin = m_fixture->test.path(u"no/Addins/NVX_2017_SpaceClaim"_s);
        step(RunMode::Install);
        QVERIFY(!QFile::exists(m_fixture->test.path(u"no"_s)));
        QCOMPARE(m_fixture->takeLines().size(), 3);
    }

    void aMissingSourceIsNotAnError()
    {
        QVERIFY(QFile::remove(source(library)));
        step(RunMode::Install);
        QVERIFY(!QFile::exists(target(library)));
        QVERIFY(QFile::exists(target(manifest)));
    }

    void anUncheckedLauncherIsNotChanged()
    {
        step(RunMode::Install);
        m_fixture->takeLines();
        m_fixture->checkBoxes.setFound(Launcher::SpaceClaim, false);
        step(RunMode::Uninstall);
        QVERIFY(QFile::exists(target(library)));
        QVERIFY(m_fixture->takeLines().isEmpty());
    }

    void aRelativeFolderIsNotCreated()
    {
        m_fixture->folders.spaceClaimAddin = u"NVX test, not a full path"_s;
        step(RunMode::Install);
        QVERIFY(!QFile::exists(m_fixture->folders.spaceClaimAddin));
    }

private:
    void step(RunMode mode) { installSpaceClaimLauncher(m_fixture->step(mode)); }

    QString source(const char *name) const
    {
        return joinPath(m_fixture->installed("Launchers/SpaceClaim"), QString::fromUtf8(name));
    }

    QString target(const char *name) const
    {
        return joinPath(m_fixture->folders.spaceClaimAddin, QString::fromUtf8(name));
    }

    std::unique_ptr<LauncherFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_spaceclaim_launcher)
#include "tst_spaceclaim_launcher.moc"
