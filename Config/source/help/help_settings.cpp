#include "help/help_settings.h"

#include "nvx_util/product.h"

#include <QXmlStreamReader>

namespace {

/// The attributes of the element, with what they are when they are missing.
class Attributes
{
public:
    explicit Attributes(QXmlStreamAttributes attributes)
        : m_attributes(std::move(attributes))
    {
    }

    QString value(QLatin1String name, const QString &ifMissing) const
    {
        return m_attributes.hasAttribute(name) ? m_attributes.value(name).toString() : ifMissing;
    }

private:
    QXmlStreamAttributes m_attributes;
};

// The whole document is read, since one that is broken further down does not count.
std::optional<QXmlStreamAttributes> helpUrlAttributes(QIODevice &document)
{
    QXmlStreamReader reader(&document);
    reader.setNamespaceProcessing(false);
    std::optional<QXmlStreamAttributes> attributes;
    int depth = 0;
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::EndElement)
            --depth;
        if (token != QXmlStreamReader::StartElement)
            continue;
        ++depth;
        if (depth == 2 && !attributes && reader.qualifiedName() == QLatin1String("help_url"))
            attributes = reader.attributes();
    }
    return reader.hasError() ? std::nullopt : attributes;
}

HelpSettings installedSettings(const Attributes &attributes, const HelpDefaults &defaults)
{
    HelpSettings settings;
    settings.prefix = attributes.value(QLatin1String("offline_prefix"), QStringLiteral("file:///"));
    settings.url =
        attributes.value(QLatin1String("offline_url"), defaults.sharedFolder + QStringLiteral("/NVXHelp/"));
    settings.direct = attributes.value(QLatin1String("offline_direct"), QStringLiteral("contexthelp/"));
    settings.search = attributes.value(QLatin1String("offline_search"), QStringLiteral("index.html?query="));
    settings.suffix = attributes.value(QLatin1String("offline_suffix"), QStringLiteral(".htm"));
    return settings;
}

HelpSettings onlineSettings(const Attributes &attributes, const HelpDefaults &defaults)
{
    const QString wiki =
        attributes.value(QLatin1String("online_wiki"), QStringLiteral("help.velmora.example/wiki"));
    const QString product = attributes.value(QLatin1String("product"), QStringLiteral("KORVA"));
    const QString release = attributes.value(QLatin1String("release"), Nvx::Product::release);
    const QString language = attributes.value(QLatin1String("language"), defaults.language);

    HelpSettings settings;
    settings.prefix = attributes.value(QLatin1String("online_prefix"), QStringLiteral("http://"));
    settings.url = wiki + u'/' + product + u'/' + release + u'/' + language + u'/';
    settings.direct = attributes.value(QLatin1String("online_direct"), QStringLiteral("?contextId="));
    settings.search = attributes.value(QLatin1String("online_search"), QStringLiteral("?query="));
    return settings;
}

} // namespace

std::optional<HelpSettings> readHelpSettings(QIODevice &document, HelpPlace place,
                                             const HelpDefaults &defaults)
{
    const std::optional<QXmlStreamAttributes> found = helpUrlAttributes(document);
    if (!found)
        return std::nullopt;
    const Attributes attributes(*found);
    return place == HelpPlace::Installed ? installedSettings(attributes, defaults)
                                         : onlineSettings(attributes, defaults);
}

QByteArray emptyHelpIds()
{
    return QByteArrayLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<help_ids/>\n");
}
