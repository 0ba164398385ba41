// Reads bytes as a message table or a translation file and checks it. The report of the findings must be one
// line for each, and well-formed XML.

#include "message_table_check/report.h"
#include "nvx_util/assertion.h"

#include <QBuffer>
#include <QXmlStreamReader>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    // Ignores failed assertions, because any table may contain unknown severities and states.
    const Nvx::Util::AssertionListener listener([](const Nvx::Util::AssertionFailure &) {});
    QByteArray document(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    QBuffer device(&document);
    device.open(QIODevice::ReadOnly);
    const auto checked = TableCheck::checkDocument(device);
    if (!checked)
        return 0;
    const TableCheck::Report report{{*checked}, {}};
    if (std::size_t(TableCheck::textReport(report).count('\n')) != checked->findings.size())
        std::abort();
    const auto &rules = Checks::allRules();
    QXmlStreamReader xml(TableCheck::junitReport(report, {rules.begin(), rules.end()}));
    while (!xml.atEnd())
        xml.readNext();
    if (xml.hasError())
        std::abort();
    return 0;
}
