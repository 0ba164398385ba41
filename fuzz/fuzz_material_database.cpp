// Reads bytes as a material database: as they are, or each as a piece of markup, so that documents come
// about. A table brought in step with the names holds them all, also once it was written and read back, and
// has nothing to add then.

#include "materials/mat_material_name.h"
#include "materials/mat_translation_table.h"
#include "translation/error_translation_table.h"
#include "translation/translation_table_xml.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

QByteArray document(const QByteArray &bytes)
{
    static const QByteArrayList pieces{"<material>", "</material>", "<name>",   "</name>",  "<name/>",
                                       "<x>",        "</x>",        "<m:name>", "&amp;",    "&#13;",
                                       "&e;",        "<![CDATA[",   "]]>",      "<!--",     "-->",
                                       "Air",        " ",           "\r\n",     "\xc3\x96", "<?pi?>"};
    QByteArray text = "<!DOCTYPE m [<!ENTITY e 'A<x/>'>]><m xmlns:m='m'>";
    for (const char byte : bytes)
        text += pieces.at(static_cast<uchar>(byte) % pieces.size());
    return text + "</m>";
}

mat::MaterialNames read(const QByteArray &bytes)
{
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly);
    return mat::readMaterialNames(device);
}

Error::TranslationTable writtenAndRead(const Error::TranslationTable &table)
{
    QBuffer device;
    device.open(QIODevice::ReadWrite);
    require(Error::writeTranslationTable(device, table));
    device.seek(0);
    Error::TranslationTable again;
    require(mat::readTable(device, again).isEmpty());
    return again;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const mat::MaterialNames database = read(input.startsWith('m') ? document(input.mid(1)) : input);
    require(database.error.isEmpty() || database.names.isEmpty());

    Error::TranslationTable table;
    const mat::NameCounts counts = mat::synchronizeNames(table, database.names).counts;
    require(counts.added == counts.found && counts.obsolete == 0);
    Error::TranslationTable again = writtenAndRead(table);
    const mat::NameSynchronization second = mat::synchronizeNames(again, database.names);
    require(second.counts.added == 0 && second.counts.obsolete == 0 && !second.isChanged);
    return 0;
}
