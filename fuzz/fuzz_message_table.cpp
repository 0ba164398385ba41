// Reads bytes as a message table. The result must be writable, and read back unchanged.

#include "clt_message_table.h"
#include "clt_message_table_xml.h"
#include "nvx_util/assertion.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>

namespace {

Clt::MessageTable tableOf(const QByteArray &bytes, bool &wellFormed)
{
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly);
    Clt::MessageTable table;
    wellFormed = bool(Clt::readMessageTable(device, table));
    return table;
}

void require(bool condition)
{
    if (!condition)
        std::abort();
}

QByteArray written(const Clt::MessageTable &table)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    require(Clt::writeMessageTable(device, table));
    return device.data();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    // Ignores failed assertions, because any table may contain unknown severities and states.
    const Nvx::Util::AssertionListener listener([](const Nvx::Util::AssertionFailure &) {});
    bool wellFormed = false;
    const Clt::MessageTable table =
        tableOf(QByteArray(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size)), wellFormed);
    const QByteArray file = written(table);
    const Clt::MessageTable again = tableOf(file, wellFormed);
    require(wellFormed && again.size() == table.size());
    require(written(again) == file);
    return 0;
}
