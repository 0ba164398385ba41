#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace Error {

/// One of the program's operations with its two files.
struct Operation
{
    enum class Kind
    {
        SynchronizeMessageTable,    ///< "-sync": other is the project
        SynchronizeTranslationTable ///< "-tr": other is the translation file
    };

    Kind kind = Kind::SynchronizeMessageTable;
    QString messageTable;
    QString other;
};

/// What the command line asks for.
struct CommandLine
{
    bool help = false;
    std::vector<Operation> operations; ///< in the order given
};

/// Reads the arguments, without the program's name: any number of operations, or "-h" anywhere. Nothing when
/// they do not match, as when there are none or the name of an option stands where a file should.
std::optional<CommandLine> readCommandLine(const QStringList &arguments);

/// The usage text, with its line ends.
QString usageText();

} // namespace Error
