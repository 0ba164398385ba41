// Whatever a browser's command line and an address are made of: the address adds one argument or none, fills
// every place that the command line has for it, and leaves everything else as it was.

#include "help/browser_call.h"

#include <cstdlib>

namespace {

void demand(bool condition)
{
    if (!condition)
        std::abort();
}

// What the call would be for an address that is known to be harmless.
void compareWithHarmless(const QString &commandLine, const QString &encoded, const BrowserCall &call)
{
    const std::optional<BrowserCall> harmless = browserCall(commandLine, QStringLiteral("x"));
    demand(harmless && harmless->program == call.program);
    demand(harmless->arguments.size() == call.arguments.size());
    const QString http = QStringLiteral("http://");
    const QString inPlace = encoded.startsWith(http) ? encoded.mid(http.size()) : encoded;
    if (!commandLine.contains(QStringLiteral("%1"))) {
        demand(call.arguments.last() == encoded);
        demand(harmless->arguments.mid(0, harmless->arguments.size() - 1) ==
               call.arguments.mid(0, call.arguments.size() - 1));
        return;
    }
    QStringList filled = browserCall(commandLine, QStringLiteral("%1"))->arguments;
    demand(filled.replaceInStrings(QStringLiteral("%1"), inPlace) == call.arguments);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const qsizetype border = text.indexOf(u'\n');
    const QString commandLine = text.left(border);
    const QString encoded = encodedAddress(border < 0 ? text : text.mid(border + 1));
    for (const QChar c : encoded)
        demand(c > u' ' && c < u'\x7f' && c != u'"' && c != u'\\');

    demand(expandVariables(text, [](const QString &) { return QString(); }) == text);

    const std::optional<BrowserCall> call = browserCall(commandLine, encoded);
    if (call)
        compareWithHarmless(commandLine, encoded, *call);
    return 0;
}
