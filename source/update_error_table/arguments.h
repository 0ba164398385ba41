#pragma once

#include "nvx_util/result.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace UpdateTable {

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

/// What the program is asked to do.
struct Arguments
{
    bool help = false;
    std::vector<Operation> operations; ///< in the order given
};

/// Reads the arguments, without the program's name: any number of operations, and "-h" at any position. If
/// they do not match, for example because there are none or an option's name is in the place of a file, the
/// error is the usage.
Nvx::Util::Result<Arguments> readArguments(const QStringList &arguments);

/// The program's usage, with its line ends.
QString usage();

} // namespace UpdateTable
