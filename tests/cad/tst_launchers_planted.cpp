// Folders and links that a user below an administrator has left where the launchers are installed. Only an
// administrator can give them to another user, so the tests are skipped for everyone else.

#include "cad/foreign_file.h"
#include "cad/spaceclaim/spaceclaim.h"
#include "cad/tamsel/tamsel.h"
#include "launcher_fixture.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"

#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Nvx::Cad;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr uint otherUser = 65534;

bool giveAway(const QString &path)
{
    return lchown(QFile::encodeName(path).constData(), otherUser, otherUser) == 0;
}

} // namespace

class tst_launchers_planted : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<LauncherFixture>();
        m_fixture->check(Launcher::SpaceClaim);
        writeFile(m_fixture->installed("Launchers/SpaceClaim/NVX_2017_SpaceClaim.dll"), "library");
        writeFile(m_fixture->installed("Launchers/SpaceClaim/NVX_2017_SpaceClaim.xml"), "manifest");
        writeFile(m_fixture->installed("Launchers/Tamsel/NVX_2017_Tamsel2017.dll"), "library");
        QVERIFY(QDir().mkdir(path(u"elsewhere"_s)));
        if (!giveAway(path(u"elsewhere"_s)))
            QSKIP("Only an administrator can give a folder to another user.");
    }

    void cleanup() { m_fixture.reset(); }

    void spaceClaimsFolderOfAnotherUserIsReserved()
    {
        const QString folder = m_fixture->folders.spaceClaimAddin;
        writeFile(folder + u"/NVX_2017_SpaceClaim.dll"_s, "planted");
        for (const QString &theirs : {folder, folder + u"/NVX_2017_SpaceClaim.dll"_s}) {
            QCOMPARE(chmod(QFile::encodeName(theirs).constData(), 0777), 0);
            QVERIFY(giveAway(theirs));
        }
        installSpaceClaimLauncher(m_fixture->step(RunMode::Install));
        QCOMPARE(QFileInfo(folder).ownerId(), geteuid());
        QVERIFY(!(QFile::permissions(folder) & (QFile::WriteGroup | QFile::WriteOther)));
        QCOMPARE(QFileInfo(folder + u"/NVX_2017_SpaceClaim.dll"_s).ownerId(), geteuid());
        QCOMPARE(readFile(folder + u"/NVX_2017_SpaceClaim.dll"_s), QByteArray("library"));
    }

    void spaceClaimsFilesAreNotCopiedBelowALink_data()
    {
        QTest::addColumn<bool>("isFolderItself");
        QTest::newRow("the folder of add-ins") << false;
        QTest::newRow("the folder of this add-in") << true;
    }

    void spaceClaimsFilesAreNotCopiedBelowALink()
    {
        QFETCH(const bool, isFolderItself);
        const QString folder = m_fixture->folders.spaceClaimAddin;
        const QString link = isFolderItself ? folder : QFileInfo(folder).path();
        plantLink(link);
        installSpaceClaimLauncher(m_fixture->step(RunMode::Install));
        QCOMPARE(namesIn(path(u"elsewhere"_s)), QStringList());
        QCOMPARE(m_fixture->takeLines().filter(QRegularExpression(u"^1 "_s)).size(), 1);
    }

    void tamselsFoldersOfAnotherUserAreTakenOver()
    {
        const QString year = m_fixture->folders.formerApplicationData + u"/Velmora/Tamsel/Addins/2017"_s;
        QVERIFY(QDir().mkpath(year));
        QString folder = year;
        for (int level = 0; level < 4; ++level, folder = QFileInfo(folder).path())
            QVERIFY(giveAway(folder));
        installTamselAddin(m_fixture->step(RunMode::Install), 2017);
        folder = year;
        for (int level = 0; level < 4; ++level, folder = QFileInfo(folder).path())
            QCOMPARE(QFileInfo(folder).ownerId(), geteuid());
        QVERIFY(QFile::exists(year + u"/NVX_2017.Addin"_s));
    }

    void tamselsManifestIsNotCopiedBelowALink()
    {
        plantLink(m_fixture->folders.formerApplicationData + u"/Velmora"_s);
        QVERIFY(QDir().mkpath(path(u"elsewhere/Tamsel/Addins/2017"_s)));
        installTamselAddin(m_fixture->step(RunMode::Install), 2017);
        QCOMPARE(namesIn(path(u"elsewhere/Tamsel/Addins/2017"_s)), QStringList());
        QCOMPARE(m_fixture->takeLines().filter(QRegularExpression(u"^1 "_s)).size(), 1);
    }

    void fileOfACadSystemIsNotReplacedThroughALink()
    {
        const QString target = path(u"elsewhere/important"_s);
        writeFile(target, "important");
        plantLink(path(u"link"_s));
        QVERIFY(QFile::link(target, path(u"file"_s)));
        QVERIFY(giveAway(path(u"file"_s)));
        const RecordedDiagnostics diagnostics;
        replaceForeignFile(path(u"link/important"_s), "ours");
        replaceForeignFile(path(u"file"_s), "ours");
        QCOMPARE(readFile(target), QByteArray("important"));
        QCOMPARE(RecordedDiagnostics::list().size(), 2);
    }

private:
    QString path(const QString &name) const { return m_fixture->test.path(name); }

    /// A link of another user to the folder "elsewhere".
    void plantLink(const QString &link)
    {
        QVERIFY(QDir().mkpath(QFileInfo(link).path()));
        QVERIFY(QFile::link(path(u"elsewhere"_s), link));
        QVERIFY(giveAway(link));
    }

    std::unique_ptr<LauncherFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_launchers_planted)
#include "tst_launchers_planted.moc"
