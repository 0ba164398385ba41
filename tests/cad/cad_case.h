#pragma once

#include "cad/cad_systems.h"

/// A registry to search, and the expected results. A case is a folder:
///
///     machine.reg    the contents of the registry
///     expected.txt   the results that differ from those for an empty registry, the label of each checked
///                    check box, and the lines of the log that an empty registry does not cause
///     log.txt        the complete log; may be missing
///
/// In all of them "@LONG@" stands for a string of 10,000 characters.
struct CadCase
{
    QString script;
    QString expected;
    QString log; ///< empty if the case has none

    static CadCase read(const QString &folder);
};

/// The search in the form of expected.txt.
QString described(const Nvx::Cad::CadSearch &search);

/// The lines of the log in the form of log.txt.
QString wholeLog(const Nvx::Cad::CadSearch &search);
