// Any command line is read to its end and asks at most once per token. Its locale is the system's, the
// built-in one or one that it contains.

#include "cfg_utilities/command_line.h"

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    if (size == 0)
        return 0;
    const int acceptedOptions = bytes[0];
    const QString commandLine =
        QString::fromUtf8(reinterpret_cast<const char *>(bytes + 1), static_cast<qsizetype>(size - 1));
    const QString systemLocale = u"system"_s;

    int questions = 0;
    const Nvx::Engine::RunOptions options = Nvx::Engine::readRunOptions(
        commandLine, systemLocale, [&] { return ++questions <= acceptedOptions; });

    if (questions > commandLine.count(u' ') + 1)
        std::abort();
    if (options.abandoned != (questions == acceptedOptions + 1))
        std::abort();
    if (options.locale != systemLocale && options.locale != "en-US"_L1 &&
        !commandLine.contains("-L"_L1 + options.locale))
        std::abort();
    return 0;
}
