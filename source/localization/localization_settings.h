#pragma once

#include "nvx_util/result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace Localization {

/// The settings in "localization.xml"; those that it does not contain are empty.
struct LocalizationSettings
{
    QString root = {};    ///< folder of the product's sources and locale folders
    QString share = {};   ///< folder that contains the translators' "pTrans"
    QString qtTools = {}; ///< folder of lupdate and lrelease
};

/// Reads the settings from an XML document "localization" with the elements "root", "share" and "qtTools",
/// whose text is trimmed. Fails for anything else; docs/localization.md describes the file.
Nvx::Util::Result<LocalizationSettings> readLocalizationSettings(const QByteArray &xml);

/// The first candidate that, trimmed, is not empty and exists; empty if there is none.
QString firstExisting(const QStringList &candidates, const std::function<bool(const QString &)> &exists);

} // namespace Localization
