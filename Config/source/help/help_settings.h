#pragma once

#include "help/help_address.h"

#include <QIODevice>
#include <QString>

#include <optional>

/// What the settings are made of when the file does not say otherwise.
struct HelpDefaults
{
    QString sharedFolder; ///< the product's folder of data that all users share
    QString language;     ///< the help's language, such as "ENU"
};

/// Reads the settings for one place from an XML document: from the attributes of the first element "help_url"
/// directly below the document's element. Nothing when the document is not well formed or has no such
/// element.
std::optional<HelpSettings> readHelpSettings(QIODevice &document, HelpPlace place,
                                             const HelpDefaults &defaults);

/// The file of help ids with none in it: an XML document whose only element is "help_ids".
QByteArray emptyHelpIds();
