#include "localization/localization_settings.h"

#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace Localization {

Nvx::Util::Result<LocalizationSettings> readLocalizationSettings(const QByteArray &xml)
{
    LocalizationSettings settings;
    QXmlStreamReader reader(xml);
    if (!reader.readNextStartElement() || reader.name() != "localization"_L1)
        reader.raiseError(u"no document element \"localization\""_s);
    while (reader.readNextStartElement()) {
        QString *text = nullptr;
        if (reader.name() == "root"_L1)
            text = &settings.root;
        else if (reader.name() == "share"_L1)
            text = &settings.share;
        else if (reader.name() == "qtTools"_L1)
            text = &settings.qtTools;
        if (text)
            *text = reader.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
        else
            reader.skipCurrentElement();
    }
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError())
        return Nvx::Util::Failure{reader.errorString()};
    return settings;
}

QString firstExisting(const QStringList &candidates, const std::function<bool(const QString &)> &exists)
{
    for (const QString &candidate : candidates) {
        const QString folder = candidate.trimmed();
        if (!folder.isEmpty() && exists(folder))
            return folder;
    }
    return {};
}

} // namespace Localization
