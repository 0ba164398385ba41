#include "update_error_table/update_error_table.h"

#include "synchronisation/message_table_update.h"
#include "synchronisation/progress_log.h"
#include "translation/translation_update.h"
#include "update_error_table/command_line.h"

#include <QTextStream>

namespace Error {

namespace {

TableUpdate run(const Operation &operation, ProgressLog &log, QTextStream &errors)
{
    switch (operation.kind) {
    case Operation::Kind::SynchronizeMessageTable:
        return synchronizeMessageTable(operation.messageTable, operation.other, log);
    case Operation::Kind::SynchronizeTranslationTable:
        break;
    }
    return {synchronizeTranslationTable(operation.messageTable, operation.other, log.stream(), errors), 0};
}

// An operation that follows a failed one may need what that one did not make.
TableUpdate runAll(const std::vector<Operation> &operations, ProgressLog &log, QTextStream &errors)
{
    TableUpdate all{true, 0};
    for (const Operation &operation : operations) {
        const TableUpdate update = run(operation, log, errors);
        all.skippedFiles += update.skippedFiles;
        if (!update.succeeded) {
            all.succeeded = false;
            break;
        }
    }
    return all;
}

void writeSkipped(int files, QTextStream &errors)
{
    if (files == 1)
        errors << "1 source file could not be scanned and was skipped\n";
    else if (files > 1)
        errors << files << " source files could not be scanned and were skipped\n";
    errors.flush();
}

} // namespace

ExitCode runUpdateErrorTable(const QStringList &arguments, QTextStream &output, QTextStream &errors,
                             OutputDevice outputDevice)
{
    const std::optional<CommandLine> commandLine = readCommandLine(arguments);
    if (!commandLine) {
        errors << usageText();
        errors.flush();
        return ExitCode::WrongArguments;
    }
    if (commandLine->help) {
        output << usageText();
        output.flush();
        return ExitCode::Done;
    }

    const bool onTerminal = outputDevice == OutputDevice::Terminal;
    TableUpdate update;
    {
        ProgressLog log(output, onTerminal ? ProgressLog::Progress::Shown : ProgressLog::Progress::Hidden);
        update = runAll(commandLine->operations, log, errors);
    }
    writeSkipped(update.skippedFiles, errors);
    return update.succeeded ? ExitCode::Done : ExitCode::Failed;
}

} // namespace Error
