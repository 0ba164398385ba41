#pragma once

#include <QByteArray>

#include <optional>

// The bytes of protk.dat, the file in which Creo Parametric finds the add-ins that it loads when it starts:
// one entry after the other, each closed by a line "end". The entries of others are in any encoding.

/// The file without the product's entries, which are those that name its launcher, in any case. Fragments
/// between two ends that are shorter than five characters of the system's ANSI code page, without the white
/// space around them, go too. What stays is as it was, byte for byte, each piece closed by "end".
QByteArray withoutLauncherEntries(const QByteArray &contents);

/// The file with the entry before all others; nothing when an older release's marker stands in the file,
/// which then stays as it is. A marker at the very start does not count.
std::optional<QByteArray> withLauncherEntry(const QByteArray &contents, const QByteArray &entry);
