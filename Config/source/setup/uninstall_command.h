#pragma once

#include <QString>

#include <optional>

/// The command of the uninstall entry for another language: the text up to the character behind its first
/// "/LANG", which is kept as the separator, followed by the locale; what stood behind is dropped. Nothing
/// when the command has no "/LANG", spelled so, or begins with it: such a command is left as it is.
std::optional<QString> uninstallCommandIn(const QString &command, const QString &locale);
