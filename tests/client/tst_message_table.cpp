#include "clt_message_table.h"
#include "clt_message_table_xml.h"
#include "clt_message_xml.h"
#include "support/broken_device.h"
#include "support/file_bytes.h"
#include "support/recorded_assertions.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QBuffer>
#include <QTest>
#include <QXmlStreamReader>

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

const QString p = QStringLiteral("p");

/// A reader that stands on the start element of a document.
void standOnRoot(QXmlStreamReader &xml, const QString &document)
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
    void neighboursHaveTheTextsOfTheirKeysInCommon()
    {
        MessageTable table;
        const QStringList tags{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
        for (const QString &tag : tags)
            table.insert(
                messageOf(QStringLiteral("process").repeated(2), QStringLiteral("context").repeated(2), tag));
        const MessageKey &first = table.begin()->first;
        for (const auto &[key, message] : table) {
            QCOMPARE(key.process.constData(), first.process.constData());
            QCOMPARE(key.context.constData(), first.context.constData());
        }
    }

    void aKeyThatIsMissingHasAnEmptyMessage()
    {
        MessageTable table;
        table.insert(messageOf(p, QStringLiteral("A::B"), QStringLiteral("t"), QStringLiteral("text")));
        const Message missing = table.message(keyOf(p, QStringLiteral("B"), QStringLiteral("t")));
        QVERIFY(missing.text().isEmpty());
        QCOMPARE(missing.key(), MessageKey());
    }

    void messagesStandInKeyOrder()
    {
        MessageTable table;
        table.insert(messageOf(QStringLiteral("B"), QStringLiteral("a"), QStringLiteral("a")));
        table.insert(messageOf(QStringLiteral("A"), QStringLiteral("z"), QStringLiteral("z")));
        table.insert(messageOf(QStringLiteral("A"), QStringLiteral("z"), QStringLiteral("a")));
        table.insert(messageOf(QStringLiteral("A"), QStringLiteral("b"), QStringLiteral("z")));
        QCOMPARE(shownKeys(table), QStringList({QStringLiteral("(A, b, z)"), QStringLiteral("(A, z, a)"),
                                                QStringLiteral("(A, z, z)"), QStringLiteral("(B, a, a)")}));
    }

    void messagesWithDifferentTagsAreBothKept()
    {
        MessageTable table;
        table.insert(messageOf(p, p, QStringLiteral("a")));
        table.insert(messageOf(p, p, QStringLiteral("b")));
        QCOMPARE(table.size(), std::size_t(2));
    }

    void insertingReplacesTheMessageOfThatKey()
    {
        MessageTable table;
        table.insert(messageOf(p, p, p, QStringLiteral("old")));
        table.insert(messageOf(p, QStringLiteral("q"), p));
        table.insert(messageOf(p, p, p, QStringLiteral("new")));
        QCOMPARE(table.size(), std::size_t(2));
        QCOMPARE(table.message(keyOf(p, p, p)).text(), QStringLiteral("new"));
    }

    void placeIsThatOfTheMessageUnderExactlyThatKey()
    {
        MessageTable table;
        table.insert(messageOf(p, QStringLiteral("B::C"), p));
        QVERIFY(!table.setPlace(keyOf(p, QStringLiteral("A::B::C"), p), QStringLiteral("a.cpp"), 1));
        QVERIFY(table.setPlace(keyOf(p, QStringLiteral("B::C"), p), QStringLiteral("b.cpp"), 2));
        QCOMPARE(table.size(), std::size_t(1));
        QCOMPARE(table.message(keyOf(p, QStringLiteral("B::C"), p)).file(), QStringLiteral("b.cpp"));
        QCOMPARE(table.message(keyOf(p, QStringLiteral("B::C"), p)).line(), 2);
    }

    void removingTellsWhetherThereWasOne()
    {
        MessageTable table;
        table.insert(messageOf(p, QStringLiteral("B::C"), p));
        QVERIFY(!table.remove(keyOf(p, QStringLiteral("A::B::C"), p)));
        QVERIFY(table.remove(keyOf(p, QStringLiteral("B::C"), p)));
        QVERIFY(!table.remove(keyOf(p, QStringLiteral("B::C"), p)));
        QVERIFY(table.isEmpty());
    }

    void keysAreAllKeys()
    {
        MessageTable table;
        table.insert(messageOf(p, p, QStringLiteral("a")));
        table.insert(messageOf(p, p, QStringLiteral("b")));
        QCOMPARE(table.keys(),
                 QSet<MessageKey>({keyOf(p, p, QStringLiteral("a")), keyOf(p, p, QStringLiteral("b"))}));
    }

    void copiesAreIndependent()
    {
        MessageTable table;
        table.insert(messageOf(p, p, QStringLiteral("a")));
        MessageTable copy = table;
        copy.insert(messageOf(p, p, QStringLiteral("b")));
        table = MessageTable();
        QCOMPARE(copy.size(), std::size_t(2));
        QVERIFY(table.isEmpty());
        table = copy;
        QCOMPARE(shownKeys(table), shownKeys(copy));
    }

    void lookUpFallsBackOnTheShortenedContext_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("asked");
        QTest::addColumn<bool>("found");
        QTest::newRow("the same") << QStringLiteral("X::Y::Z") << QStringLiteral("X::Y::Z") << true;
        QTest::newRow("filed without the name space")
            << QStringLiteral("Y::Z") << QStringLiteral("X::Y::Z") << true;
        QTest::newRow("four parts lose one")
            << QStringLiteral("X::Y::Z") << QStringLiteral("W::X::Y::Z") << true;
        QTest::newRow("only one part is lost")
            << QStringLiteral("Y::Z") << QStringLiteral("W::X::Y::Z") << false;
        QTest::newRow("two parts are not shortened")
            << QStringLiteral("Z") << QStringLiteral("Y::Z") << false;
        QTest::newRow("nothing is added") << QStringLiteral("X::Y::Z") << QStringLiteral("Y::Z") << false;
    }

    void lookUpFallsBackOnTheShortenedContext()
    {
        QFETCH(const QString, stored);
        QFETCH(const QString, asked);
        QFETCH(const bool, found);
        MessageTable table;
        table.insert(messageOf(p, stored, QStringLiteral("t"), QStringLiteral("text")));
        const Message message = table.message(keyOf(p, asked, QStringLiteral("t")));
        QCOMPARE(message.text(), found ? QStringLiteral("text") : QString());
        QCOMPARE(message.key().context, found ? stored : QString());
        QCOMPARE(table.contains(keyOf(p, asked, QStringLiteral("t"))), stored == asked);
    }

    void theWholeContextWinsOverTheShortened()
    {
        MessageTable table;
        table.insert(messageOf(p, QStringLiteral("Y::Z"), p, QStringLiteral("short")));
        table.insert(messageOf(p, QStringLiteral("X::Y::Z"), p, QStringLiteral("whole")));
        QCOMPARE(table.message(keyOf(p, QStringLiteral("X::Y::Z"), p)).text(), QStringLiteral("whole"));
    }

    void fallbackKeepsProcessAndTag()
    {
        MessageTable table;
        table.insert(
            messageOf(QStringLiteral("q"), QStringLiteral("Y::Z"), p, QStringLiteral("other process")));
        table.insert(messageOf(p, QStringLiteral("Y::Z"), QStringLiteral("q"), QStringLiteral("other tag")));
        QCOMPARE(table.message(keyOf(p, QStringLiteral("X::Y::Z"), p)).text(), QString());
    }

    void fileThatCannotBeOpenedLeavesTheTable()
    {
        const TestFolder folder;
        MessageTable table;
        table.insert(messageOf(p, p, p));
        QVERIFY(!table.load(folder.path(QStringLiteral("missing.xml"))));
        QVERIFY(!table.load(folder.path()));
        QCOMPARE(table.size(), std::size_t(1));
    }

    void savingIntoAMissingFolderFails()
    {
        const TestFolder folder;
        QVERIFY(!MessageTable().save(folder.path(QStringLiteral("missing/table.xml"))));
    }

    void savingOverAFolderFails()
    {
        const TestFolder folder;
        QVERIFY(!MessageTable().save(folder.path()));
    }

    void savingAnUnchangedTableLeavesTheTimeStamp()
    {
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("table.xml"));
        MessageTable table;
        table.insert(messageOf(p, p, p, QStringLiteral("ä")));
        QVERIFY(table.save(fileName));
        const QDateTime old = QDateTime(QDate(2001, 2, 3), QTime(4, 5, 6));
        {
            QFile file(fileName);
            QVERIFY(file.open(QIODevice::ReadWrite));
            QVERIFY(file.setFileTime(old, QFileDevice::FileModificationTime));
        }
        QVERIFY(table.save(fileName));
        QCOMPARE(QFileInfo(fileName).lastModified(), old);
        table.insert(messageOf(p, p, p, QStringLiteral("ö")));
        QVERIFY(table.save(fileName));
        QVERIFY(QFileInfo(fileName).lastModified() > old);
    }

    void textThatXmlCannotCarryIsNotSaved_data()
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

    void textThatXmlCannotCarryIsNotSaved()
    {
        QFETCH(const QString, text);
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("table.xml"));
        QVERIFY(writeBytes(fileName, "old"));
        MessageTable asText;
        asText.insert(messageOf(p, p, p, text));
        QVERIFY(!asText.save(fileName));
        MessageTable asTag;
        asTag.insert(messageOf(p, p, text));
        QVERIFY(!asTag.save(fileName));
        QCOMPARE(fileBytes(fileName), QByteArray("old"));
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
        const QString failure = QStringLiteral("false in clt_message");
        QCOMPARE(failed.list(), QStringList({failure, failure}));
    }

    void deviceThatFailsIsReported()
    {
        QBuffer closed;
        MessageTable table;
        table.insert(messageOf(p, p, p));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("device not open")));
        QVERIFY(!Clt::writeMessageTable(closed, table));
    }

    void messageReaderAssertsItsElement()
    {
        QXmlStreamReader xml;
        standOnRoot(xml, QStringLiteral("<note severity=\"Warning\"/>"));
        const RecordedAssertions failed;
        QVERIFY(Clt::readMessage(xml));
        QCOMPARE(failed.list(), QStringList(QStringLiteral(
                                    "xml.isStartElement() && xml.name() == u\"message\" in clt_message")));
    }

    void keyReaderAssertsItsElement()
    {
        QXmlStreamReader xml;
        standOnRoot(xml, QStringLiteral("<note><tag>T</tag></note>"));
        const RecordedAssertions failed;
        QCOMPARE(Clt::readMessageKey(xml).tag, QStringLiteral("T"));
        QCOMPARE(failed.list(), QStringList(QStringLiteral(
                                    "xml.isStartElement() && xml.name() == u\"key\" in clt_message")));
    }

    void tableBodyReaderAssertsItsElement()
    {
        QXmlStreamReader xml;
        standOnRoot(xml, QStringLiteral("<note><message severity=\"Status\"/></note>"));
        MessageTable table;
        const RecordedAssertions failed;
        Clt::readMessageTableBody(xml, table);
        QCOMPARE(table.size(), std::size_t(1));
        QCOMPARE(failed.list(),
                 QStringList(QStringLiteral(
                     "xml.isStartElement() && xml.name() == u\"messageTable\" in clt_message_table")));
    }

    void deviceThatBreaksIsReadToThere_data()
    {
        QTest::addColumn<QByteArray>("read");
        QTest::newRow("at once") << QByteArray();
        QTest::newRow("within the root") << QByteArray("<messageTable>");
        QTest::newRow("within a message")
            << QByteArray("<messageTable><message severity=\"Status\"><text>T</text>");
        QTest::newRow("within a key")
            << QByteArray("<messageTable><message severity=\"Status\"><key><tag>T</tag>");
        QTest::newRow("within a text") << QByteArray("<messageTable><message severity=\"Status\"><text>T");
    }

    void deviceThatBreaksIsReadToThere()
    {
        QFETCH(const QByteArray, read);
        BrokenDevice device(read);
        MessageTable table;
        QVERIFY(!Clt::readMessageTable(device, table));
    }
};

NVX_GUILESS_TEST(tst_message_table)
#include "tst_message_table.moc"
