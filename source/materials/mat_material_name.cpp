#include "materials/mat_material_name.h"

#include "clt_xml_source.h"
#include "clt_xml_text.h"
#include "nvx_util/regular_file.h"

#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

using Nvx::Util::Failure;
using Nvx::Util::Result;

namespace Materials {

namespace {

Failure failureAt(const QString &error, qint64 line)
{
    return {u"%1 at line %2"_s.arg(error, QString::number(line))};
}

/// The text of the current element, including that of its children. It counts the levels and does not
/// recurse, because a file may nest elements as deeply as it likes.
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

Result<QStringList> readMaterialNames(QIODevice &device)
{
    QXmlStreamReader xml(&device);
    if (const qint64 line = Clt::limitExpansion(xml, device))
        return failureAt(Clt::tooManyAttributes(), line);
    QStringList names;
    qint64 openMaterials = 0;
    while (Clt::canRead(xml)) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::StartElement && xml.name() == u"material")
            ++openMaterials;
        else if (token == QXmlStreamReader::EndElement && xml.name() == u"material")
            --openMaterials;
        else if (token == QXmlStreamReader::StartElement && xml.name() == u"name" && openMaterials > 0)
            names.append(readWholeText(xml));
    }
    if (xml.hasError())
        return failureAt(xml.errorString(), xml.lineNumber());
    return names;
}

Result<QStringList> readMaterialNames(const QString &fileName)
{
    Nvx::Util::RegularFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return Failure{file.errorString()};
    const Result<QStringList> names = readMaterialNames(file);
    // The reader treats a read error as the end of the file.
    if (file.error() != QFileDevice::NoError)
        return Failure{file.errorString()};
    return names;
}

} // namespace Materials
