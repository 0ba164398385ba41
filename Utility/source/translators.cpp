#include "nvx_util/translators.h"

#include "nvx_util/system.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util {

namespace {

QString qtFile(const QString &folder, const QString &locale)
{
    QString whole = joinPath(folder, u"qt.qm"_s);
    if (QFile::exists(whole))
        return whole;
    const QString language = QString(locale).replace(u'-', u'_');
    return joinPath(folder, u"qt_%1.qm"_s.arg(language));
}

} // namespace

Translators::Translators(const QString &folder, const QString &locale, const QStringList &catalogues)
{
    const QString localeFolder = joinPath(folder, locale);
    for (const QString &catalogue : catalogues)
        install(joinPath(localeFolder, catalogue + u".qm"_s));
    install(qtFile(localeFolder, locale));
}

Translators::~Translators()
{
    for (const auto &translator : m_translators)
        QCoreApplication::removeTranslator(translator.get());
}

// For a missing file, QTranslator would try shorter names, also outside the folder.
void Translators::install(const QString &file)
{
    auto translator = std::make_unique<QTranslator>();
    if (!QFile::exists(file) || !translator->load(file))
        return;
    QCoreApplication::installTranslator(translator.get());
    m_translators.push_back(std::move(translator));
}

} // namespace Nvx::Util
