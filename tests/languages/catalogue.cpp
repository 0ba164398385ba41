#include "catalogue.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

EntryState stateOf(const QXmlStreamReader &xml)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    if (!attributes.hasAttribute("type"_L1))
        return EntryState::Finished;
    if (attributes.value("type"_L1) == "unfinished"_L1)
        return EntryState::Unfinished;
    return EntryState::Obsolete;
}

// A text with plural forms has an element for each form instead of plain text.
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
    const bool hasPlurals = xml.attributes().value("numerus"_L1) == "yes"_L1;
    while (xml.readNextStartElement()) {
        if (xml.name() == "source"_L1) {
            entry.source = xml.readElementText();
        } else if (xml.name() == "comment"_L1) {
            entry.comment = xml.readElementText();
        } else if (xml.name() == "translation"_L1) {
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
        if (xml.name() == "name"_L1)
            name = xml.readElementText();
        else if (xml.name() == "message"_L1)
            entries.append(readMessage(xml, name));
        else
            xml.skipCurrentElement();
    }
}

} // namespace

std::optional<Catalogue> readCatalogue(QIODevice &device)
{
    QXmlStreamReader xml(&device);
    if (!xml.readNextStartElement() || xml.name() != "TS"_L1)
        return std::nullopt;

    Catalogue catalogue;
    catalogue.language = xml.attributes().value("language"_L1).toString();
    while (xml.readNextStartElement()) {
        if (xml.name() == "context"_L1)
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
        QStringList words =
            QString::fromUtf8(list.readLine()).split(QRegularExpression(u"\\s+"_s), Qt::SkipEmptyParts);
        if (words.isEmpty() || words.first().startsWith(u'#'))
            continue;
        const QString name = words.takeFirst();
        folders.insert(name, words);
    }
    return folders;
}
