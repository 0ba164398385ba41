// Reads bytes as a material database: unchanged, or each byte as a piece of markup, which produces documents.
// A table that was synchronised with the names has them all, also after it was written and read again;
// another synchronisation changes nothing.

#include "materials/mat_material_name.h"
#include "materials/mat_translation_table.h"
#include "translation/error_translation_table.h"
#include "translation/translation_table_xml.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>
#include <utility>

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

Nvx::Util::Result<QStringList> readNames(const QByteArray &bytes)
{
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly);
    return Materials::readMaterialNames(device);
}

Translation::TranslationTable writtenAndRead(const Translation::TranslationTable &table)
{
    QBuffer device;
    device.open(QIODevice::ReadWrite);
    require(Translation::writeTranslationTable(device, table));
    device.seek(0);
    auto again = Materials::readTable(device);
    require(bool(again));
    return *std::move(again);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const auto read = readNames(input.startsWith('m') ? document(input.mid(1)) : input);
    const QStringList names = read ? *read : QStringList();

    Translation::TranslationTable table;
    const Materials::NameCounts counts = Materials::synchronizeNames(table, names).counts;
    require(counts.added == counts.found && counts.obsolete == 0);
    Translation::TranslationTable again = writtenAndRead(table);
    const Materials::NameSynchronization second = Materials::synchronizeNames(again, names);
    require(second.counts.added == 0 && second.counts.obsolete == 0 && !second.isChanged);
    return 0;
}
