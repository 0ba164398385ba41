#pragma once

#include <QString>

#include <optional>

namespace Translation {

/// Copies a translation file, byte for byte, before it is replaced by one that holds less. The copy is
/// NAME.before next to the file, or NAME.before.2, NAME.before.3 and so on if the name is taken: an existing
/// copy is never overwritten, because it may be the only one with the translators' work. A copy with the same
/// bytes is reused. Returns the name of the copy; std::nullopt if there is none.
std::optional<QString> backUpFile(const QString &fileName);

/// The message to the user about such a copy.
QString backupText(const QString &copy);

} // namespace Translation
