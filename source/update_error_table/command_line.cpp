#include "update_error_table/command_line.h"

namespace Error {

namespace {

std::optional<Operation::Kind> operationOf(const QString &argument)
{
    if (argument == QLatin1String("-sync"))
        return Operation::Kind::SynchronizeMessageTable;
    if (argument == QLatin1String("-tr"))
        return Operation::Kind::SynchronizeTranslationTable;
    return std::nullopt;
}

bool isHelp(const QString &argument)
{
    return argument == QLatin1String("-h");
}

bool isFile(const QString &argument)
{
    return !argument.isEmpty() && !isHelp(argument) && !operationOf(argument);
}

} // namespace

std::optional<CommandLine> readCommandLine(const QStringList &arguments)
{
    CommandLine commandLine;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (isHelp(arguments.at(i))) {
            commandLine.help = true;
            continue;
        }
        const std::optional<Operation::Kind> kind = operationOf(arguments.at(i));
        if (!kind || i + 2 >= arguments.size() || !isFile(arguments.at(i + 1)) ||
            !isFile(arguments.at(i + 2)))
            return std::nullopt;
        commandLine.operations.push_back({*kind, arguments.at(i + 1), arguments.at(i + 2)});
        i += 2;
    }
    if (!commandLine.help && commandLine.operations.empty())
        return std::nullopt;
    return commandLine;
}

QString usageText()
{
    return QStringLiteral("Usage: UpdateErrorTable [options]\n"
                          "\n"
                          "options:\n"
                          "  -sync <error_table> <vcproj>   synchronize error table with source code\n"
                          "  -tr <error_table> <ts>         synchronize translation table with error table\n"
                          "  -h                             show this message and exit\n");
}

} // namespace Error
