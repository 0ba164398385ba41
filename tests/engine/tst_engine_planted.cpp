// A link that a user below an administrator has put in the place of the maker's shared data. Only an
// administrator can give a link to another user, so the test is skipped for everyone else.

#include "engine_fixture.h"
#include "nvx_util/system.h"
#include "support/test_class.h"

#include <QTest>

#include <unistd.h>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

class tst_engine_planted : public QObject
{
    Q_OBJECT

private slots:
    void flagsFileIsNeitherCreatedNorRemovedBelowALink()
    {
        EngineFixture fixture;
        const QString folder = Nvx::Util::System::getFlagsDirPath();
        const QString maker = QFileInfo(folder).path();
        const QString elsewhere = fixture.test.path(u"elsewhere"_s);
        QVERIFY(QDir().mkpath(QFileInfo(maker).path()) && QDir().mkpath(elsewhere + u"/NVX 2017"_s));
        QVERIFY(QFile::link(elsewhere, maker));
        if (lchown(QFile::encodeName(maker).constData(), 65534, 65534) != 0)
            QSKIP("Only an administrator can give a link to another user.");

        cfg_utilitys &engine = fixture.start(u"-I -S -Len-US"_s);
        engine.processFlagFile(u"NVX_flags.txt"_s, RunMode::Install);
        QCOMPARE(namesIn(elsewhere + u"/NVX 2017"_s), QStringList());
        writeFile(elsewhere + u"/NVX 2017/NVX_flags.txt"_s);
        engine.processFlagFile(u"NVX_flags.txt"_s, RunMode::Uninstall);
        QVERIFY(QFile::exists(elsewhere + u"/NVX 2017/NVX_flags.txt"_s));
        QCOMPARE(fixture.lines().filter(u"this is left unchanged: "_s + folder + u"/NVX_flags.txt"_s).size(),
                 3);
    }
};

NVX_GUILESS_TEST(tst_engine_planted)
#include "tst_engine_planted.moc"
