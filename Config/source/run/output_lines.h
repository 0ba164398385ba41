#pragma once

#include <QByteArray>
#include <QStringList>

namespace Nvx::Run {

// How much of a program's output is read.
constexpr int maxOutputLines = 21;
constexpr qsizetype maxOutputLineBytes = 255;

/// The lines of a program's output that are logged, without leading and trailing white space. A line longer
/// than maxOutputLineBytes is split into pieces. Reading ends after maxOutputLines lines or pieces. Empty
/// ones count as read but are left out.
QStringList outputLines(const QByteArray &output);

} // namespace Nvx::Run
