// Any command line is read to its end, asks at most once a token, and never yields a locale that it was not
// given, save the system's and the built-in one.

#include "cfg_utilities/command_line.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    if (size == 0)
        return 0;
    const int patience = bytes[0];
    const QString commandLine =
        QString::fromUtf8(reinterpret_cast<const char *>(bytes + 1), static_cast<qsizetype>(size - 1));
    const QString systemLocale = QStringLiteral("system");

    int questions = 0;
    const CommandLineReading reading =
        readCommandLine(commandLine, systemLocale, [&] { return ++questions <= patience; });

    if (questions > commandLine.count(QLatin1Char(' ')) + 1)
        std::abort();
    if (reading.abandoned != (questions == patience + 1))
        std::abort();
    if (reading.locale != systemLocale && reading.locale != QLatin1String("en-US") &&
        !commandLine.contains(QLatin1String("-L") + reading.locale))
        std::abort();
    return 0;
}
