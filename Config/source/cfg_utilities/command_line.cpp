#include "cfg_utilities/command_line.h"

#include "nvx_util/languages.h"

#include <QCoreApplication>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Engine {

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

// The first match counts, so "-ST" precedes "-S".
Option optionOf(const QString &token)
{
    static const std::pair<QLatin1StringView, Option> prefixes[] = {
        {"-I"_L1, Option::Install},       {"-L"_L1, Option::Locale}, {"-U"_L1, Option::Uninstall},
        {"-ST"_L1, Option::StopServices}, {"-S"_L1, Option::Silent}, {"-T"_L1, Option::Localization},
        {"-"_L1, Option::Unknown},
    };
    for (const auto &[prefix, option] : prefixes) {
        if (token.startsWith(prefix))
            return option;
    }
    return Option::None;
}

} // namespace

RunOptions readRunOptions(const QString &commandLine, const QString &systemLocale,
                          const std::function<bool()> &continueAfterUnknownOption)
{
    RunOptions options;
    options.locale = systemLocale;
    const QStringList tokens = commandLine.split(u' ', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        const QString &token = tokens.at(i);
        switch (optionOf(token)) {
        case Option::Install:
            options.runMode = RunMode::Install;
            break;
        case Option::Locale:
            options.locale = localeOfOption(token.mid(2));
            break;
        case Option::Uninstall:
            options.runMode = RunMode::Uninstall;
            break;
        case Option::StopServices:
            options.runMode = RunMode::StopServices;
            break;
        case Option::Silent:
            options.silent = true;
            break;
        case Option::Localization:
            options.runMode = RunMode::Localization;
            break;
        case Option::Unknown:
            if (i > 0 && !continueAfterUnknownOption()) {
                options.abandoned = true;
                options.silent = false; // there is a user, who is shown the wizard
                return options;
            }
            break;
        case Option::None:
            break;
        }
    }
    return options;
}

bool showsWindows(const QString &commandLine)
{
    const RunOptions options = readRunOptions(commandLine, QString(), [] { return true; });
    switch (options.runMode) {
    case RunMode::Install:
    case RunMode::Uninstall:
        return !options.silent;
    case RunMode::StopServices:
    case RunMode::Localization:
        return false;
    case RunMode::NotGiven:
        break;
    }
    return true;
}

QString localeOfOption(const QString &text)
{
    QStringList translated;
    for (const auto &language : Util::translatedLanguages(&Util::Language::optionPlace))
        translated.append(language.locale);
    const QString list = translated.join(u',').toUpper();
    return list.contains(text.toUpper()) ? text : QString(Util::sourceLanguage.locale);
}

QString runOptionsUsage()
{
    // "-E" has no effect and "Slient" is misspelled, both deliberately.
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

} // namespace Nvx::Engine
