#pragma once

#include "nvx_util/result.h"

#include <QIODevice>
#include <QString>

namespace Nvx::Help {

/// Which help is shown.
enum class HelpPlace
{
    Online,
    Installed
};

/// The parts of a help address.
struct HelpSettings
{
    QString prefix; ///< the scheme, such as "http://"
    QString url;    ///< host or folder of the help
    QString direct; ///< precedes the id of a topic
    QString search; ///< precedes the text of a search
    QString suffix; ///< follows the id of a topic
};

/// The language of the help for an interface language: "DEU" for "de-DE", "JPN" for "ja-JP". "ENU" for a
/// language without a help of its own.
QString helpLanguage(const QString &locale);

/// The address of a topic; with empty settings, the id alone.
QString topicAddress(const HelpSettings &settings, const QString &contextId);

/// The address of a search. The text is not encoded. Only the address of an online search has the suffix.
QString searchAddress(const HelpSettings &settings, HelpPlace place, const QString &text);

/// Values for attributes that the file lacks, as far as they depend on the machine.
struct HelpDefaults
{
    QString sharedFolder; ///< the product's data folder for all users
    QString language;     ///< the help's language, such as "ENU"
};

/// Reads the settings for one place from an XML document: from the attributes of the first element "help_url"
/// directly below the document element. Fails if the document is not well formed or has no such element.
Util::Result<HelpSettings> readHelpSettings(QIODevice &document, HelpPlace place,
                                            const HelpDefaults &defaults);

/// A help id file without ids: an XML document whose only element is "help_ids".
QByteArray emptyHelpIds();

} // namespace Nvx::Help
