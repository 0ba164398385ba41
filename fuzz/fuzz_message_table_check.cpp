// Reads bytes as a message table, a translation file or XLIFF. The report of the findings must be one line
// for each, and well-formed XML; a document must become XLIFF that is read back unchanged; and a translation
// file must become one for Qt 6 with the same strings.

#include "message_table_check/report.h"
#include "message_table_check/translation_document.h"
#include "nvx_util/assertion.h"

#include <QBuffer>
#include <QXmlStreamReader>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// Passes the bytes to a function that reads a device.
template<typename Function>
auto read(QByteArray bytes, Function function)
{
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    return function(device);
}

bool areEqual(const TableCheck::TranslationStrings &one, const TableCheck::TranslationStrings &other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(), [](const auto &a, const auto &b) {
        return a.context == b.context && a.source == b.source && a.comment == b.comment &&
               a.state == b.state && a.translations.value(0) == b.translations.value(0);
    });
}

void check(const QByteArray &bytes)
{
    const auto checked = read(bytes, TableCheck::checkDocument);
    if (!checked)
        return;
    const TableCheck::Report report{{*checked}, {}};
    require(std::size_t(TableCheck::textReport(report).count('\n')) == checked->findings.size());
    const auto &rules = Checks::allRules();
    QXmlStreamReader xml(TableCheck::junitReport(report, {rules.begin(), rules.end()}));
    while (!xml.atEnd())
        xml.readNext();
    require(!xml.hasError());
}

void convert(const QByteArray &bytes)
{
    const auto document = read(bytes, TableCheck::readTranslationDocument);
    if (!document)
        return;
    if (const auto xliff = TableCheck::xliffOf(*document, QStringLiteral("a.ts"))) {
        const auto again = read(*xliff, TableCheck::readTranslationDocument);
        require(again && areEqual(again->strings, document->strings));
    }
    if (const auto file = read(bytes, TableCheck::translationFileForQt6)) {
        const auto again = read(*file, TableCheck::readTranslationDocument);
        require(again && areEqual(again->strings, document->strings));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    // Ignores failed assertions, because any table may contain unknown severities and states.
    const Nvx::Util::AssertionListener listener([](const Nvx::Util::AssertionFailure &) {});
    const QByteArray document(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    check(document);
    convert(document);
    return 0;
}
