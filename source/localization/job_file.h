#pragma once

#include <QByteArray>
#include <QStringList>

namespace Localization {

/// The contents of the job file for the translators: UTF-8, one line per source, "enu\" and its name, each
/// ended by a line feed.
QByteArray jobFile(const QStringList &sourceNames);

/// True for a complete translation file: well-formed XML with the document element "TS".
bool isWholeTranslationFile(const QByteArray &bytes);

} // namespace Localization
