#include "cfg_wizard/interface_language.h"

#include "nvx_util/languages.h"

#include <QApplication>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Wizard {

InterfaceTranslators::InterfaceTranslators(const QString &installDir, const QString &locale)
    : m_translators(installDir, locale, {u"nvxconfig"_s})
{
}

QStringList fontsOfLanguage(const QString &locale)
{
    const Util::Language *language = Util::languageOf(locale);
    if (!language)
        return {};
    QStringList fonts;
    for (const QLatin1StringView font : language->fonts) {
        if (!font.isEmpty())
            fonts.append(font);
    }
    return fonts;
}

InterfaceFont::InterfaceFont(const QString &locale)
    : m_before(QApplication::font())
    , m_isChanged(!fontsOfLanguage(locale).isEmpty())
{
    if (!m_isChanged)
        return;
    QFont font = m_before;
    font.setFamilies(font.families() + fontsOfLanguage(locale));
    QApplication::setFont(font);
}

InterfaceFont::~InterfaceFont()
{
    if (m_isChanged)
        QApplication::setFont(m_before);
}

} // namespace Nvx::Wizard
