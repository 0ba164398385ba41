#include "localization/locale_folders.h"
#include "nvx_util/system.h"
#include "support/recording_reporter.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Localization::copyWhole;
using Localization::LocaleFolders;
using Localization::matchingFiles;

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
        const QStringList made = QDir(root.path(u"Locale"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        QStringList locales = Nvx::Util::System::validLocales();
        locales.sort();
        QCOMPARE(made, locales);
        QCOMPARE(reporter.lines, QStringList());
    }

    void aFolderThatCannotBeCreatedIsLoggedAndTheOthersAreCreated()
    {
        const TestFolder root;
        writeFile(root.path(u"Locale/de-DE"_s), "a file in the folder's place");
        writeFile(root.path(u"Locale/collect/fra"_s), "another one");
        writeFile(root.path(u"Locale/fr-FR/client.ts"_s), "x");
        RecordingReporter reporter;
        LocaleFolders folders(root.path(), reporter);
        folders.prepare();
        folders.collect();
        QCOMPARE(reporter.lines, QStringList({u"1 Permission fails:"_s + folders.folder(u"de-DE"_s),
                                              u"1 Permission fails:"_s + folders.collected(u"fra"_s)}));
        QVERIFY(QFileInfo(folders.folder(u"ru-RU"_s)).isDir());
        QVERIFY(QFileInfo(folders.collected(u"rus"_s)).isDir());
    }

    void compiledFilesLoseTheirWriteProtection()
    {
        const TestFolder root;
        const QString compiled = root.path(u"Locale/de-DE/client.qm"_s);
        const QString source = root.path(u"Locale/de-DE/client.ts"_s);
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
            writeFile(root.path(u"Locale/"_s + QString::fromLatin1(name)), name);
        RecordingReporter reporter;
        LocaleFolders folders(root.path(), reporter);
        folders.collect();
        QCOMPARE(names(folders.collected(u"enu"_s)), u"client.qm client.ts menu.xaml words.csv"_s);
        QCOMPARE(readFile(folders.collected(u"chs"_s) + u"/client.ts"_s), QByteArray("zh-CN/client.ts"));
        QCOMPARE(readFile(folders.collected(u"cht"_s) + u"/client.ts"_s), QByteArray("zh-TW/client.ts"));
        QCOMPARE(reporter.lines, QStringList());
    }

    void collectingAgainReplacesProtectedCopiesAndDeletesObsoleteOnes()
    {
        const TestFolder root;
        const QString source = root.path(u"Locale/de-DE/client.ts"_s);
        const QString gone = root.path(u"Locale/de-DE/gone.ts"_s);
        writeFile(source, "old");
        writeFile(gone, "gone");
        protect(gone);
        RecordingReporter reporter;
        LocaleFolders folders(root.path(), reporter);
        folders.collect();
        const QString copy = folders.collected(u"deu"_s) + u"/client.ts"_s;
        protect(copy);
        protect(folders.collected(u"deu"_s) + u"/gone.ts"_s);
        QFile::setPermissions(gone, QFile::ReadOwner | QFile::WriteOwner);
        QVERIFY(QFile::remove(gone));
        writeFile(source, "new");
        folders.collect();
        QCOMPARE(readFile(copy), QByteArray("new"));
        QCOMPARE(names(folders.collected(u"deu"_s)), u"client.ts"_s);
        QCOMPARE(reporter.lines, QStringList());
    }

    void collectingAgainReplacesTheEarlierCopiesInTheirFolder()
    {
        const TestFolder root;
        const QString source = root.path(u"Locale/de-DE/client.ts"_s);
        const QString copy = root.path(u"Locale/collect/deu/client.ts"_s);
        RecordingReporter reporter;
        LocaleFolders folders(root.path(), reporter);
        for (const char *contents : {"old", "new"}) {
            writeFile(source, contents);
            folders.collect();
            QCOMPARE(readFile(copy), QByteArray(contents));
        }
        QCOMPARE(reporter.lines, QStringList());
    }

    void aCopyThatCannotBeCreatedIsLogged()
    {
        const TestFolder root;
        writeFile(root.path(u"Locale/de-DE/client.ts"_s), "x");
        RecordingReporter reporter;
        LocaleFolders folders(root.path(), reporter);
        const QString blocked = folders.collected(u"deu"_s) + QDir::separator() + u"client.ts"_s;
        QVERIFY(QDir().mkpath(blocked)); // a folder with the name of the file
        folders.collect();
        QCOMPARE(reporter.lines, QStringList{u"1 Permission fails:"_s + blocked});
    }

    void aMissingFileCannotBeCopied()
    {
        const TestFolder folder;
        const QString target = folder.path(u"b"_s);
        writeFile(target, "old");
        QVERIFY(!copyWhole(folder.path(u"a"_s), target));
        QCOMPARE(readFile(target), QByteArray("old"));
    }

private:
    static QString names(const QString &folder) { return matchingFiles(folder, {u"*"_s}).join(u' '); }
};

NVX_GUILESS_TEST(tst_locale_folders)
#include "tst_locale_folders.moc"
