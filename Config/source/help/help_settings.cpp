#include "help/help_settings.h"

#include "nvx_util/languages.h"
#include "nvx_util/product.h"

#include <QXmlStreamReader>

#include <optional>

using Nvx::Util::Failure;
using Nvx::Util::Result;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Help {

QString helpLanguage(const QString &locale)
{
    const Util::Language *language = Util::languageOf(locale);
    return language ? language->helpCode : Util::sourceLanguage.helpCode;
}

QString topicAddress(const HelpSettings &settings, const QString &contextId)
{
    return settings.prefix + settings.url + settings.direct + contextId + settings.suffix;
}

QString searchAddress(const HelpSettings &settings, HelpPlace place, const QString &text)
{
    const QString address = settings.prefix + settings.url + settings.search + text;
    return place == HelpPlace::Online ? address + settings.suffix : address;
}

namespace {

/// The attributes of the element, with defaults for missing ones.
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

// Reads the whole document, since an error anywhere in it counts.
Result<QXmlStreamAttributes> helpUrlAttributes(QIODevice &document)
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
        if (depth == 2 && !attributes && reader.qualifiedName() == "help_url"_L1)
            attributes = reader.attributes();
    }
    if (reader.hasError())
        return Failure{reader.errorString()};
    if (!attributes)
        return Failure{u"the element help_url is missing"_s};
    return *attributes;
}

HelpSettings installedSettings(const Attributes &attributes, const HelpDefaults &defaults)
{
    return {.prefix = attributes.value("offline_prefix"_L1, u"file:///"_s),
            .url = attributes.value("offline_url"_L1, defaults.sharedFolder + u"/NVXHelp/"_s),
            .direct = attributes.value("offline_direct"_L1, u"contexthelp/"_s),
            .search = attributes.value("offline_search"_L1, u"index.html?query="_s),
            .suffix = attributes.value("offline_suffix"_L1, u".htm"_s)};
}

HelpSettings onlineSettings(const Attributes &attributes, const HelpDefaults &defaults)
{
    const QString wiki = attributes.value("online_wiki"_L1, u"help.velmora.example/wiki"_s);
    const QString product = attributes.value("product"_L1, u"KORVA"_s);
    const QString release = attributes.value("release"_L1, Product::release);
    const QString language = attributes.value("language"_L1, defaults.language);

    return {.prefix = attributes.value("online_prefix"_L1, u"http://"_s),
            .url = wiki + u'/' + product + u'/' + release + u'/' + language + u'/',
            .direct = attributes.value("online_direct"_L1, u"?contextId="_s),
            .search = attributes.value("online_search"_L1, u"?query="_s),
            .suffix = QString()};
}

} // namespace

Result<HelpSettings> readHelpSettings(QIODevice &document, HelpPlace place, const HelpDefaults &defaults)
{
    const Result<QXmlStreamAttributes> found = helpUrlAttributes(document);
    if (!found)
        return Failure{found.error()};
    const Attributes attributes(*found);
    return place == HelpPlace::Installed ? installedSettings(attributes, defaults)
                                         : onlineSettings(attributes, defaults);
}

QByteArray emptyHelpIds()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<help_ids/>\n"_ba;
}

} // namespace Nvx::Help
