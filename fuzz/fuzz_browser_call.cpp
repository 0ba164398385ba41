// With any command line and any address, the address replaces every placeholder or adds one argument, and
// changes nothing else.

#include "help/browser_call.h"

#include <cstdlib>

using namespace Nvx::Help;
using namespace Qt::Literals::StringLiterals;

namespace {

void demand(bool condition)
{
    if (!condition)
        std::abort();
}

// Compares a call with the call for a harmless address.
void compareWithHarmless(const QString &commandLine, const QString &encoded, const BrowserCall &call)
{
    const std::optional<BrowserCall> harmless = browserCall(commandLine, u"x"_s);
    demand(harmless && harmless->program == call.program);
    demand(harmless->arguments.size() == call.arguments.size());
    const QString http = u"http://"_s;
    const QString inPlace = encoded.startsWith(http) ? encoded.mid(http.size()) : encoded;
    if (!commandLine.contains(u"%1"_s)) {
        demand(call.arguments.last() == encoded);
        demand(harmless->arguments.mid(0, harmless->arguments.size() - 1) ==
               call.arguments.mid(0, call.arguments.size() - 1));
        return;
    }
    QStringList filled = browserCall(commandLine, u"%1"_s)->arguments;
    demand(filled.replaceInStrings(u"%1"_s, inPlace) == call.arguments);
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
