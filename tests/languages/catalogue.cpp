#include "catalogue.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

EntryState stateOf(const QXmlStreamReader &xml)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    if (!attributes.hasAttribute(QLatin1String("type")))
        return EntryState::Finished;
    if (attributes.value(QLatin1String("type")) == QLatin1String("unfinished"))
        return EntryState::Unfinished;
    return EntryState::Obsolete;
}

// A text with plural forms has an element for each in place of plain text.
QStringList readTranslations(QXmlStreamReader &xml, bool hasPlurals)
{
    if (!hasPlurals)
        return {xml.readElementText()};
    QStringList forms;
    while (xml.readNextStartElement())
        forms.append(xml.readElementText());
    return forms;
}

Entry readMessage(QXmlStreamReader &xml, const QString &context)
{
    Entry entry;
    entry.context = context;
    const bool hasPlurals = xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            entry.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("comment")) {
            entry.comment = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            entry.state = stateOf(xml);
            entry.translations = readTranslations(xml, hasPlurals);
        } else {
            xml.skipCurrentElement();
        }
    }
    return entry;
}

void readContext(QXmlStreamReader &xml, QList<Entry> &entries)
{
    QString name;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("name"))
            name = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            entries.append(readMessage(xml, name));
        else
            xml.skipCurrentElement();
    }
}

} // namespace

std::optional<Catalogue> readCatalogue(QIODevice &device)
{
    QXmlStreamReader xml(&device);
    if (!xml.readNextStartElement() || xml.name() != QLatin1String("TS"))
        return std::nullopt;

    Catalogue catalogue;
    catalogue.language = xml.attributes().value(QLatin1String("language")).toString();
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("context"))
            readContext(xml, catalogue.entries);
        else
            xml.skipCurrentElement();
    }
    if (xml.hasError())
        return std::nullopt;
    return catalogue;
}

QMap<QString, QStringList> readCatalogueList(QIODevice &list)
{
    QMap<QString, QStringList> folders;
    while (!list.atEnd()) {
        QStringList words = QString::fromUtf8(list.readLine())
                                .split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
        if (words.isEmpty() || words.first().startsWith(QLatin1Char('#')))
            continue;
        const QString name = words.takeFirst();
        folders.insert(name, words);
    }
    return folders;
}
