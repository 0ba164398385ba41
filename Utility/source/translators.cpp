#include "nvx_util/translators.h"

#include "nvx_util/system.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

namespace Nvx::Util {

namespace {

QString toolkitFile(const QString &folder, const QString &locale)
{
    QString whole = joinPath(folder, QStringLiteral("qt.qm"));
    if (QFile::exists(whole))
        return whole;
    const QString language = QString(locale).replace(QLatin1Char('-'), QLatin1Char('_'));
    return joinPath(folder, QStringLiteral("qt_%1.qm").arg(language));
}

} // namespace

Translators::Translators(const QString &folder, const QString &locale, const QStringList &catalogues)
{
    const QString localeFolder = joinPath(folder, locale);
    for (const QString &catalogue : catalogues)
        install(joinPath(localeFolder, catalogue + QStringLiteral(".qm")));
    install(toolkitFile(localeFolder, locale));
}

Translators::~Translators()
{
    for (const auto &translator : m_translators)
        QCoreApplication::removeTranslator(translator.get());
}

// Asked for a file that is missing, a translator would try shorter names, outside the folder too.
void Translators::install(const QString &file)
{
    auto translator = std::make_unique<QTranslator>();
    if (!QFile::exists(file) || !translator->load(file))
        return;
    QCoreApplication::installTranslator(translator.get());
    m_translators.push_back(std::move(translator));
}

} // namespace Nvx::Util
