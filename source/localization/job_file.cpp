#include "localization/job_file.h"

#include "nvx_util/languages.h"

#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;
using Nvx::Util::sourceLanguage;

namespace Localization {

QByteArray jobFile(const QStringList &sourceNames)
{
    QString text;
    for (const QString &name : sourceNames)
        text += sourceLanguage.translatorsCode + u'\\' + name + u'\n';
    return text.toUtf8();
}

bool isWholeTranslationFile(const QByteArray &bytes)
{
    QXmlStreamReader reader(bytes);
    if (!reader.readNextStartElement() || reader.name() != "TS"_L1)
        return false;
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

} // namespace Localization
