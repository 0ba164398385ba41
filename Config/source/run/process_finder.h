#pragma once

#include <QStringList>

struct StepContext;

/// What happens to a running program that is found.
enum class OnMatch
{
    List,     ///< its display name is answered
    Terminate ///< it is ended, which is logged
};

/// Looks for running programs. exeNames are upper-case file names, and displayNames holds the name of each
/// for people at the same place. Only processes count whose full upper-case path contains pathFilter; an
/// empty filter takes all. Answers one display name per process in the machine's order when listing, and
/// nothing when ending. A process that cannot be opened is passed over.
QStringList findProcesses(const StepContext &context, const QStringList &exeNames,
                          const QStringList &displayNames, OnMatch onMatch, const QString &pathFilter);
