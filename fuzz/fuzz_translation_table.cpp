// Reads bytes as a translation file. A table that was read can be written, and is then read unchanged. Qt's
// reader alone must read the same from the same bytes.

#include "translation/error_translation_table.h"
#include "translation/translation_table_xml.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>

using Translation::TranslationRoot;
using Translation::TranslationTable;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

using Read = Nvx::Util::Result<TranslationRoot> (*)(QIODevice &, TranslationTable &);

Nvx::Util::Result<TranslationRoot> read(const QByteArray &bytes, TranslationTable &table,
                                        Read reader = Translation::readTranslationTable)
{
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly | QIODevice::Text);
    return reader(device, table);
}

QByteArray written(const TranslationTable &table)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    require(Translation::writeTranslationTable(device, table));
    return device.data();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    TranslationTable table;
    const QByteArray input(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const auto root = read(input, table);
    require(!root || *root == TranslationRoot::Found || table.contexts().empty());
    const QByteArray file = written(table);

    TranslationTable readWithQt;
    const auto rootWithQt = read(input, readWithQt, Translation::readTranslationTableWithQt);
    require(written(readWithQt) == file && root.error() == rootWithQt.error());
    require(!root || *root == *rootWithQt);
    require(table.leftovers().logLines({}) == readWithQt.leftovers().logLines({}));

    TranslationTable again;
    require(bool(read(file, again)));
    require(written(again) == file);
    for (const auto &[name, context] : table.contexts()) {
        for (const Translation::TranslationMessage &message : context.messages())
            require(again.contains(name, message.source));
    }
    return 0;
}
