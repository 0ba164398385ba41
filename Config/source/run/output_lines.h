#pragma once

#include <QByteArray>
#include <QStringList>

/// How much of a program's output is looked at.
constexpr int maxOutputLines = 21;
constexpr qsizetype maxOutputLineBytes = 255;

/// The lines of a program's output that are worth logging, without the blanks around them. The output is read
/// in lines of at most 255 bytes, a longer line in pieces; 21 lines or pieces are read, the rest is dropped.
/// Empty ones count as read but are left out.
QStringList outputLines(const QByteArray &output);
