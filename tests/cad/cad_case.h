#pragma once

#include "cad/cad_search.h"

/// A machine to search, and what the search must come to. A case is a folder:
///
///     machine.reg    what the registry holds
///     expected.txt   the results that differ from those of an empty registry, the ticked boxes, and the
///     lines
///                    of the log that an empty registry does not give
///     log.txt        where there is one, the whole log
///
/// In all of them "@LONG@" stands for a text of 10,000 characters.
struct CadCase
{
    QString script;
    QString expected;
    QString log; ///< empty for none

    static CadCase read(const QString &folder);
};

/// The search in the form of expected.txt.
QString described(const CadSearch &search);

/// The lines of the log in the form of log.txt.
QString wholeLog(const CadSearch &search);
