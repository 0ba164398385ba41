// Links that a user below an administrator has put on the way to the product's folders and files. Only an
// administrator can give a link to another user, so the tests are skipped for everyone else.

#include "nvx_util/system.h"
#include "run/command_runner.h"
#include "run/product_files.h"
#include "setup/archive_components.h"
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
        constexpr uid_t other = 65534;
        QVERIFY(QFile::link(path(u"elsewhere"_s), path(u"planted"_s)));
        if (lchown(QFile::encodeName(path(u"planted"_s)).constData(), other, other) != 0)
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
        QCOMPARE(lchown(QFile::encodeName(link).constData(), 65534, 65534), 0);
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

private:
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
