#include "cfg_wizard/interface_translators.h"

InterfaceTranslators::InterfaceTranslators(const QString &installDir, const QString &locale)
    : m_translators(installDir, locale, {QStringLiteral("nvxconfig")})
{
}
