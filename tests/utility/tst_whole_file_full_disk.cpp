#include "clt_message_table.h"
#include "nvx_util/whole_file.h"
#include "support/file_bytes.h"
#include "support/full_disk.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "translation/error_translation_table.h"
#include "translation/translation_update.h"

#include <QDir>
#include <QTest>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 mostBytes = FullDisk::maximumBytes;

Clt::MessageTable largeTable()
{
    Clt::MessageTable table;
    for (int number = 0; number < 2000; ++number) {
        Clt::Message message;
        message.setKey({QString::number(number), u"Clt"_s, u"client"_s});
        message.setText(u"Text of message %1"_s.arg(number));
        table.insert(message);
    }
    return table;
}

QStringList filesIn(const TestFolder &folder)
{
    return QDir(folder.path()).entryList(QDir::Files, QDir::Name);
}

} // namespace

class tst_whole_file_full_disk : public QObject
{
    Q_OBJECT

private slots:
    void fileOnAFullDiskIsUnchanged()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"file"_s);
        QVERIFY(writeBytes(fileName, "old"));
        {
            const FullDisk disk;
            QVERIFY(!Nvx::Util::replaceWholeFile(fileName, QByteArray(2 * mostBytes, 'x')));
        }
        QCOMPARE(fileBytes(fileName), QByteArray("old"));
        QCOMPARE(filesIn(folder), QStringList(u"file"_s));
    }

    void newFileOnAFullDiskIsNotCreated()
    {
        const TestFolder folder;
        {
            const FullDisk disk;
            QVERIFY(!Nvx::Util::replaceWholeFile(folder.path(u"file"_s), QByteArray(2 * mostBytes, 'x')));
        }
        QCOMPARE(filesIn(folder), QStringList());
    }

    void fileThatJustFitsIsWritten()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"file"_s);
        {
            const FullDisk disk;
            QVERIFY(Nvx::Util::replaceWholeFile(fileName, QByteArray(mostBytes, 'x')));
        }
        QCOMPARE(QFileInfo(fileName).size(), qint64(mostBytes));
    }

    void copyThatDoesNotFitLeavesNothing()
    {
        const TestFolder folder;
        const QString source = folder.path(u"source"_s);
        QVERIFY(writeBytes(source, QByteArray(2 * mostBytes, 'x')));
        {
            const FullDisk disk;
            QVERIFY(!Nvx::Util::copyToFreeName(source, folder.path(u"copy"_s)));
        }
        QCOMPARE(filesIn(folder), QStringList(u"source"_s));
    }

    void messageTableIsNotSaved()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"table.xml"_s);
        QVERIFY(Clt::MessageTable().save(fileName));
        const std::optional<QByteArray> before = fileBytes(fileName);
        {
            const FullDisk disk;
            QVERIFY(!largeTable().save(fileName));
        }
        QCOMPARE(fileBytes(fileName), before);
    }

    void translationUpdateReportsThatItCouldNotSave()
    {
        const TestFolder folder;
        const QString messages = folder.path(u"table.xml"_s);
        const QString translation = folder.path(u"table.ts"_s);
        QVERIFY(largeTable().save(messages));
        QVERIFY(Translation::TranslationTable().save(translation));
        const std::optional<QByteArray> before = fileBytes(translation);
        QString log;
        QTextStream stream(&log);
        {
            const FullDisk disk;
            QVERIFY(!Translation::synchronizeTranslationTable(messages, translation, stream, stream));
        }
        QVERIFY(log.endsWith(u"\nCould not save translation table\n"_s));
        QCOMPARE(fileBytes(translation), before);
    }

    void damagedFileIsUnchangedIfItsCopyDoesNotFit()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"table.ts"_s);
        const QByteArray damaged = "<TS>" + QByteArray(2 * mostBytes, ' ');
        QVERIFY(writeBytes(fileName, damaged));
        Translation::TranslationTable table;
        QVERIFY(!table.load(fileName));
        {
            const FullDisk disk;
            QVERIFY(!table.save(fileName));
        }
        QCOMPARE(fileBytes(fileName), damaged);
        QCOMPARE(filesIn(folder), QStringList(u"table.ts"_s));
    }
};

NVX_GUILESS_TEST(tst_whole_file_full_disk)
#include "tst_whole_file_full_disk.moc"
