#pragma once

#include <QString>

#include <optional>

namespace Error {

/// Keeps a translation file, byte for byte, before it is replaced by one that holds less: as NAME.before
/// beside it or, where that is another file, as NAME.before.2, NAME.before.3 and so on. No earlier copy is
/// overwritten, for the first one may be the only one with the translators' work; one with the same bytes is
/// used again. Returns the copy, or std::nullopt when it cannot be made.
std::optional<QString> keepEarlierFile(const QString &fileName);

/// The message to the user about such a copy.
QString keptFileText(const QString &copy);

} // namespace Error
