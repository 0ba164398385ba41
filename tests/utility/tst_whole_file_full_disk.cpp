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

namespace {

constexpr qint64 mostBytes = FullDisk::mostBytes;

Clt::MessageTable largeTable()
{
    Clt::MessageTable table;
    for (int number = 0; number < 2000; ++number) {
        Clt::Message message;
        message.setKey({QString::number(number), QStringLiteral("Clt"), QStringLiteral("client")});
        message.setText(QStringLiteral("Text of message %1").arg(number));
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
    void fileOnAFullDiskStaysAsItWas()
    {
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("file"));
        QVERIFY(writeBytes(fileName, "old"));
        {
            const FullDisk disk;
            QVERIFY(!Nvx::Util::replaceWholeFile(fileName, QByteArray(2 * mostBytes, 'x')));
        }
        QCOMPARE(fileBytes(fileName), QByteArray("old"));
        QCOMPARE(filesIn(folder), QStringList(QStringLiteral("file")));
    }

    void fileThatWasNotThereIsNotThere()
    {
        const TestFolder folder;
        {
            const FullDisk disk;
            QVERIFY(!Nvx::Util::replaceWholeFile(folder.path(QStringLiteral("file")),
                                                 QByteArray(2 * mostBytes, 'x')));
        }
        QCOMPARE(filesIn(folder), QStringList());
    }

    void fileThatJustFitsIsWritten()
    {
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("file"));
        {
            const FullDisk disk;
            QVERIFY(Nvx::Util::replaceWholeFile(fileName, QByteArray(mostBytes, 'x')));
        }
        QCOMPARE(QFileInfo(fileName).size(), qint64(mostBytes));
    }

    void copyThatDoesNotFitLeavesNothing()
    {
        const TestFolder folder;
        const QString source = folder.path(QStringLiteral("source"));
        QVERIFY(writeBytes(source, QByteArray(2 * mostBytes, 'x')));
        {
            const FullDisk disk;
            QVERIFY(!Nvx::Util::copyToFreeName(source, folder.path(QStringLiteral("copy"))));
        }
        QCOMPARE(filesIn(folder), QStringList(QStringLiteral("source")));
    }

    void messageTableIsNotSaved()
    {
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("table.xml"));
        QVERIFY(Clt::MessageTable().save(fileName));
        const std::optional<QByteArray> before = fileBytes(fileName);
        {
            const FullDisk disk;
            QVERIFY(!largeTable().save(fileName));
        }
        QCOMPARE(fileBytes(fileName), before);
    }

    void translationUpdateTellsThatItCouldNotSave()
    {
        const TestFolder folder;
        const QString messages = folder.path(QStringLiteral("table.xml"));
        const QString translation = folder.path(QStringLiteral("table.ts"));
        QVERIFY(largeTable().save(messages));
        QVERIFY(Error::TranslationTable().save(translation));
        const std::optional<QByteArray> before = fileBytes(translation);
        QString log;
        QTextStream stream(&log);
        {
            const FullDisk disk;
            QVERIFY(!Error::synchronizeTranslationTable(messages, translation, stream, stream));
        }
        QVERIFY(log.endsWith(QStringLiteral("\nCould not save translation table\n")));
        QCOMPARE(fileBytes(translation), before);
    }

    void damagedFileThatDoesNotFitTwiceIsLeft()
    {
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("table.ts"));
        const QByteArray damaged = "<TS>" + QByteArray(2 * mostBytes, ' ');
        QVERIFY(writeBytes(fileName, damaged));
        Error::TranslationTable table;
        QVERIFY(!table.load(fileName));
        {
            const FullDisk disk;
            QVERIFY(!table.save(fileName));
        }
        QCOMPARE(fileBytes(fileName), damaged);
        QCOMPARE(filesIn(folder), QStringList(QStringLiteral("table.ts")));
    }
};

NVX_GUILESS_TEST(tst_whole_file_full_disk)
#include "tst_whole_file_full_disk.moc"
