#include "clt_message_arguments.h"

#include <QSet>

namespace Clt {

namespace {

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

} // namespace

int argumentCount(QStringView text)
{
    QSet<QStringView> placeholders;
    qsizetype start = text.indexOf(u'%');
    while (start >= 0) {
        qsizetype end = start + 1;
        while (end < text.size() && isDigit(text.at(end)))
            ++end;
        if (end > start + 1)
            placeholders.insert(text.sliced(start, end - start));
        start = text.indexOf(u'%', end);
    }
    return static_cast<int>(placeholders.size());
}

QString applyArguments(const QString &text, const QStringList &arguments)
{
    if (arguments.isEmpty() || argumentCount(text) > arguments.size())
        return text;
    QString filled = text;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (filled.contains(u'%' + QString::number(i + 1)))
            filled = filled.arg(arguments.at(i));
    }
    return filled;
}

} // namespace Clt
