#include "localization/locale_folders.h"
#include "nvx_util/system.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>

using util::copyWhole;
using util::LocaleFolders;
using util::matchingFiles;

namespace {

void protect(const QString &path)
{
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadUser));
}

bool isWritable(const QString &path)
{
    return QFile::permissions(path) & QFile::WriteOwner;
}

} // namespace

class tst_locale_folders : public QObject
{
    Q_OBJECT

private slots:
    void everyLanguageGetsItsFolder()
    {
        const TestFolder root;
        RecordingReporter reporter;
        LocaleFolders(root.path(), reporter).prepare();
        const QStringList made =
            QDir(root.path(QStringLiteral("Locale"))).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        QStringList locales = Nvx::Util::System::validLocales();
        locales.sort();
        QCOMPARE(made, locales);
        QCOMPARE(reporter.lines, QStringList());
    }

    void aFolderThatCannotBeMadeIsLoggedAndTheOthersAreMade()
    {
        const TestFolder root;
        writeFile(root.path(QStringLiteral("Locale/de-DE")), "a file in the folder's place");
        writeFile(root.path(QStringLiteral("Locale/collect/fra")), "another one");
        writeFile(root.path(QStringLiteral("Locale/fr-FR/client.ts")), "x");
        RecordingReporter reporter;
        LocaleFolders folders(root.path(), reporter);
        folders.prepare();
        folders.collect();
        QCOMPARE(
            reporter.lines,
            QStringList({QStringLiteral("1 Permission fails:") + folders.folder(QStringLiteral("de-DE")),
                         QStringLiteral("1 Permission fails:") + folders.collected(QStringLiteral("fra"))}));
        QVERIFY(QFileInfo(folders.folder(QStringLiteral("ru-RU"))).isDir());
        QVERIFY(QFileInfo(folders.collected(QStringLiteral("rus"))).isDir());
    }

    void compiledFilesLoseTheirWriteProtection()
    {
        const TestFolder root;
        const QString compiled = root.path(QStringLiteral("Locale/de-DE/client.qm"));
        const QString source = root.path(QStringLiteral("Locale/de-DE/client.ts"));
        for (const QString &path : {compiled, source}) {
            writeFile(path, "x");
            protect(path);
        }
        RecordingReporter reporter;
        LocaleFolders(root.path(), reporter).prepare();
        QVERIFY(isWritable(compiled));
        QVERIFY(QFile::permissions(compiled) & QFile::ReadOwner);
        QVERIFY(!isWritable(source));
    }

    void collectingGathersTheFilesOfEveryLanguageUnderItsCode()
    {
        const TestFolder root;
        for (const char *name : {"en-US/client.ts", "en-US/menu.xaml", "en-US/words.csv", "en-US/client.qm",
                                 "en-US/readme.txt", "zh-CN/client.ts", "zh-TW/client.ts"})
            writeFile(root.path(QStringLiteral("Locale/") + QString::fromLatin1(name)), name);
        RecordingReporter reporter;
        LocaleFolders folders(root.path(), reporter);
        folders.collect();
        QCOMPARE(names(folders.collected(QStringLiteral("enu"))),
                 QStringLiteral("client.qm client.ts menu.xaml words.csv"));
        QCOMPARE(readFile(folders.collected(QStringLiteral("chs")) + QStringLiteral("/client.ts")),
                 QByteArray("zh-CN/client.ts"));
        QCOMPARE(readFile(folders.collected(QStringLiteral("cht")) + QStringLiteral("/client.ts")),
                 QByteArray("zh-TW/client.ts"));
        QCOMPARE(reporter.lines, QStringList());
    }

    void collectingAgainReplacesProtectedCopiesAndTakesOutThoseThatAreGone()
    {
        const TestFolder root;
        const QString source = root.path(QStringLiteral("Locale/de-DE/client.ts"));
        const QString gone = root.path(QStringLiteral("Locale/de-DE/gone.ts"));
        writeFile(source, "old");
        writeFile(gone, "gone");
        protect(gone);
        RecordingReporter reporter;
        LocaleFolders folders(root.path(), reporter);
        folders.collect();
        const QString copy = folders.collected(QStringLiteral("deu")) + QStringLiteral("/client.ts");
        protect(copy);
        protect(folders.collected(QStringLiteral("deu")) + QStringLiteral("/gone.ts"));
        QFile::setPermissions(gone, QFile::ReadOwner | QFile::WriteOwner);
        QVERIFY(QFile::remove(gone));
        writeFile(source, "new");
        folders.collect();
        QCOMPARE(readFile(copy), QByteArray("new"));
        QCOMPARE(names(folders.collected(QStringLiteral("deu"))), QStringLiteral("client.ts"));
        QCOMPARE(reporter.lines, QStringList());
    }

    void collectingAgainReplacesTheEarlierCopiesInTheirFolder()
    {
        const TestFolder root;
        const QString source = root.path(QStringLiteral("Locale/de-DE/client.ts"));
        const QString copy = root.path(QStringLiteral("Locale/collect/deu/client.ts"));
        RecordingReporter reporter;
        LocaleFolders folders(root.path(), reporter);
        for (const char *contents : {"old", "new"}) {
            writeFile(source, contents);
            folders.collect();
            QCOMPARE(readFile(copy), QByteArray(contents));
        }
        QCOMPARE(reporter.lines, QStringList());
    }

    void aCopyThatCannotBeMadeIsLogged()
    {
        const TestFolder root;
        writeFile(root.path(QStringLiteral("Locale/de-DE/client.ts")), "x");
        RecordingReporter reporter;
        LocaleFolders folders(root.path(), reporter);
        const QString blocked =
            folders.collected(QStringLiteral("deu")) + QDir::separator() + QStringLiteral("client.ts");
        QVERIFY(QDir().mkpath(blocked)); // a folder where the file belongs
        folders.collect();
        QCOMPARE(reporter.lines, QStringList{QStringLiteral("1 Permission fails:") + blocked});
    }

    void theOriginalOfACopyMustBeThere()
    {
        const TestFolder folder;
        const QString target = folder.path(QStringLiteral("b"));
        writeFile(target, "old");
        QVERIFY(!copyWhole(folder.path(QStringLiteral("a")), target));
        QCOMPARE(readFile(target), QByteArray("old"));
    }

private:
    static QString names(const QString &folder)
    {
        return matchingFiles(folder, {QStringLiteral("*")}).join(QLatin1Char(' '));
    }
};

NVX_GUILESS_TEST(tst_locale_folders)
#include "tst_locale_folders.moc"
