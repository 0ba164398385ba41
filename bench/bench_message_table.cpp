// How long message tables and translation tables take, beside the bare reader and writer on the same bytes.
// Arguments: numbers of messages, by default 1000 10000 100000 1000000.

#include "clt_message_table.h"
#include "clt_message_table_xml.h"
#include "error_translation_table.h"
#include "error_translation_update.h"
#include "measure.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTextStream>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <vector>

namespace {

using Clt::Message;
using Clt::MessageTable;

constexpr int messagesPerContext = 12;

Message messageOf(int number)
{
    Message message;
    message.setSeverity(static_cast<Clt::Severity>(number % 5));
    message.setState(static_cast<Clt::MessageState>(number % 3));
    const int context = number / messagesPerContext;
    message.setKey({QStringLiteral("MESSAGE_TAG_%1").arg(number, 7, 10, QLatin1Char('0')),
                    QStringLiteral("Clt::Component%1::handleRequest").arg(context, 6, 10, QLatin1Char('0')),
                    QStringLiteral("client")});
    message.setTitle(QStringLiteral("Title of message %1").arg(number));
    message.setText(
        QStringLiteral("The value %1 of the boundary condition number %2 lies outside the range that "
                       "the turbulence model allows.")
            .arg(QStringLiteral("%1"))
            .arg(number));
    message.setAction(
        QStringLiteral("Choose a value within the range, then run the analysis %1 again.").arg(number));
    message.setSolution(number % 7);
    return message;
}

MessageTable tableOf(int count)
{
    MessageTable table;
    for (int number = 0; number < count; ++number)
        table.insert(messageOf(number));
    return table;
}

void readTokens(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read what was written");
    QXmlStreamReader xml(&file);
    while (!xml.atEnd())
        xml.readNext();
}

struct Element
{
    QString name;
    QString text;
};

/// One message as the elements that its writing makes.
struct Elements
{
    QString severity;
    std::vector<Element> key;
    std::vector<Element> texts;
};

Elements elementsOf(const Message &message)
{
    Elements elements{Clt::severityToText(message.severity()),
                      {{QStringLiteral("process"), message.key().process},
                       {QStringLiteral("context"), message.key().context},
                       {QStringLiteral("tag"), message.key().tag}},
                      {}};
    const bool critical = message.severity() == Clt::Severity::Critical;
    if (critical || message.severity() == Clt::Severity::Question)
        elements.texts.push_back({QStringLiteral("title"), message.title()});
    elements.texts.push_back({QStringLiteral("text"), message.text()});
    if (critical)
        elements.texts.push_back({QStringLiteral("action"), message.action()});
    if (message.state() != Clt::MessageState::InSync)
        elements.texts.push_back({QStringLiteral("state"), Clt::stateToText(message.state())});
    if (message.solution() != 0)
        elements.texts.push_back({QStringLiteral("solution"), QString::number(message.solution())});
    return elements;
}

void writeElements(const std::vector<Elements> &messages, const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write");
    QXmlStreamWriter xml(&file);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(3);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("messageTable"));
    for (const Elements &message : messages) {
        xml.writeStartElement(QStringLiteral("message"));
        xml.writeAttribute(QStringLiteral("severity"), message.severity);
        xml.writeStartElement(QStringLiteral("key"));
        for (const Element &element : message.key)
            xml.writeTextElement(element.name, element.text);
        xml.writeEndElement();
        for (const Element &element : message.texts)
            xml.writeTextElement(element.name, element.text);
        xml.writeEndElement();
    }
    xml.writeEndDocument();
}

Bench::Pair measureLoad(const QString &fileName)
{
    return Bench::sideBySide(
        [&fileName] {
            MessageTable table;
            if (!table.load(fileName))
                qFatal("cannot load what was written");
        },
        [&fileName] { readTokens(fileName); });
}

// Each save changes one text, so that each time the whole file is compared and written.
Bench::Pair measureSave(MessageTable &table, const QString &fileName, const QString &peerFileName)
{
    std::vector<Elements> elements;
    for (const auto &[key, message] : table)
        elements.push_back(elementsOf(message));
    Message last = std::prev(table.end())->second;
    int run = 0;
    return Bench::sideBySide(
        [&] {
            last.setText(QStringLiteral("run %1").arg(run++));
            table.insert(last);
            if (!table.save(fileName))
                qFatal("cannot save");
        },
        [&] { writeElements(elements, peerFileName); });
}

struct Feeding
{
    double first = 0; ///< nanoseconds per message
    double again = 0;
};

Feeding measureFeeding(const MessageTable &messages)
{
    Bench::Samples first{};
    Bench::Samples again{};
    for (std::size_t run = 0; run < Bench::runs; ++run) {
        Error::TranslationTable table;
        first[run] = Bench::milliseconds([&] { Error::addMessageTexts(table, messages); });
        again[run] = Bench::milliseconds([&] { Error::addMessageTexts(table, messages); });
    }
    const double nanoseconds = 1e6 / static_cast<double>(messages.size());
    return {Bench::median(first) * nanoseconds, Bench::median(again) * nanoseconds};
}

void measure(int count, const QString &folder, QTextStream &out)
{
    const QString fileName = folder + QStringLiteral("/table.xml");
    Bench::resetPeakMemory();
    MessageTable table = tableOf(count);
    const double memory = Bench::peakMemory();
    if (!table.save(fileName))
        qFatal("cannot save");
    const Bench::Pair load = measureLoad(fileName);
    const Bench::Pair save = measureSave(table, fileName, folder + QStringLiteral("/peer.xml"));
    MessageTable loaded;
    loaded.load(fileName);
    const Feeding feeding = measureFeeding(loaded);
    out << QString::asprintf("%9d %9.2f %9.2f %6.2f %9.2f %9.2f %6.2f %9.0f %9.0f %9.1f %9.1f\n", count,
                             load.ours, load.peer, load.ratio(), save.ours, save.peer, save.ratio(),
                             feeding.first, feeding.again, memory, Bench::peakMemory())
        << Qt::flush;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QStringList counts = QCoreApplication::arguments().mid(1);
    if (counts.isEmpty())
        counts = QStringLiteral("1000 10000 100000 1000000").split(QLatin1Char(' '));
    const QTemporaryDir folder;
    QTextStream out(stdout);
    out << "medians of five; load, save and their peers in ms, feeding in ns per message, memory in MB\n"
        << " messages      load    tokens  ratio      save    writer  ratio feed once     again     table    "
           "  peak\n";
    for (const QString &count : std::as_const(counts))
        measure(count.toInt(), folder.path(), out);
    return 0;
}
