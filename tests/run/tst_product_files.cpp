#include "run/product_files.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

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
        const QString path = folder.path(u"a.dll"_s);
        writeFile(path, "x");
        protect(path);
        QVERIFY(removeProductFile(path));
        QVERIFY(!QFile::exists(path));
    }

    void aMissingFileCountsAsRemoved()
    {
        const TestFolder folder;
        for (const auto &name : {u"missing.dll"_s, u"missing.lnk"_s, u"missing/too.lnk"_s})
            QVERIFY(removeProductFile(folder.path(name)));
    }

    void aLinkWithoutATargetIsRemoved()
    {
        const TestFolder folder;
        const QString link = folder.path(u"a.lnk"_s);
        QVERIFY(QFile::link(folder.path(u"gone.exe"_s), link));
        QVERIFY(removeProductFile(link));
        // QDir::System includes links without a target.
        QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot),
                 QStringList());
    }

    void theTargetOfARemovedLinkStays()
    {
        const TestFolder folder;
        const QString target = folder.path(u"a.exe"_s);
        const QString link = folder.path(u"a.lnk"_s);
        writeFile(target, "x");
        QVERIFY(QFile::link(target, link));
        QVERIFY(removeProductFile(link));
        QCOMPARE(namesIn(folder.path()), QStringList(u"a.exe"_s));
        QCOMPARE(readFile(target), QByteArray("x"));
    }

    void aFolderIsNotRemoved()
    {
        const TestFolder folder;
        QVERIFY(QDir().mkdir(folder.path(u"a"_s)));
        QVERIFY(!removeProductFile(folder.path(u"a"_s)));
        QVERIFY(QDir(folder.path(u"a"_s)).exists());
    }

    void aWriteProtectedFileIsReplaced()
    {
        const TestFolder folder;
        const QString source = folder.path(u"de-DE.dll"_s);
        const QString target = folder.path(u"a.dll"_s);
        writeFile(source, "new");
        writeFile(target, "old");
        protect(source);
        protect(target);
        QVERIFY(replaceProductFile(source, target));
        QCOMPARE(readFile(target), QByteArray("new"));
        QVERIFY(replaceProductFile(source, target)); // the copy is write-protected, as its source is
        QCOMPARE(readFile(source), QByteArray("new"));
    }

    void aTargetThatCannotBeRemovedStays()
    {
        const TestFolder folder;
        const QString source = folder.path(u"de-DE.dll"_s);
        const QString target = folder.path(u"a.dll"_s);
        writeFile(source, "new");
        QVERIFY(QDir().mkdir(target)); // a folder has its name
        QVERIFY(!replaceProductFile(source, target));
        QVERIFY(QDir(target).exists());
        QCOMPARE(namesIn(folder.path()).size(), 2);
    }

    void aMissingSourceLeavesNoFile()
    {
        const TestFolder folder;
        const QString target = folder.path(u"a.dll"_s);
        writeFile(target, "old");
        QVERIFY(!replaceProductFile(folder.path(u"missing.dll"_s), target));
        QVERIFY(!QFile::exists(target));
    }
};

NVX_GUILESS_TEST(tst_product_files)
#include "tst_product_files.moc"
