// Measures message tables and translation tables, compared with Qt's XML reader and writer on the same bytes.
// Arguments: numbers of messages, by default 1000 10000 100000 1000000. Each number is measured in a separate
// process, so that the memory of one measurement does not affect the next.

#include "clt_message_table.h"
#include "clt_message_table_xml.h"
#include "measure.h"
#include "translation/error_translation_table.h"
#include "translation/translation_update.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

using Clt::Message;
using Clt::MessageTable;

constexpr int messagesPerContext = 12;
const QString tableName = u"table.xml"_s;
const QString oneOption = u"--one"_s;

Message messageOf(int number)
{
    Message message;
    message.setSeverity(static_cast<Clt::Severity>(number % 5));
    message.setState(static_cast<Clt::MessageState>(number % 3));
    const int context = number / messagesPerContext;
    message.setKey({u"MESSAGE_TAG_%1"_s.arg(number, 7, 10, QLatin1Char('0')),
                    u"Clt::Component%1::handleRequest"_s.arg(context, 6, 10, QLatin1Char('0')), u"client"_s});
    message.setTitle(u"Title of message %1"_s.arg(number));
    message.setText(u"The value %1 of the boundary condition number %2 lies outside the range that "
                    "the turbulence model allows."_s.arg(u"%1"_s)
                        .arg(number));
    message.setAction(u"Choose a value within the range, then run the analysis %1 again."_s.arg(number));
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
        qFatal("cannot read the written file");
    QXmlStreamReader xml(&file);
    while (!xml.atEnd())
        xml.readNext();
}

struct Element
{
    QString name;
    QString text;
};

/// The elements of one written message.
struct Elements
{
    QString severity;
    std::vector<Element> key;
    std::vector<Element> texts;
};

Elements elementsOf(const Message &message)
{
    Elements elements{Clt::severityToText(message.severity()),
                      {{u"process"_s, message.key().process},
                       {u"context"_s, message.key().context},
                       {u"tag"_s, message.key().tag}},
                      {}};
    const bool critical = message.severity() == Clt::Severity::Critical;
    if (critical || message.severity() == Clt::Severity::Question)
        elements.texts.push_back({u"title"_s, message.title()});
    elements.texts.push_back({u"text"_s, message.text()});
    if (critical)
        elements.texts.push_back({u"action"_s, message.action()});
    if (message.state() != Clt::MessageState::InSync)
        elements.texts.push_back({u"state"_s, Clt::stateToText(message.state())});
    if (message.solution() != 0)
        elements.texts.push_back({u"solution"_s, QString::number(message.solution())});
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
    xml.writeStartElement(u"messageTable"_s);
    for (const Elements &message : messages) {
        xml.writeStartElement(u"message"_s);
        xml.writeAttribute(u"severity"_s, message.severity);
        xml.writeStartElement(u"key"_s);
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
                qFatal("cannot load the written file");
        },
        [&fileName] { readTokens(fileName); });
}

// Each save changes one text, so that the file is compared and written each time.
Bench::Pair measureSave(MessageTable &table, const QString &fileName, const QString &peerFileName)
{
    std::vector<Elements> elements;
    for (const auto &[key, message] : table)
        elements.push_back(elementsOf(message));
    Message last = std::prev(table.end())->second;
    int run = 0;
    return Bench::sideBySide(
        [&] {
            last.setText(u"run %1"_s.arg(run++));
            table.insert(last);
            if (!table.save(fileName))
                qFatal("cannot save");
        },
        [&] { writeElements(elements, peerFileName); });
}

/// Nanoseconds per message, with an empty translation table and with the resulting one.
struct Feeding
{
    double first = 0;
    double again = 0;
};

template<typename Once>
Feeding medianFeeding(std::size_t messages, Once once)
{
    Bench::Samples first{};
    Bench::Samples again{};
    for (std::size_t run = 0; run < Bench::runs; ++run)
        once(first[run], again[run]);
    const double nanoseconds = 1e6 / static_cast<double>(messages);
    return {Bench::median(first) * nanoseconds, Bench::median(again) * nanoseconds};
}

/// In memory.
Feeding measureFeeding(const MessageTable &messages)
{
    return medianFeeding(messages.size(), [&messages](double &first, double &again) {
        Translation::TranslationTable table;
        first = Bench::milliseconds([&] { Translation::addMessageTexts(table, messages); });
        again = Bench::milliseconds([&] { Translation::addMessageTexts(table, messages); });
    });
}

/// From file to file.
Feeding measureUpdate(int count, const QString &messages, const QString &translation)
{
    const auto update = [&] {
        QString log;
        QTextStream stream(&log);
        if (!Translation::synchronizeTranslationTable(messages, translation, stream, stream))
            qFatal("cannot update");
    };
    return medianFeeding(static_cast<std::size_t>(count), [&](double &first, double &again) {
        QFile::remove(translation);
        first = Bench::milliseconds(update);
        again = Bench::milliseconds(update);
    });
}

void measure(int count, const QDir &folder, QTextStream &out)
{
    const QString fileName = folder.filePath(tableName);
    const double before = Bench::peakMemory();
    MessageTable table;
    if (!table.load(fileName))
        qFatal("cannot load the written file");
    const double memory = Bench::peakMemory() - before;

    const Feeding feeding = measureFeeding(table);
    const Bench::Pair load = measureLoad(fileName);
    const Feeding update = measureUpdate(count, fileName, folder.filePath(u"table.ts"_s));
    const Bench::Pair save = measureSave(table, fileName, folder.filePath(u"peer.xml"_s));
    out << QString::asprintf("%9d %8.1f %8.1f %5.2f %8.1f %8.1f %5.2f %8.0f %6.0f %8.0f %6.0f %7.1f\n", count,
                             load.ours, load.peer, load.ratio(), save.ours, save.peer, save.ratio(),
                             feeding.first, feeding.again, update.first, update.again, memory);
}

void measureInProcesses(const QStringList &counts)
{
    for (const QString &count : counts) {
        const QTemporaryDir folder;
        if (!tableOf(count.toInt()).save(folder.filePath(tableName)))
            qFatal("cannot save");
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QCoreApplication::applicationFilePath(), {oneOption, count, folder.path()});
        process.waitForFinished(-1);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    QTextStream out(stdout);
    if (arguments.value(0) == oneOption) {
        measure(arguments.value(1).toInt(), QDir(arguments.value(2)), out);
        return 0;
    }
    if (arguments.isEmpty())
        arguments = u"1000 10000 100000 1000000"_s.split(u' ');
    out << "medians of five: load, save and their peers in ms; feeding a translation table in memory, and "
           "updating\n"
        << "its file from the message table's, in ns per message; memory of the loaded table in MB\n"
        << " messages     load   tokens ratio     save   writer ratio     feed  again   update  again  "
           "memory\n"
        << Qt::flush;
    measureInProcesses(arguments);
    return 0;
}
