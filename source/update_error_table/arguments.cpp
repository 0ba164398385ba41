#include "update_error_table/arguments.h"

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace UpdateTable {

namespace {

std::optional<Operation::Kind> operationOf(const QString &argument)
{
    if (argument == "-sync"_L1)
        return Operation::Kind::SynchronizeMessageTable;
    if (argument == "-tr"_L1)
        return Operation::Kind::SynchronizeTranslationTable;
    return std::nullopt;
}

bool isHelp(const QString &argument)
{
    return argument == "-h"_L1;
}

bool isFile(const QString &argument)
{
    return !argument.isEmpty() && !isHelp(argument) && !operationOf(argument);
}

} // namespace

Nvx::Util::Result<Arguments> readArguments(const QStringList &arguments)
{
    Arguments read;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (isHelp(arguments.at(i))) {
            read.help = true;
            continue;
        }
        const std::optional<Operation::Kind> kind = operationOf(arguments.at(i));
        if (!kind || i + 2 >= arguments.size() || !isFile(arguments.at(i + 1)) ||
            !isFile(arguments.at(i + 2)))
            return Nvx::Util::Failure{usage()};
        read.operations.push_back(
            {.kind = *kind, .messageTable = arguments.at(i + 1), .other = arguments.at(i + 2)});
        i += 2;
    }
    if (!read.help && read.operations.empty())
        return Nvx::Util::Failure{usage()};
    return read;
}

QString usage()
{
    return u"Usage: UpdateErrorTable [options]\n"
           "\n"
           "options:\n"
           "  -sync <error_table> <vcproj>   synchronize error table with source code\n"
           "  -tr <error_table> <ts>         synchronize translation table with error table\n"
           "  -h                             show this message and exit\n"_s;
}

} // namespace UpdateTable
