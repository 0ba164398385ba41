#include "localization/job_file.h"

#include "nvx_util/languages.h"

#include <QXmlStreamReader>

using Nvx::Util::sourceLanguage;

namespace util {

QByteArray jobFile(const QStringList &sourceNames)
{
    QString text;
    for (const QString &name : sourceNames)
        text += sourceLanguage.translatorsCode + QLatin1Char('\\') + name + QLatin1Char('\n');
    return text.toUtf8();
}

bool isWholeTranslationFile(const QByteArray &bytes)
{
    QXmlStreamReader reader(bytes);
    if (!reader.readNextStartElement() || reader.name() != QLatin1String("TS"))
        return false;
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

} // namespace util
