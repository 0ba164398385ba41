#include "nvx_util/trusted_files.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Nvx::Util::HeldWay;
using Nvx::Util::plantedPointOf;
using Nvx::Util::ScriptFile;
using Nvx::Util::WayPoint;

namespace {

QStringList pathsOf(const HeldWay &way)
{
    QStringList paths;
    for (const WayPoint &point : way.points())
        paths.append(point.path);
    return paths;
}

WayPoint folder(const QString &path)
{
    return {.path = path, .isLink = false, .isHeld = true, .isAdministrators = true};
}

WayPoint usersFolder(const QString &path)
{
    return {.path = path, .isLink = false, .isHeld = true, .isAdministrators = false};
}

} // namespace

class tst_trusted_files : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<TestFolder>(); }

    // Wine has no junctions and no owners, so the decision is shown on what the system would report.
    void plantedLinkIsTheFirstThatAdministratorsDoNotOwn_data()
    {
        using Way = QList<WayPoint>;
        const WayPoint drive = folder(u"C:\\"_s);
        WayPoint adminsLink = folder(u"C:\\Data"_s);
        adminsLink.isLink = true;
        WayPoint planted = usersFolder(u"C:\\Data\\Velmora"_s);
        planted.isLink = true;
        WayPoint unheld = usersFolder(u"C:\\Data\\busy"_s);
        unheld.isHeld = false;
        WayPoint adminsUnheld = folder(u"C:\\Data\\busy"_s);
        adminsUnheld.isHeld = false;
        QTest::addColumn<Way>("way");
        QTest::addColumn<QString>("expected");
        QTest::newRow("no folder") << Way() << QString();
        QTest::newRow("administrators' folders") << Way{drive, folder(u"C:\\Data"_s)} << QString();
        QTest::newRow("a user's folder") << Way{drive, usersFolder(u"C:\\Data"_s)} << QString();
        QTest::newRow("an administrators' link") << Way{drive, adminsLink} << QString();
        QTest::newRow("a user's link") << Way{drive, planted} << planted.path;
        QTest::newRow("a user's link below an administrators' link")
            << Way{drive, adminsLink, planted} << planted.path;
        QTest::newRow("a user's folder that may be replaced") << Way{drive, unheld} << unheld.path;
        QTest::newRow("an administrators' folder that may be replaced")
            << Way{drive, adminsUnheld} << QString();
        QTest::newRow("two of them") << Way{planted, unheld} << planted.path;
    }

    void plantedLinkIsTheFirstThatAdministratorsDoNotOwn()
    {
        QFETCH(const QList<WayPoint>, way);
        QTEST(plantedPointOf(way).value_or(QString()), "expected");
    }

    void wayLeadsFromTheDriveToTheFolder()
    {
        const HeldWay way = HeldWay::toFolder(m_folder->path());
        const QStringList paths = pathsOf(way);
        QCOMPARE(paths.first(), QDir::toNativeSeparators(QDir(m_folder->path()).rootPath()).left(1) == u"/"_s
                                    ? u"/"_s
                                    : m_folder->path().left(3));
        QCOMPARE(paths.last(), m_folder->path());
        QCOMPARE(paths.size(), m_folder->path().count(QDir::separator()) + 1);
        QVERIFY(!way.plantedPoint());
        for (const WayPoint &point : way.points())
            QVERIFY2(point.isHeld, qPrintable(point.path));
    }

    void wayToAMissingFolderEndsBeforeIt()
    {
        const HeldWay way = HeldWay::toFolder(m_folder->path(u"missing/below"_s));
        QCOMPARE(pathsOf(way).last(), m_folder->path());
        QVERIFY(!way.plantedPoint());
    }

    void wayToAnEntryEndsWithTheEntry()
    {
        QVERIFY(QDir().mkdir(m_folder->path(u"entry"_s)));
        {
            const HeldWay way = HeldWay::toEntry(m_folder->path(u"entry"_s));
            QCOMPARE(pathsOf(way).last(), m_folder->path(u"entry"_s));
            QVERIFY(QDir().rmdir(m_folder->path(u"entry"_s)));
        }
        QCOMPARE(pathsOf(HeldWay::toEntry(m_folder->path(u"entry"_s))).last(), m_folder->path());
    }

    void quotesAndControlCharactersAreFound_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("expected");
        QTest::newRow("a plain path") << u"C:\\Größe 100% & (x86)\\日本"_s << false;
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("a double quote") << u"C:\\a\" & del C:\\b"_s << true;
        QTest::newRow("a line feed") << u"C:\\a\ndel C:\\b"_s << true;
        QTest::newRow("a carriage return") << u"C:\\a\r"_s << true;
        QTest::newRow("a tab") << u"\tC:\\a"_s << true;
        QTest::newRow("a NUL") << QString(QChar(0)) << true;
        QTest::newRow("the control character DEL") << u"C:\\a\u007f"_s << true;
    }

    void quotesAndControlCharactersAreFound()
    {
        QFETCH(const QString, text);
        QTEST(Nvx::Util::holdsQuoteOrControl(text), "expected");
    }

    void scriptFileExistsAsLongAsItsObject()
    {
        const QString path = m_folder->path(u"script"_s);
        {
            const ScriptFile script(path, "echo\r\n");
            QVERIFY(script);
            QCOMPARE(fileBytes(path), QByteArray("echo\r\n"));
        }
        QVERIFY(!QFile::exists(path));
    }

    void olderScriptFileIsReplaced()
    {
        const QString path = m_folder->path(u"script"_s);
        QVERIFY(writeBytes(path, "format c: and more"));
        const ScriptFile script(path, "echo");
        QVERIFY(script);
        QCOMPARE(fileBytes(path), QByteArray("echo"));
    }

    void scriptFileIsNotCreatedInPlaceOfAFolder()
    {
        const QString path = m_folder->path(u"script"_s);
        QVERIFY(QDir().mkdir(path));
        {
            const ScriptFile script(path, "echo");
            QVERIFY(!script);
        }
        QVERIFY(QFileInfo(path).isDir());
    }

private:
    std::unique_ptr<TestFolder> m_folder;
};

NVX_GUILESS_TEST(tst_trusted_files)
#include "tst_trusted_files.moc"
