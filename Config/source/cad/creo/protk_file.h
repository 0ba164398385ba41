#pragma once

#include <QByteArray>

#include <optional>

// The bytes of protk.dat, the file that lists the add-ins that Creo Parametric loads at start-up: one entry
// after the other, each closed by a line "end". Entries of other programs may be in any encoding.

namespace Nvx::Cad {

/// The file without the product's entries, which are those that name its launcher, in upper or lower case.
/// Fragments between two ends that are shorter than five characters in the system's ANSI code page, leading
/// and trailing white space not counted, are dropped too. Everything else is preserved byte for byte, each
/// piece closed by "end".
QByteArray withoutLauncherEntries(const QByteArray &contents);

/// The file with the entry before all others; std::nullopt if the file contains an older release's marker,
/// and must not be changed. A marker at the very start does not count.
std::optional<QByteArray> withLauncherEntry(const QByteArray &contents, const QByteArray &entry);

} // namespace Nvx::Cad
