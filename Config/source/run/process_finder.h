#pragma once

#include <QStringList>

namespace Nvx::Run {

struct StepContext;

/// What to do with a running program that is found.
enum class OnMatch
{
    List,     ///< its display name is returned
    Terminate ///< it is ended, which is logged
};

/// Looks for running programs. exeNames are file names in upper case; displayNames holds the name shown to
/// the user, at the same position. A process counts only if its full path, in upper case, contains
/// pathFilter; an empty filter matches every process. A process that cannot be opened is skipped.
/// OnMatch::List returns one display name per process, in the machine's order; OnMatch::Terminate returns an
/// empty list.
QStringList findProcesses(const StepContext &context, const QStringList &exeNames,
                          const QStringList &displayNames, OnMatch onMatch, const QString &pathFilter);

} // namespace Nvx::Run
