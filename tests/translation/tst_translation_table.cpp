#include "support/broken_device.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "translation/error_translation_table.h"
#include "translation/translation_table_xml.h"

#include <QBuffer>
#include <QDateTime>
#include <QFileInfo>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Translation::TranslationContext;
using Translation::TranslationMessage;
using Translation::TranslationTable;

namespace {

const QString clt = u"Clt"_s;
const QString net = u"Net"_s;
const QString a = u"a"_s;
const QString b = u"b"_s;

const Translation::TranslationMessages &messagesOf(const TranslationTable &table, const QString &context)
{
    return table.contexts().at(context).messages();
}

QByteArray written(const TranslationTable &table)
{
    QBuffer device;
    return device.open(QIODevice::WriteOnly) && Translation::writeTranslationTable(device, table)
               ? device.data()
               : QByteArray();
}

} // namespace

class tst_translation_table : public QObject
{
    Q_OBJECT

private slots:
    void newTableIsEmpty()
    {
        const TranslationTable table;
        QCOMPARE(table.version() + table.language() + table.defaultCodec() + table.errorString(), QString());
        QVERIFY(table.contexts().empty());
        QVERIFY(!table.contains(QString(), QString()));
    }

    void addedStringIsItsOwnUnfinishedTranslation()
    {
        TranslationTable table;
        table.addString(clt, a);
        QCOMPARE(table.contexts().at(clt).name(), clt);
        QCOMPARE(messagesOf(table, clt).size(), std::size_t(1));
        const TranslationMessage &message = messagesOf(table, clt).front();
        QCOMPARE(message.source, a);
        QCOMPARE(message.translation, a);
        QCOMPARE(message.type, u"unfinished"_s);
        QCOMPARE(message.comment, QString());
    }

    void addedStringsKeepTheirOrder()
    {
        TranslationTable table;
        for (const QString &source : {b, a, b})
            table.addString(clt, source);
        QStringList sources;
        for (const TranslationMessage &message : messagesOf(table, clt))
            sources += message.source;
        QCOMPARE(sources, QStringList({b, a, b}));
    }

    void containsComparesContextAndSource_data()
    {
        QTest::addColumn<QString>("context");
        QTest::addColumn<QString>("source");
        QTest::addColumn<bool>("contained");
        QTest::newRow("same context and source") << clt << a << true;
        QTest::newRow("string in another context") << net << a << false;
        QTest::newRow("missing context") << u"None"_s << a << false;
        QTest::newRow("different case") << clt << u"A"_s << false;
        QTest::newRow("prefix") << clt << QString() << false;
        QTest::newRow("second string") << clt << b << true;
    }

    void containsComparesContextAndSource()
    {
        QFETCH(const QString, context);
        QFETCH(const QString, source);
        QFETCH(const bool, contained);
        TranslationTable table;
        table.addString(clt, b);
        table.addString(clt, a);
        table.addString(net, b);
        QCOMPARE(table.contains(context, source), contained);
    }

    void containsComparesOnlyTheSource()
    {
        TranslationTable table;
        TranslationContext context(clt);
        context.append({a, b, u"obsolete"_s, u"c"_s});
        table.setContext(context);
        QVERIFY(table.contains(clt, a));
        QVERIFY(!table.contains(clt, b));
    }

    void thousandsOfStringsAreAllFound()
    {
        TranslationContext context(clt);
        for (int number = 0; number < 5000; ++number)
            QVERIFY(context.addMissing(QString::number(number)));
        for (int number = 0; number < 5000; ++number) {
            QVERIFY(context.contains(QString::number(number)));
            QVERIFY(!context.addMissing(QString::number(number)));
        }
        QVERIFY(!context.contains(u"5000"_s));
        QCOMPARE(context.messages().size(), std::size_t(5000));
    }

    void contextOfTheSameNameIsReplaced()
    {
        TranslationTable table;
        table.addString(clt, a);
        TranslationContext context(clt);
        context.append({b, QString(), QString(), QString()});
        table.setContext(context);
        QVERIFY(!table.contains(clt, a));
        QVERIFY(table.contains(clt, b));
        QCOMPARE(table.contexts().size(), std::size_t(1));
    }

    void contextIsFoundWithAnyHint()
    {
        TranslationTable table;
        for (const char16_t name : u"bdfh")
            table.addString(QString(QChar(name)), a);
        const std::size_t before = table.contexts().size();
        for (auto hint = table.contexts().begin(); hint != table.contexts().end(); ++hint) {
            QCOMPARE(table.contextNamed(b, hint)->second.name(), b);
            QCOMPARE(table.contextNamed(u"h"_s, hint)->second.name(), u"h"_s);
        }
        QCOMPARE(table.contexts().size(), before);
        QCOMPARE(table.contextNamed(u"c"_s, table.contexts().end())->second.name(), u"c"_s);
        QCOMPARE(table.contexts().size(), before + 1);
    }

    void everyMessageWithASourceTextGetsTheType()
    {
        TranslationTable table;
        for (const QString &source : {a, b, a})
            table.addString(clt, source);
        table.addString(net, a);
        table.setType(clt, {a}, u"obsolete"_s);
        table.setType(u"None"_s, {a}, u"obsolete"_s);
        QStringList types;
        for (const QString &name : {clt, net}) {
            for (const TranslationMessage &message : messagesOf(table, name))
                types += message.type;
        }
        const QString obsolete = u"obsolete"_s;
        const QString unfinished = u"unfinished"_s;
        QCOMPARE(types, QStringList({obsolete, unfinished, obsolete, unfinished}));
        QCOMPARE(table.contexts().size(), std::size_t(2));
    }

    void errorOfAFileThatCannotBeOpenedIsTheSystems()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"missing.ts"_s);
        QFile file(fileName);
        QVERIFY(!file.open(QIODevice::ReadOnly));
        TranslationTable table;
        table.addString(clt, a);
        QVERIFY(!table.load(fileName));
        QCOMPARE(table.errorString(), file.errorString());
        QVERIFY(table.contains(clt, a));
    }

    void successfulLoadClearsTheError()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"table.ts"_s);
        TranslationTable table;
        QVERIFY(!table.load(fileName));
        QVERIFY(TranslationTable().save(fileName));
        QVERIFY(table.load(fileName));
        QCOMPARE(table.errorString(), QString());
    }

    void loadingReplacesOnlyContextsOfTheFile()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"table.ts"_s);
        TranslationTable saved;
        saved.addString(clt, b);
        QVERIFY(saved.save(fileName));
        TranslationTable table;
        table.setVersion(u"2.1"_s);
        table.addString(clt, a);
        table.addString(net, a);
        QVERIFY(table.load(fileName));
        QVERIFY(!table.contains(clt, a));
        QVERIFY(table.contains(clt, b));
        QVERIFY(table.contains(net, a));
        QCOMPARE(table.version(), QString());
    }

    void nulCannotBeWritten_data()
    {
        QTest::addColumn<TranslationMessage>("message");
        const QString nul = u"x"_s + QChar(u'\0');
        QTest::newRow("source") << TranslationMessage{nul, a, QString(), QString()};
        QTest::newRow("translation") << TranslationMessage{a, nul, QString(), QString()};
        QTest::newRow("comment") << TranslationMessage{a, a, QString(), nul};
        QTest::newRow("type") << TranslationMessage{a, a, nul, QString()};
    }

    void nulCannotBeWritten()
    {
        QFETCH(const TranslationMessage, message);
        TranslationTable table;
        TranslationContext context(clt);
        context.append(message);
        table.setContext(context);
        QCOMPARE(written(table), QByteArray());
    }

    void attributesCannotHoldControlCharacters()
    {
        TranslationTable table;
        table.setLanguage(QString(QChar(0x1b)));
        QCOMPARE(written(table), QByteArray());
    }

    void failedSaveLeavesTheFile()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"table.ts"_s);
        QVERIFY(writeBytes(fileName, "old"));
        TranslationTable table;
        table.addString(clt, QString(QChar(u'\0')));
        QVERIFY(!table.save(fileName));
        QCOMPARE(fileBytes(fileName), QByteArray("old"));
        QVERIFY(!table.save(folder.path(u"missing/table.ts"_s)));
        QVERIFY(!table.save(folder.path()));
    }

    void savingAnUnchangedTableLeavesTheTimeStamp()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"table.ts"_s);
        TranslationTable table;
        table.addString(clt, a);
        QVERIFY(table.save(fileName));
        const QDateTime old = QDateTime(QDate(2001, 2, 3), QTime(4, 5, 6));
        QVERIFY(setChangeTime(fileName, old));
        QVERIFY(table.save(fileName));
        QCOMPARE(QFileInfo(fileName).lastModified(), old);
    }

    void damagedFileIsCopiedOnceBeforeItIsReplaced()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"table.ts"_s);
        const QString copyName = fileName + u".damaged"_s;
        QVERIFY(writeBytes(fileName, "<TS>\r\n<context>"));
        TranslationTable table;
        QVERIFY(!table.load(fileName));
        QVERIFY(table.save(fileName));
        QCOMPARE(fileBytes(copyName), QByteArray("<TS>\r\n<context>"));
        table.addString(clt, a);
        QVERIFY(table.save(fileName));
        QCOMPARE(fileBytes(copyName), QByteArray("<TS>\r\n<context>"));
    }

    void damagedFileIsCopiedHoweverItsPathIsSpelled_data()
    {
        QTest::addColumn<QString>("loaded");
        QTest::addColumn<QString>("saved");
        const QString native = m_folder.path(u"table.ts"_s);
        const QString portable = QDir::fromNativeSeparators(native);
        const QString roundabout = m_folder.path(u"./table.ts"_s);
        QTest::newRow("native") << native << native;
        QTest::newRow("portable") << portable << portable;
        QTest::newRow("loaded native, saved portable") << native << portable;
        QTest::newRow("loaded portable, saved native") << portable << native;
        QTest::newRow("through its folder") << native << roundabout;
    }

    void damagedFileIsCopiedHoweverItsPathIsSpelled()
    {
        QFETCH(const QString, loaded);
        QFETCH(const QString, saved);
        const QString copyName = m_folder.path(u"table.ts.damaged"_s);
        QFile::remove(copyName);
        QVERIFY(writeBytes(loaded, "<TS>"));
        TranslationTable table;
        QVERIFY(!table.load(loaded));
        QVERIFY(table.save(saved));
        QCOMPARE(fileBytes(copyName), QByteArray("<TS>"));
    }

    void damagedFileThatCannotBeCopiedIsNotReplaced()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"table.ts"_s);
        QVERIFY(writeBytes(fileName, "<TS>"));
        QVERIFY(QDir().mkdir(fileName + u".damaged"_s));
        TranslationTable table;
        QVERIFY(!table.load(fileName));
        QVERIFY(!table.save(fileName));
        QCOMPARE(fileBytes(fileName), QByteArray("<TS>"));
    }

    void damagedFileRemainsIfTheTableIsSavedElsewhere()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"table.ts"_s);
        QVERIFY(writeBytes(fileName, "<TS>"));
        TranslationTable table;
        QVERIFY(!table.load(fileName));
        QVERIFY(table.save(folder.path(u"other.ts"_s)));
        QCOMPARE(fileBytes(fileName), QByteArray("<TS>"));
        QVERIFY(!QFile::exists(fileName + u".damaged"_s));
        QVERIFY(!QFile::exists(folder.path(u"other.ts.damaged"_s)));
    }

    void otherFilesAreReplacedWithoutACopy()
    {
        const TestFolder folder;
        const QString damaged = folder.path(u"damaged.ts"_s);
        const QString other = folder.path(u"other.ts"_s);
        QVERIFY(writeBytes(damaged, "<TS>"));
        QVERIFY(writeBytes(other, "old"));
        QVERIFY(TranslationTable().save(other));
        TranslationTable table;
        QVERIFY(!table.load(damaged));
        QVERIFY(table.save(other));
        QVERIFY(!QFile::exists(other + u".damaged"_s));
        QCOMPARE(fileBytes(damaged), QByteArray("<TS>"));
    }

    void missingDamagedFileIsIgnored()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"table.ts"_s);
        QVERIFY(writeBytes(fileName, "<TS>"));
        TranslationTable table;
        QVERIFY(!table.load(fileName));
        QVERIFY(QFile::remove(fileName));
        QVERIFY(table.save(fileName));
        QVERIFY(table.save(fileName));
        QVERIFY(!QFile::exists(fileName + u".damaged"_s));
    }

    void deviceThatFailsIsAnError_data()
    {
        QTest::addColumn<QByteArray>("read");
        QTest::newRow("immediately") << QByteArray();
        QTest::newRow("within the root") << QByteArray("<TS><defaultcodec/>");
        QTest::newRow("within a context") << QByteArray("<TS><context><name>C</name>");
        QTest::newRow("within a message") << QByteArray("<TS><context><message><source>A</source>");
        QTest::newRow("within a text") << QByteArray("<TS><context><message><source>A");
    }

    void deviceThatFailsIsAnError()
    {
        QFETCH(const QByteArray, read);
        BrokenDevice device(read);
        TranslationTable table;
        QVERIFY(!Translation::readTranslationTable(device, table));
    }

private:
    TestFolder m_folder;
};

NVX_GUILESS_TEST(tst_translation_table)
#include "tst_translation_table.moc"
