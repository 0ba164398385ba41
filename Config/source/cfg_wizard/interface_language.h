#pragma once

#include "nvx_util/translators.h"

#include <QFont>
#include <QString>
#include <QStringList>

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

/// The fonts of a language in the table of languages (nvx_util/languages.h), in order of preference, whether
/// the machine has them or not. Empty for a language that needs none.
QStringList fontsOfLanguage(const QString &locale);

/// During the lifetime of this object, the application uses the fonts of a language for characters that its
/// own font lacks. Otherwise Qt would use those of the system's language.
class InterfaceFont
{
public:
    explicit InterfaceFont(const QString &locale);
    InterfaceFont(const InterfaceFont &) = delete;
    InterfaceFont &operator=(const InterfaceFont &) = delete;
    ~InterfaceFont();

private:
    QFont m_before;
    bool m_isChanged;
};

} // namespace Nvx::Wizard
