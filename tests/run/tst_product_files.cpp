#include "run/product_files.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>

namespace {

void protect(const QString &path)
{
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadUser);
}

} // namespace

class tst_product_files : public QObject
{
    Q_OBJECT

private slots:
    void aWriteProtectedFileIsRemoved()
    {
        const TestFolder folder;
        const QString path = folder.path(QStringLiteral("a.dll"));
        writeFile(path, "x");
        protect(path);
        QVERIFY(removeProductFile(path));
        QVERIFY(!QFile::exists(path));
    }

    void aFileThatIsNotThereCountsAsRemoved()
    {
        const TestFolder folder;
        for (const auto &name : {QStringLiteral("missing.dll"), QStringLiteral("missing.lnk"),
                                 QStringLiteral("missing/too.lnk")})
            QVERIFY(removeProductFile(folder.path(name)));
    }

    void aLinkThatLeadsNowhereIsRemoved()
    {
        const TestFolder folder;
        const QString link = folder.path(QStringLiteral("a.lnk"));
        QVERIFY(QFile::link(folder.path(QStringLiteral("gone.exe")), link));
        QVERIFY(removeProductFile(link));
        // A link that leads nowhere is among the names only when they are asked for.
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
                 QStringList());
    }

    void ofALinkTheTargetStays()
    {
        const TestFolder folder;
        const QString target = folder.path(QStringLiteral("a.exe"));
        const QString link = folder.path(QStringLiteral("a.lnk"));
        writeFile(target, "x");
        QVERIFY(QFile::link(target, link));
        QVERIFY(removeProductFile(link));
        QCOMPARE(namesIn(folder.path()), QStringList(QStringLiteral("a.exe")));
        QCOMPARE(readFile(target), QByteArray("x"));
    }

    void aFolderIsNotRemoved()
    {
        const TestFolder folder;
        QVERIFY(QDir().mkdir(folder.path(QStringLiteral("a"))));
        QVERIFY(!removeProductFile(folder.path(QStringLiteral("a"))));
        QVERIFY(QDir(folder.path(QStringLiteral("a"))).exists());
    }

    void aWriteProtectedFileIsReplaced()
    {
        const TestFolder folder;
        const QString source = folder.path(QStringLiteral("de-DE.dll"));
        const QString target = folder.path(QStringLiteral("a.dll"));
        writeFile(source, "new");
        writeFile(target, "old");
        protect(source);
        protect(target);
        QVERIFY(replaceProductFile(source, target));
        QCOMPARE(readFile(target), QByteArray("new"));
        QVERIFY(replaceProductFile(source, target)); // the copy is write-protected like its source
        QCOMPARE(readFile(source), QByteArray("new"));
    }

    void aTargetThatCannotBeRemovedStays()
    {
        const TestFolder folder;
        const QString source = folder.path(QStringLiteral("de-DE.dll"));
        const QString target = folder.path(QStringLiteral("a.dll"));
        writeFile(source, "new");
        QVERIFY(QDir().mkdir(target)); // a folder in its place
        QVERIFY(!replaceProductFile(source, target));
        QVERIFY(QDir(target).exists());
        QCOMPARE(namesIn(folder.path()).size(), 2);
    }

    void aMissingSourceLeavesNoFile()
    {
        const TestFolder folder;
        const QString target = folder.path(QStringLiteral("a.dll"));
        writeFile(target, "old");
        QVERIFY(!replaceProductFile(folder.path(QStringLiteral("missing.dll")), target));
        QVERIFY(!QFile::exists(target));
    }
};

NVX_GUILESS_TEST(tst_product_files)
#include "tst_product_files.moc"
