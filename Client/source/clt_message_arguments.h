#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace Clt {

/// The number of distinct placeholders, a percent sign with all the decimal digits that follow it, in a text:
/// "%1 %2 %1" has two, "%10" one.
int argumentCount(QStringView text);

/// The text with its placeholders filled, or as it is when there are no arguments or fewer of them than
/// placeholders. Argument i is filled into the lowest-numbered placeholder if the text, as filled so far,
/// holds "%i" at all; so a text with "%2" alone gets the second argument.
QString applyArguments(const QString &text, const QStringList &arguments);

} // namespace Clt
