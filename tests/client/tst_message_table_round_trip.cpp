#include "clt_message_table.h"
#include "clt_message_table_xml.h"
#include "support/random_text.h"
#include "support/test_class.h"

#include <QBuffer>
#include <QTest>

#include <optional>

using Clt::Message;
using Clt::MessageTable;
using Clt::Severity;

namespace {

constexpr quint32 seeds = 60;

Message randomMessage(RandomText &random)
{
    Message message;
    message.setKey({random.text(), random.text(), random.text()});
    message.setSeverity(static_cast<Severity>(random.below(5)));
    message.setState(static_cast<Clt::MessageState>(random.below(3)));
    message.setSolution(static_cast<qint32>(random.below(7)) - 3);
    message.setTitle(random.text());
    message.setText(random.text());
    message.setAction(random.text());
    return message;
}

MessageTable randomTable(quint32 seed)
{
    RandomText random(seed);
    MessageTable table;
    for (quint32 count = random.below(60); count > 0; --count)
        table.insert(randomMessage(random));
    return table;
}

std::optional<QByteArray> written(const MessageTable &table)
{
    QBuffer device;
    if (!device.open(QIODevice::WriteOnly) || !Clt::writeMessageTable(device, table))
        return std::nullopt;
    return device.data();
}

std::optional<MessageTable> readBack(const QByteArray &bytes)
{
    QBuffer device;
    device.setData(bytes);
    MessageTable table;
    if (!device.open(QIODevice::ReadOnly) || !Clt::readMessageTable(device, table))
        return std::nullopt;
    return table;
}

bool writesTitle(const Message &message)
{
    return message.severity() == Severity::Critical || message.severity() == Severity::Question;
}

/// The texts of a message that are written to the file.
QStringList writtenTexts(const Message &message)
{
    return {message.key().displayText(),
            Clt::severityToText(message.severity()),
            Clt::stateToText(message.state()),
            QString::number(message.solution()),
            message.text(),
            writesTitle(message) ? message.title() : QString(),
            message.severity() == Severity::Critical ? message.action() : QString()};
}

} // namespace

class tst_message_table_round_trip : public QObject
{
    Q_OBJECT

private slots:
    void writtenTablesReadBackUnchanged_data() { addSeedRows(seeds); }

    void writtenTablesReadBackUnchanged()
    {
        QFETCH(const quint32, seed);
        const MessageTable table = randomTable(seed);
        const std::optional<QByteArray> bytes = written(table);
        QVERIFY(bytes);
        const std::optional<MessageTable> again = readBack(*bytes);
        QVERIFY(again);
        QCOMPARE(again->size(), table.size());
        for (const auto &[key, message] : table) {
            QVERIFY(again->contains(key));
            QCOMPARE(writtenTexts(again->message(key)), writtenTexts(message));
        }
    }

    void droppedTitlesAndActionsReadBackEmpty_data() { addSeedRows(seeds); }

    void droppedTitlesAndActionsReadBackEmpty()
    {
        QFETCH(const quint32, seed);
        const MessageTable table = randomTable(seed);
        const std::optional<QByteArray> bytes = written(table);
        QVERIFY(bytes);
        const std::optional<MessageTable> again = readBack(*bytes);
        QVERIFY(again);
        QCOMPARE(again->size(), table.size());
        for (const auto &[key, message] : *again) {
            QVERIFY(writesTitle(message) || message.title().isEmpty());
            QVERIFY(message.severity() == Severity::Critical || message.action().isEmpty());
        }
    }

    void tablesThatWereReadAreWrittenUnchanged_data() { addSeedRows(seeds); }

    void tablesThatWereReadAreWrittenUnchanged()
    {
        QFETCH(const quint32, seed);
        const std::optional<QByteArray> bytes = written(randomTable(seed));
        QVERIFY(bytes);
        const std::optional<MessageTable> again = readBack(*bytes);
        QVERIFY(again);
        QCOMPARE(written(*again), bytes);
    }

    void writingFailsForACharacterThatXmlCannotRepresent_data() { addSeedRows(seeds); }

    void writingFailsForACharacterThatXmlCannotRepresent()
    {
        QFETCH(const quint32, seed);
        MessageTable table = randomTable(seed);
        RandomText random(seed);
        Message message = randomMessage(random);
        const QString text = random.unspeakableText();
        switch (random.below(4)) {
        case 0:
            message.setText(text);
            break;
        case 1:
            message.setKey({text, message.key().context, message.key().process});
            break;
        case 2:
            message.setKey({message.key().tag, text, message.key().process});
            break;
        default:
            message.setKey({message.key().tag, message.key().context, text});
            break;
        }
        table.insert(message);
        QVERIFY(!written(table));
    }
};

NVX_GUILESS_TEST(tst_message_table_round_trip)
#include "tst_message_table_round_trip.moc"
