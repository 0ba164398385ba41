#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace util {

/// What "localization.xml" says; a text that it does not hold is empty.
struct LocalizationSettings
{
    QString root;    ///< folder of the product's sources and locale folders
    QString share;   ///< folder that holds the translators' "pTrans"
    QString qtTools; ///< folder of lupdate and lrelease
};

/// Reads the settings: an XML document "localization" with the text elements "root", "share" and "qtTools",
/// trimmed. Nothing for bytes that are not such a document; docs/localization.md describes the file.
std::optional<LocalizationSettings> readLocalizationSettings(const QByteArray &xml);

/// The first candidate that, trimmed, is not empty and exists; empty when there is none.
QString firstExisting(const QStringList &candidates, const std::function<bool(const QString &)> &exists);

} // namespace util
