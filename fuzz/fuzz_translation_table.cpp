// Reads bytes as a translation file. What was read must be written, and read back as it was.

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

Error::TranslationReading read(const QByteArray &bytes, Error::TranslationTable &table)
{
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly);
    return Error::readTranslationTable(device, table);
}

QByteArray written(const Error::TranslationTable &table)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    require(Error::writeTranslationTable(device, table));
    return device.data();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    Error::TranslationTable table;
    const Error::TranslationReading reading =
        read(QByteArray(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size)), table);
    require(reading.foundRoot || table.contexts().empty());
    const QByteArray file = written(table);
    Error::TranslationTable again;
    require(read(file, again).error.isEmpty());
    require(written(again) == file);
    for (const auto &[name, context] : table.contexts()) {
        for (const Error::TranslationMessage &message : context.messages())
            require(again.contains(name, message.source));
    }
    return 0;
}
