#include "cfg_wizard/interface_translators.h"

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Wizard {

InterfaceTranslators::InterfaceTranslators(const QString &installDir, const QString &locale)
    : m_translators(installDir, locale, {u"nvxconfig"_s})
{
}

} // namespace Nvx::Wizard
