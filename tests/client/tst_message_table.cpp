#include "clt_message_table.h"
#include "clt_message_table_xml.h"
#include "clt_message_xml.h"
#include "clt_xml_source.h"
#include "support/broken_device.h"
#include "support/file_bytes.h"
#include "support/recorded_assertions.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QBuffer>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

using Clt::Message;
using Clt::MessageKey;
using Clt::MessageTable;

namespace {

MessageKey keyOf(const QString &process, const QString &context, const QString &tag)
{
    return {tag, context, process};
}

Message messageOf(const QString &process, const QString &context, const QString &tag,
                  const QString &text = QString())
{
    Message message;
    message.setKey(keyOf(process, context, tag));
    message.setText(text);
    return message;
}

QStringList shownKeys(const MessageTable &table)
{
    QStringList shown;
    for (const auto &[key, message] : table)
        shown += key.displayText();
    return shown;
}

const QString p = u"p"_s;

/// Moves the reader to the start element of the document.
void readToRoot(QXmlStreamReader &xml, const QString &document)
{
    xml.addData(document);
    xml.readNextStartElement();
}

} // namespace

class tst_message_table : public QObject
{
    Q_OBJECT

private slots:
    void newTableIsEmpty()
    {
        const MessageTable table;
        QVERIFY(table.isEmpty());
        QCOMPARE(table.size(), std::size_t(0));
        QVERIFY(table.keys().isEmpty());
        QVERIFY(table.begin() == table.end());
    }

    // A table of 100,000 messages has few processes and contexts.
    void neighboursShareTheTextsOfTheirKeys()
    {
        MessageTable table;
        const QStringList tags{u"a"_s, u"b"_s, u"c"_s};
        for (const QString &tag : tags)
            table.insert(messageOf(u"process"_s.repeated(2), u"context"_s.repeated(2), tag));
        const MessageKey &first = table.begin()->first;
        for (const auto &[key, message] : table) {
            QCOMPARE(key.process.constData(), first.process.constData());
            QCOMPARE(key.context.constData(), first.context.constData());
        }
    }

    void missingKeyHasAnEmptyMessage()
    {
        MessageTable table;
        table.insert(messageOf(p, u"A::B"_s, u"t"_s, u"text"_s));
        const Message missing = table.message(keyOf(p, u"B"_s, u"t"_s));
        QVERIFY(missing.text().isEmpty());
        QCOMPARE(missing.key(), MessageKey());
    }

    void messagesAreInKeyOrder()
    {
        MessageTable table;
        table.insert(messageOf(u"B"_s, u"a"_s, u"a"_s));
        table.insert(messageOf(u"A"_s, u"z"_s, u"z"_s));
        table.insert(messageOf(u"A"_s, u"z"_s, u"a"_s));
        table.insert(messageOf(u"A"_s, u"b"_s, u"z"_s));
        QCOMPARE(shownKeys(table),
                 QStringList({u"(A, b, z)"_s, u"(A, z, a)"_s, u"(A, z, z)"_s, u"(B, a, a)"_s}));
    }

    void messagesWithDifferentTagsAreBothStored()
    {
        MessageTable table;
        table.insert(messageOf(p, p, u"a"_s));
        table.insert(messageOf(p, p, u"b"_s));
        QCOMPARE(table.size(), std::size_t(2));
    }

    void insertingReplacesTheMessageOfTheKey()
    {
        MessageTable table;
        table.insert(messageOf(p, p, p, u"old"_s));
        table.insert(messageOf(p, u"q"_s, p));
        table.insert(messageOf(p, p, p, u"new"_s));
        QCOMPARE(table.size(), std::size_t(2));
        QCOMPARE(table.message(keyOf(p, p, p)).text(), u"new"_s);
    }

    void removingReturnsWhetherThereWasAMessage()
    {
        MessageTable table;
        table.insert(messageOf(p, u"B::C"_s, p));
        QVERIFY(!table.remove(keyOf(p, u"A::B::C"_s, p)));
        QVERIFY(table.remove(keyOf(p, u"B::C"_s, p)));
        QVERIFY(!table.remove(keyOf(p, u"B::C"_s, p)));
        QVERIFY(table.isEmpty());
    }

    void keysAreAllKeys()
    {
        MessageTable table;
        table.insert(messageOf(p, p, u"a"_s));
        table.insert(messageOf(p, p, u"b"_s));
        QCOMPARE(table.keys(), QSet<MessageKey>({keyOf(p, p, u"a"_s), keyOf(p, p, u"b"_s)}));
    }

    void copiesAreIndependent()
    {
        MessageTable table;
        table.insert(messageOf(p, p, u"a"_s));
        MessageTable copy = table;
        copy.insert(messageOf(p, p, u"b"_s));
        table = MessageTable();
        QCOMPARE(copy.size(), std::size_t(2));
        QVERIFY(table.isEmpty());
        table = copy;
        QCOMPARE(shownKeys(table), shownKeys(copy));
    }

    void lookUpFallsBackToTheShortenedContext_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("asked");
        QTest::addColumn<bool>("found");
        QTest::newRow("the same") << u"X::Y::Z"_s << u"X::Y::Z"_s << true;
        QTest::newRow("stored without the namespace") << u"Y::Z"_s << u"X::Y::Z"_s << true;
        QTest::newRow("one of four parts is dropped") << u"X::Y::Z"_s << u"W::X::Y::Z"_s << true;
        QTest::newRow("only one part is dropped") << u"Y::Z"_s << u"W::X::Y::Z"_s << false;
        QTest::newRow("two parts are not shortened") << u"Z"_s << u"Y::Z"_s << false;
        QTest::newRow("no part is added") << u"X::Y::Z"_s << u"Y::Z"_s << false;
    }

    void lookUpFallsBackToTheShortenedContext()
    {
        QFETCH(const QString, stored);
        QFETCH(const QString, asked);
        QFETCH(const bool, found);
        MessageTable table;
        table.insert(messageOf(p, stored, u"t"_s, u"text"_s));
        const Message message = table.message(keyOf(p, asked, u"t"_s));
        QCOMPARE(message.text(), found ? u"text"_s : QString());
        QCOMPARE(message.key().context, found ? stored : QString());
        QCOMPARE(table.contains(keyOf(p, asked, u"t"_s)), stored == asked);
    }

    void fullContextIsPreferredToTheShortened()
    {
        MessageTable table;
        table.insert(messageOf(p, u"Y::Z"_s, p, u"short"_s));
        table.insert(messageOf(p, u"X::Y::Z"_s, p, u"whole"_s));
        QCOMPARE(table.message(keyOf(p, u"X::Y::Z"_s, p)).text(), u"whole"_s);
    }

    void fallbackKeepsProcessAndTag()
    {
        MessageTable table;
        table.insert(messageOf(u"q"_s, u"Y::Z"_s, p, u"other process"_s));
        table.insert(messageOf(p, u"Y::Z"_s, u"q"_s, u"other tag"_s));
        QCOMPARE(table.message(keyOf(p, u"X::Y::Z"_s, p)).text(), QString());
    }

    void fileThatCannotBeOpenedLeavesTheTableUnchanged()
    {
        const TestFolder folder;
        MessageTable table;
        table.insert(messageOf(p, p, p));
        QVERIFY(!table.load(folder.path(u"missing.xml"_s)));
        QVERIFY(!table.load(folder.path()));
        QCOMPARE(table.size(), std::size_t(1));
    }

    void savingIntoAMissingFolderFails()
    {
        const TestFolder folder;
        QVERIFY(!MessageTable().save(folder.path(u"missing/table.xml"_s)));
    }

    void savingOverAFolderFails()
    {
        const TestFolder folder;
        QVERIFY(!MessageTable().save(folder.path()));
    }

    void savingAnUnchangedTableLeavesTheTimeStamp()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"table.xml"_s);
        MessageTable table;
        table.insert(messageOf(p, p, p, u"ä"_s));
        QVERIFY(table.save(fileName));
        const QDateTime old = QDateTime(QDate(2001, 2, 3), QTime(4, 5, 6));
        QVERIFY(setChangeTime(fileName, old));
        QVERIFY(table.save(fileName));
        QCOMPARE(QFileInfo(fileName).lastModified(), old);
        table.insert(messageOf(p, p, p, u"ö"_s));
        QVERIFY(table.save(fileName));
        QVERIFY(QFileInfo(fileName).lastModified() > old);
    }

    void textThatXmlCannotRepresentIsNotSaved_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("escape") << QString(QChar(0x1b));
        QTest::newRow("NUL") << QString(QChar(u'\0'));
        QTest::newRow("vertical tab") << QString(QChar(0x0b));
        QTest::newRow("U+FFFE") << QString(QChar(0xfffe));
        QTest::newRow("U+FFFF") << QString(QChar(0xffff));
        QTest::newRow("high surrogate at the end") << QString(QChar(0xd834));
        QTest::newRow("high surrogate before a letter") << QString(QChar(0xd834)) + u'a';
        QTest::newRow("low surrogate") << QString(QChar(0xdd1e));
    }

    void textThatXmlCannotRepresentIsNotSaved()
    {
        QFETCH(const QString, text);
        const TestFolder folder;
        const QString fileName = folder.path(u"table.xml"_s);
        QVERIFY(writeBytes(fileName, "old"));
        MessageTable asText;
        asText.insert(messageOf(p, p, p, text));
        QVERIFY(!asText.save(fileName));
        MessageTable asTag;
        asTag.insert(messageOf(p, p, text));
        QVERIFY(!asTag.save(fileName));
        QCOMPARE(fileBytes(fileName), QByteArray("old"));
    }

    void marksOfAMergeFarAfterAnErrorAreNotLookedAt()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"table.xml"_s);
        const QByteArray marks = "\n<<<<<<< HEAD\n=======\n>>>>>>> main\n";
        MessageTable table;
        QVERIFY(writeBytes(fileName, "<messageTable></wrong>" + marks));
        QVERIFY(!table.load(fileName));
        QCOMPARE(table.errorString(), u"The marks of an unfinished merge at line 2"_s);
        QVERIFY(writeBytes(fileName, "<messageTable></wrong>" + QByteArray(1000, ' ') + marks));
        QVERIFY(!table.load(fileName));
        QVERIFY2(table.errorString().endsWith(u" at line 1"_s), qPrintable(table.errorString()));
    }

    void unknownSeverityAndStateAreWrittenAsSuch()
    {
        MessageTable table;
        Message message = messageOf(p, p, p);
        message.setSeverity(static_cast<Clt::Severity>(9));
        message.setState(static_cast<Clt::MessageState>(9));
        table.insert(message);
        QBuffer written;
        QVERIFY(written.open(QIODevice::WriteOnly));
        const RecordedAssertions failed;
        QVERIFY(Clt::writeMessageTable(written, table));
        QVERIFY(written.data().contains("<message severity=\"Unknown\">"));
        QVERIFY(written.data().contains("<state>Unknown</state>"));
        const QString failure = u"false in clt_message"_s;
        QCOMPARE(failed.list(), QStringList({failure, failure}));
    }

    void deviceThatFailsIsReported()
    {
        QBuffer closed;
        MessageTable table;
        table.insert(messageOf(p, p, p));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"device not open"_s));
        QVERIFY(!Clt::writeMessageTable(closed, table));
    }

    void messageReaderAssertsItsElement()
    {
        QXmlStreamReader xml;
        readToRoot(xml, u"<note severity=\"Warning\"/>"_s);
        const RecordedAssertions failed;
        Clt::QtXmlSource source(xml);
        Clt::Leftovers leftovers;
        QVERIFY(Clt::readMessage(source, leftovers));
        QCOMPARE(failed.list(),
                 QStringList(u"xml.isStartElement() && xml.name() == \"message\" in clt_message"_s));
    }

    void keyReaderAssertsItsElement()
    {
        QXmlStreamReader xml;
        readToRoot(xml, u"<note><tag>T</tag></note>"_s);
        const RecordedAssertions failed;
        Clt::QtXmlSource source(xml);
        Clt::Leftovers leftovers;
        QCOMPARE(Clt::readMessageKey(source, leftovers).tag, u"T"_s);
        QCOMPARE(failed.list(),
                 QStringList(u"xml.isStartElement() && xml.name() == \"key\" in clt_message"_s));
    }

    void tableBodyReaderAssertsItsElement()
    {
        QXmlStreamReader xml;
        readToRoot(xml, u"<note><message severity=\"Status\"/></note>"_s);
        MessageTable table;
        const RecordedAssertions failed;
        Clt::QtXmlSource source(xml);
        Clt::Leftovers leftovers;
        Clt::readMessageTableBody(source, table, leftovers);
        QCOMPARE(table.size(), std::size_t(1));
        QCOMPARE(failed.list(),
                 QStringList(
                     u"m_xml.isStartElement() && m_xml.name() == \"messageTable\" in clt_message_table"_s));
    }

    void readingFromADeviceThatBreaksFails_data()
    {
        QTest::addColumn<QByteArray>("read");
        QTest::newRow("at the start") << QByteArray();
        QTest::newRow("within the root") << QByteArray("<messageTable>");
        QTest::newRow("within a message")
            << QByteArray("<messageTable><message severity=\"Status\"><text>T</text>");
        QTest::newRow("within a key")
            << QByteArray("<messageTable><message severity=\"Status\"><key><tag>T</tag>");
        QTest::newRow("within a text") << QByteArray("<messageTable><message severity=\"Status\"><text>T");
    }

    void readingFromADeviceThatBreaksFails()
    {
        QFETCH(const QByteArray, read);
        BrokenDevice device(read);
        MessageTable table;
        QVERIFY(!Clt::readMessageTable(device, table));
    }
};

NVX_GUILESS_TEST(tst_message_table)
#include "tst_message_table.moc"
