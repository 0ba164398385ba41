#include "localization/localization_settings.h"

#include <QXmlStreamReader>

namespace util {

std::optional<LocalizationSettings> readLocalizationSettings(const QByteArray &xml)
{
    LocalizationSettings settings;
    QXmlStreamReader reader(xml);
    if (!reader.readNextStartElement() || reader.name() != QLatin1String("localization"))
        return std::nullopt;
    while (reader.readNextStartElement()) {
        QString *text = nullptr;
        if (reader.name() == QLatin1String("root"))
            text = &settings.root;
        else if (reader.name() == QLatin1String("share"))
            text = &settings.share;
        else if (reader.name() == QLatin1String("qtTools"))
            text = &settings.qtTools;
        if (text)
            *text = reader.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
        else
            reader.skipCurrentElement();
    }
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError())
        return std::nullopt;
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

} // namespace util
