#pragma once

#include "nvx_util/translators.h"

#include <QString>

namespace Nvx::Wizard {

/// The translations of the program's interface into one language, installed for the lifetime of this object.
/// Only chooses the catalogue for Nvx::Util::Translators.
class InterfaceTranslators
{
public:
    /// Loads the program's own texts, "nvxconfig.qm", and Qt's from the sub-folder of the install dir that is
    /// named after the locale.
    InterfaceTranslators(const QString &installDir, const QString &locale);

private:
    Util::Translators m_translators;
};

} // namespace Nvx::Wizard
