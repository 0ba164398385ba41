#include "clt_xml_text.h"
#include "scanner/parser.h"
#include "scanner/source_text.h"

#include <cstdlib>

// Any bytes can be scanned, every key can be in a message table, and text after a file does not change the
// calls found in it.

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
    static_cast<void>(parser.parse());
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

    // A semicolon and a line feed, so that the last token does not change.
    const std::vector<Call> more = callsIn(text + ";\n} \" ' ) REPORT_ERROR( } /*");
    require(more.size() >= calls.size());
    for (std::size_t i = 0; i + 1 < calls.size(); ++i)
        require(isSame(calls[i], more[i]));

    if (!calls.empty()) {
        int lines = 0;
        Parser traced({text.constData(), static_cast<std::size_t>(text.size())},
                      [&lines](const QString &) { ++lines; });
        static_cast<void>(traced.parse());
        require(lines >= static_cast<int>(calls.size()) && traced.calls().size() == calls.size());
    }
    return 0;
}
