#pragma once

#include "nvx_util/translators.h"

#include <QString>

/// The translations of the interface into one language, in force while this object lives. A file that is
/// missing is passed over: what it would translate stays in English.
class InterfaceTranslators
{
public:
    /// Loads the program's own texts, "nvxconfig.qm", and the toolkit's, "qt.qm" or else the file named after
    /// the locale ("qt_de_DE.qm"), from the sub-folder of the install dir that is named by the locale.
    InterfaceTranslators(const QString &installDir, const QString &locale);

private:
    Nvx::Util::Translators m_translators;
};
