// Links that a user below an administrator has put on the way to the product's folders and files. Only an
// administrator can give a link to another user, so the tests are skipped for everyone else.

#include "nvx_util/cpu_info.h"
#include "nvx_util/log.h"
#include "nvx_util/system.h"
#include "run/command_runner.h"
#include "run/product_files.h"
#include "setup/archive_components.h"
#include "setup/install_folder.h"
#include "setup/material_database.h"
#include "setup/parallel_configuration.h"
#include "setup/setup_fixture.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"

#include <QTest>

#include <unistd.h>

using Nvx::Util::ProgramCall;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

class tst_planted_links : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_fixture = std::make_unique<SetupFixture>();
        writeFile(path(u"elsewhere/folder/A.PYC"_s), "important");
        QVERIFY(QFile::link(path(u"elsewhere"_s), path(u"planted"_s)));
        if (!giveAway(path(u"planted"_s)))
            QSKIP("Only an administrator can give a link to another user.");
    }

    void cleanup() { m_fixture.reset(); }

    void folderBelowIsNotRemoved()
    {
        CommandRunner(m_fixture->context()).removeDirectory(path(u"planted/folder"_s));
        QVERIFY(m_fixture->machine.calls.isEmpty());
        QCOMPARE(m_fixture->reporter.lines, QStringList{unchanged(u"planted/folder"_s)});
    }

    void linkItselfIsNotRemoved()
    {
        CommandRunner(m_fixture->context()).removeDirectory(path(u"planted"_s));
        QVERIFY(m_fixture->machine.calls.isEmpty());
        QCOMPARE(m_fixture->reporter.lines, QStringList{unchanged(u"planted"_s)});
    }

    void matchingFilesBelowAreNotRemoved()
    {
        CommandRunner(m_fixture->context()).removeMatchingFiles(path(u"planted/folder"_s), u".PYC"_s);
        QCOMPARE(readFile(path(u"elsewhere/folder/A.PYC"_s)), QByteArray("important"));
        QCOMPARE(m_fixture->reporter.lines, QStringList{unchanged(u"planted/folder"_s)});
    }

    void fileBelowIsNotRemoved()
    {
        const RecordedDiagnostics diagnostics;
        QVERIFY(!removeProductFile(path(u"planted/folder/A.PYC"_s)));
        QCOMPARE(readFile(path(u"elsewhere/folder/A.PYC"_s)), QByteArray("important"));
        QCOMPARE(RecordedDiagnostics::list(), QStringList{u"%1 may lead elsewhere; not removed: %2"_s.arg(
                                                  path(u"planted"_s), path(u"planted/folder/A.PYC"_s))});
    }

    void plantedFileIsRemovedWithoutItsTarget()
    {
        const QString link = path(u"file"_s);
        QVERIFY(QFile::link(path(u"elsewhere/folder/A.PYC"_s), link));
        QVERIFY(giveAway(link));
        QVERIFY(removeProductFile(link));
        QCOMPARE(readFile(path(u"elsewhere/folder/A.PYC"_s)), QByteArray("important"));
    }

    void archiveIsNotUnpackedBelow()
    {
        const QString tutorials = Nvx::Util::System::getTutorialsDirPath();
        QVERIFY(QDir().mkpath(QFileInfo(QFileInfo(tutorials).path()).path()));
        QVERIFY(QFile::rename(path(u"planted"_s), QFileInfo(tutorials).path()));
        Nvx::Setup::ArchiveComponents(m_fixture->context()).installTutorials(RunMode::Install);
        QVERIFY(m_fixture->machine.calls.isEmpty());
        QCOMPARE(m_fixture->reporter.lines.filter(u"may lead elsewhere"_s).size(), 2);
    }

    void installFolderOfAnotherUserIsReserved()
    {
        const QString folder = m_fixture->state.installDir;
        QVERIFY(giveAway(folder));
        Nvx::Setup::reserveInstallFolder(m_fixture->context(), RunMode::Uninstall);
        QCOMPARE(QFileInfo(folder).ownerId(), otherUser);
        Nvx::Setup::reserveInstallFolder(m_fixture->context(), RunMode::Install);
        QCOMPARE(QFileInfo(folder).ownerId(), geteuid());
        QCOMPARE(m_fixture->reporter.lines, QStringList());
    }

    void installFolderBehindALinkIsLeftAlone()
    {
        QVERIFY(giveAway(path(u"elsewhere/folder"_s)));
        m_fixture->state.installDir = path(u"planted/folder"_s);
        Nvx::Setup::reserveInstallFolder(m_fixture->context(), RunMode::Install);
        QCOMPARE(QFileInfo(path(u"elsewhere/folder"_s)).ownerId(), otherUser);
        QCOMPARE(m_fixture->reporter.lines, QStringList{unchanged(u"planted/folder"_s)});
    }

    void sharedFoldersOfAnotherUserAreTakenOver()
    {
        using Nvx::Util::System;
        const QStringList folders{System::getProgramDataPath(u"NVX 2017"_s),
                                  QFileInfo(System::getTutorialsDirPath()).path()};
        for (const QString &folder : folders) {
            QVERIFY(QDir().mkpath(folder));
            QVERIFY(giveAway(folder) && giveAway(QFileInfo(folder).path()));
        }
        Nvx::Setup::reserveInstallFolder(m_fixture->context(), RunMode::Install);
        for (const QString &folder : folders) {
            QCOMPARE(QFileInfo(folder).ownerId(), geteuid());
            QCOMPARE(QFileInfo(QFileInfo(folder).path()).ownerId(), geteuid());
        }
        QCOMPARE(m_fixture->reporter.lines, QStringList());
    }

    void sharedFolderThatIsALinkIsReported()
    {
        const QString shared = plantSharedData();
        Nvx::Setup::reserveInstallFolder(m_fixture->context(), RunMode::Install);
        QCOMPARE(m_fixture->reporter.lines,
                 QStringList{u"1 Unable to take this folder over from the user who created it: "_s + shared});
    }

    void configurationIsNotSavedBelow()
    {
        const QString shared = plantSharedData();
        Nvx::Util::Log log(path(u"log"_s));
        const Nvx::Util::CpuInfo processors(log, QString());
        Nvx::Setup::createParallelConfiguration(m_fixture->context(), RunMode::Install, processors);
        QVERIFY(!QFile::exists(path(u"elsewhere/NVX 2017"_s)));
        QCOMPARE(m_fixture->reporter.lines.size(), 3);
        QVERIFY(m_fixture->reporter.lines[0].endsWith(u"this is left unchanged: "_s + shared));
        QVERIFY(
            m_fixture->reporter.lines[1].startsWith(u"1 Unable to create NVX2 default configuration: "_s));
        QVERIFY(m_fixture->reporter.lines[2].startsWith(u"1 Unable to create NVX2 analyze folder: "_s));
    }

    void materialsAreNotCopiedBelow()
    {
        plantSharedData();
        QVERIFY(QDir().mkpath(path(u"elsewhere/NVX 2017"_s)));
        writeFile(m_fixture->installed("matprop.mdb"), "materials");
        const RecordedDiagnostics diagnostics;
        Nvx::Setup::MaterialDatabase(m_fixture->context()).check(RunMode::Install);
        QVERIFY(namesIn(path(u"elsewhere/NVX 2017"_s)).isEmpty());
        QCOMPARE(RecordedDiagnostics::list().size(), 1);
    }

private:
    static constexpr uint otherUser = 65534;

    static bool giveAway(const QString &path)
    {
        return lchown(QFile::encodeName(path).constData(), otherUser, otherUser) == 0;
    }

    /// Puts the link in the place of the maker's folder of shared data; returns the product's folder below
    /// it.
    QString plantSharedData()
    {
        const QString shared = Nvx::Util::System::getProgramDataPath(u"NVX 2017"_s);
        const QString maker = QFileInfo(shared).path();
        if (!QDir().mkpath(QFileInfo(maker).path()) || !QFile::rename(path(u"planted"_s), maker))
            qFatal("no link was planted");
        return shared;
    }

    QString path(const QString &name) const { return m_fixture->test.path(name); }

    QString unchanged(const QString &name) const
    {
        return u"1 %1 does not belong to administrators and may lead elsewhere; this is left unchanged: %2"_s
            .arg(path(u"planted"_s), path(name));
    }

    std::unique_ptr<SetupFixture> m_fixture;
};

NVX_GUILESS_TEST(tst_planted_links)
#include "tst_planted_links.moc"
