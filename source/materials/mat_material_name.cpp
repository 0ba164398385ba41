#include "materials/mat_material_name.h"

#include "clt_xml_text.h"

#include <QFile>
#include <QXmlStreamReader>

namespace mat {

namespace {

/// The text of the element on which the reader stands, that of elements within it included. Elements may be
/// nested as deeply as the file likes, so this counts them and does not recur.
QString readWholeText(QXmlStreamReader &xml)
{
    QString text;
    for (qint64 depth = 1; depth > 0 && Clt::canRead(xml);) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::Characters)
            text += xml.text();
        else if (token == QXmlStreamReader::StartElement)
            ++depth;
        else if (token == QXmlStreamReader::EndElement)
            --depth;
    }
    return text;
}

} // namespace

MaterialNames readMaterialNames(QIODevice &device)
{
    QXmlStreamReader xml(&device);
    MaterialNames read;
    qint64 openMaterials = 0;
    while (Clt::canRead(xml)) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::StartElement && xml.name() == u"material")
            ++openMaterials;
        else if (token == QXmlStreamReader::EndElement && xml.name() == u"material")
            --openMaterials;
        else if (token == QXmlStreamReader::StartElement && xml.name() == u"name" && openMaterials > 0)
            read.names.append(readWholeText(xml));
    }
    if (xml.hasError())
        return {QStringList(),
                QStringLiteral("%1 at line %2").arg(xml.errorString(), QString::number(xml.lineNumber()))};
    return read;
}

MaterialNames readMaterialNames(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {QStringList(), file.errorString()};
    MaterialNames read = readMaterialNames(file);
    // To the reader a file that fails has come to its end.
    if (file.error() != QFileDevice::NoError)
        return {QStringList(), file.errorString()};
    return read;
}

} // namespace mat
