#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace Clt {

/// The number of distinct placeholders in a text. A placeholder is a percent sign with all the decimal digits
/// that follow it: "%1 %2 %1" has two, "%10" has one.
int argumentCount(QStringView text);

/// The text with its placeholders filled, or unchanged if there are no arguments or fewer of them than
/// placeholders. Argument i is filled into the lowest-numbered placeholder if the text, as filled so far,
/// contains "%i"; so a text that contains only "%2" gets the second argument.
QString applyArguments(const QString &text, const QStringList &arguments);

} // namespace Clt
