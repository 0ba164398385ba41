#include "cfg_wizard/interface_translators.h"

#include "nvx_util/system.h"

#include <QCoreApplication>
#include <QFile>

using Nvx::Util::joinPath;

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

InterfaceTranslators::InterfaceTranslators(const QString &installDir, const QString &locale)
{
    const QString folder = joinPath(installDir, locale);
    const QString program = joinPath(folder, QStringLiteral("nvxconfig.qm"));
    if (QFile::exists(program) && m_program.load(program))
        QCoreApplication::installTranslator(&m_program);

    // Asked for a file that is missing, a translator would try shorter names, outside the folder too.
    const QString toolkit = toolkitFile(folder, locale);
    if (QFile::exists(toolkit) && m_toolkit.load(toolkit))
        QCoreApplication::installTranslator(&m_toolkit);
}

InterfaceTranslators::~InterfaceTranslators()
{
    QCoreApplication::removeTranslator(&m_toolkit);
    QCoreApplication::removeTranslator(&m_program);
}
