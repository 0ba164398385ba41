#include "update_error_table/update_error_table.h"

#include "synchronisation/message_table_synchronisation.h"
#include "synchronisation/progress_log.h"
#include "translation/translation_update.h"
#include "update_error_table/arguments.h"

#include <QTextStream>

using Synchronisation::ProgressLog;

namespace UpdateTable {

namespace {

// How the operations ended.
struct Completion
{
    bool succeeded = true;
    int skippedFiles = 0; ///< source files that could not be scanned
};

Completion run(const Operation &operation, ProgressLog &log, QTextStream &errors)
{
    switch (operation.kind) {
    case Operation::Kind::SynchronizeMessageTable: {
        const auto synchronisation =
            Synchronisation::synchronizeMessageTable(operation.messageTable, operation.other, log, errors);
        return {.succeeded = bool(synchronisation.outcome), .skippedFiles = synchronisation.skippedFiles};
    }
    case Operation::Kind::SynchronizeTranslationTable:
        break;
    }
    return {.succeeded = Translation::synchronizeTranslationTable(operation.messageTable, operation.other,
                                                                  log.stream(), errors)};
}

// Stops at the first failure, because a later operation may need the earlier one's file.
Completion runAll(const std::vector<Operation> &operations, ProgressLog &log, QTextStream &errors)
{
    Completion all;
    for (const Operation &operation : operations) {
        const Completion one = run(operation, log, errors);
        all.skippedFiles += one.skippedFiles;
        if (!one.succeeded) {
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
    const Nvx::Util::Result<Arguments> read = readArguments(arguments);
    if (!read) {
        errors << read.error();
        errors.flush();
        return ExitCode::WrongArguments;
    }
    if (read->help) {
        output << usage();
        output.flush();
        return ExitCode::Done;
    }

    const bool onTerminal = outputDevice == OutputDevice::Terminal;
    Completion completion;
    {
        ProgressLog log(output, onTerminal ? ProgressLog::Progress::Shown : ProgressLog::Progress::Hidden);
        completion = runAll(read->operations, log, errors);
    }
    writeSkipped(completion.skippedFiles, errors);
    return completion.succeeded ? ExitCode::Done : ExitCode::Failed;
}

} // namespace UpdateTable
