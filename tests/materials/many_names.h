#pragma once

#include <QStringList>

/// That number of different names, not in their order.
inline QStringList manyNames(int count)
{
    QStringList names;
    for (int number = 0; number < count; ++number)
        names.append(QStringLiteral("Stahl № %1").arg(QString::number(number * 7919LL % count), 7, u'0'));
    return names;
}
