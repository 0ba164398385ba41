// Reads bytes as a message table. The result must be writable, and read back unchanged. Qt's reader alone
// must read the same from the same bytes.

#include "clt_message_table.h"
#include "clt_message_table_xml.h"
#include "nvx_util/assertion.h"

#include <QBuffer>

#include <cstdint>
#include <cstdlib>

namespace {

using Read = Clt::TableReading (*)(QIODevice &, Clt::MessageTable &);

Clt::TableReading readTable(const QByteArray &bytes, Clt::MessageTable &table,
                            Read read = Clt::readMessageTable)
{
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly | QIODevice::Text);
    return read(device, table);
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
    const QByteArray input(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    Clt::MessageTable table;
    const Clt::TableReading reading = readTable(input, table);
    const QByteArray file = written(table);

    Clt::MessageTable readWithQt;
    const Clt::TableReading readingWithQt = readTable(input, readWithQt, Clt::readMessageTableWithQt);
    require(written(readWithQt) == file);
    require(reading.succeeded == readingWithQt.succeeded && reading.errorLine == readingWithQt.errorLine);
    require(reading.leftovers.logLines({}) == readingWithQt.leftovers.logLines({}));

    Clt::MessageTable again;
    const Clt::TableReading readingAgain = readTable(file, again);
    require(readingAgain && readingAgain.leftovers.isEmpty() && again.size() == table.size());
    require(written(again) == file);
    return 0;
}
