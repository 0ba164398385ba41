// Reads bytes as a material database. A table brought in step with the names holds them all, also once it was
// written and read back, and has nothing to add then.

#include "error_translation_table.h"
#include "error_translation_table_xml.h"
#include "mat_material_name.h"
#include "mat_translation_table.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
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
    const mat::MaterialNames database =
        read(QByteArray(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size)));
    require(database.error.isEmpty() || database.names.isEmpty());

    Error::TranslationTable table;
    const mat::NameCounts counts = mat::synchronizeNames(table, database.names).counts;
    require(counts.added == counts.found && counts.obsolete == 0);
    Error::TranslationTable again = writtenAndRead(table);
    const mat::NameSynchronization second = mat::synchronizeNames(again, database.names);
    require(second.counts.added == 0 && second.counts.obsolete == 0 && !second.isChanged);
    return 0;
}
