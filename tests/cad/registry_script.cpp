#include "registry_script.h"

#include <QRegularExpression>
#include <QtEndian>

namespace {

QString withoutEscapes(QString text)
{
    static const QRegularExpression escaped(QStringLiteral("\\\\(.)"));
    return text.replace(escaped, QStringLiteral("\\1"));
}

QByteArray bytesOf(const QString &hexBytes)
{
    return QByteArray::fromHex(QString(hexBytes).remove(QLatin1Char(',')).toLatin1());
}

// A text with variables, which the Registry Editor writes as the bytes of its UTF-16 code units.
QString expandableText(const QString &hexBytes)
{
    QByteArray bytes = bytesOf(hexBytes);
    bytes.chop(2); // the zero at the end
    return QString::fromUtf16(reinterpret_cast<const char16_t *>(bytes.constData()), bytes.size() / 2);
}

QString textOf(const QString &written)
{
    if (written.startsWith(QLatin1String("hex(2):")))
        return expandableText(written.mid(7));
    if (written.startsWith(QLatin1Char('"')))
        return withoutEscapes(written.mid(1, written.size() - 2));
    if (written.startsWith(QLatin1String("hex(b):")))
        return QString::number(qFromLittleEndian<qint64>(bytesOf(written.mid(7)).constData()));
    if (written.startsWith(QLatin1String("dword:")))
        return QString::number(static_cast<qint32>(written.mid(6).toUInt(nullptr, 16)));
    return QString();
}

} // namespace

void importScript(const QString &script, TableRegistry &registry)
{
    static const QRegularExpression valueLine(QStringLiteral("^(?:\"((?:[^\"\\\\]|\\\\.)*)\"|@)=(.*)$"));
    QString key;
    const QStringList lines = script.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QRegularExpressionMatch value = valueLine.match(line);
        if (line.startsWith(QLatin1Char('['))) {
            key = line.mid(1, line.lastIndexOf(QLatin1Char(']')) - 1);
            registry.putKey(key);
        } else if (value.hasMatch()) {
            registry.put(key, withoutEscapes(value.captured(1)), textOf(value.captured(2)));
        }
    }
}
