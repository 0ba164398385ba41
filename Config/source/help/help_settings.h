#pragma once

#include "help/help_address.h"
#include "nvx_util/result.h"

#include <QIODevice>
#include <QString>

namespace Nvx::Help {

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
