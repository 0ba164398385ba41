#pragma once

#include <QByteArray>
#include <QStringList>

namespace util {

/// The file that asks the translators for their work: UTF-8, one line per source, "enu\" and its name, each
/// ended by a line feed.
QByteArray jobFile(const QStringList &sourceNames);

/// True for the bytes of a translation file that can be taken over: well-formed XML whose document element is
/// "TS".
bool isWholeTranslationFile(const QByteArray &bytes);

} // namespace util
