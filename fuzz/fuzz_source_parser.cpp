#include "clt_xml_text.h"
#include "scanner/source_parser.h"
#include "scanner/source_text.h"

#include <cstdlib>

// Any bytes are scanned to an end; every key can stand in a message table; and what follows a file changes
// nothing about the calls found before it.

using namespace Scan;

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

std::vector<Call> callsIn(const QByteArray &text)
{
    Parser parser({text.constData(), static_cast<std::size_t>(text.size())});
    parser.parse();
    return parser.calls();
}

bool isSame(const Call &left, const Call &right)
{
    return left.family == right.family && left.tag == right.tag && left.context == right.context &&
           left.line == right.line;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    const QByteArray contents(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const QByteArray text = toSourceText(contents);
    const std::vector<Call> calls = callsIn(text);
    for (const Call &call : calls)
        require(Clt::isXmlText(call.tag) && Clt::isXmlText(call.context) && call.line > 0);

    // A semicolon and a line feed, so that the last token stays what it is.
    const std::vector<Call> more = callsIn(text + ";\n} \" ' ) REPORT_ERROR( } /*");
    require(more.size() >= calls.size());
    for (std::size_t i = 0; i + 1 < calls.size(); ++i)
        require(isSame(calls[i], more[i]));

    if (!calls.empty()) {
        int lines = 0;
        Parser traced({text.constData(), static_cast<std::size_t>(text.size())},
                      [&lines](const QString &) { ++lines; });
        traced.parse();
        require(lines >= static_cast<int>(calls.size()) && traced.calls().size() == calls.size());
    }
    return 0;
}
