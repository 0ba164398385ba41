#include "cfg_utilities/command_line.h"

#include "nvx_util/languages.h"

#include <QCoreApplication>

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

enum class Option
{
    Install,
    Locale,
    Uninstall,
    StopServices,
    Silent,
    Localization,
    Unknown,
    None
};

// The first beginning that fits decides, so "-ST" stands before "-S".
Option optionOf(const QString &token)
{
    static const std::pair<QLatin1String, Option> beginnings[] = {
        {QLatin1String("-I"), Option::Install},   {QLatin1String("-L"), Option::Locale},
        {QLatin1String("-U"), Option::Uninstall}, {QLatin1String("-ST"), Option::StopServices},
        {QLatin1String("-S"), Option::Silent},    {QLatin1String("-T"), Option::Localization},
        {QLatin1String("-"), Option::Unknown},
    };
    for (const auto &[beginning, option] : beginnings) {
        if (token.startsWith(beginning))
            return option;
    }
    return Option::None;
}

} // namespace

CommandLineReading readCommandLine(const QString &commandLine, const QString &systemLocale,
                                   const std::function<bool()> &goOnAfterUnknownOption)
{
    CommandLineReading reading;
    reading.locale = systemLocale;
    const QStringList tokens = commandLine.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        const QString &token = tokens.at(i);
        switch (optionOf(token)) {
        case Option::Install:
            reading.runMode = RunMode::Install;
            break;
        case Option::Locale:
            reading.locale = localeOfOption(token.mid(2));
            break;
        case Option::Uninstall:
            reading.runMode = RunMode::Uninstall;
            break;
        case Option::StopServices:
            reading.runMode = RunMode::StopServices;
            break;
        case Option::Silent:
            reading.silent = true;
            break;
        case Option::Localization:
            reading.runMode = RunMode::Localization;
            break;
        case Option::Unknown:
            if (i > 0 && !goOnAfterUnknownOption()) {
                reading.abandoned = true;
                reading.silent = false; // someone is there, who is shown the wizard
                return reading;
            }
            break;
        case Option::None:
            break;
        }
    }
    return reading;
}

QString localeOfOption(const QString &text)
{
    QStringList translated;
    for (const auto &language : Nvx::Util::translatedLanguages(&Nvx::Util::Language::optionPlace))
        translated.append(language.locale);
    const QString list = translated.join(QLatin1Char(',')).toUpper();
    return list.contains(text.toUpper()) ? text : QString(Nvx::Util::sourceLanguage.locale);
}

QString usageText()
{
    // "-E" has no effect, and "Slient" is how the box has always spelled it.
    return Messages::tr("Valid NVX command line arguments are:\n"
                        "-I Install mode(default)\n"
                        "-U UnInstall mode\n"
                        "-STop Stop Services\n"
                        "-S Slient mode\n"
                        "-L Install USA language\n"
                        "-Lxxx Install language xxx\n"
                        "-E look in %temp%NVXENv.txt for install language\n"
                        "\n"
                        " Do you want to continue?\n");
}
