#include "registry_script.h"

#include <QRegularExpression>
#include <QtEndian>

using namespace Qt::Literals::StringLiterals;

namespace {

QString withoutEscapes(QString text)
{
    static const QRegularExpression escaped(u"\\\\(.)"_s);
    return text.replace(escaped, u"\\1"_s);
}

QByteArray bytesOf(const QString &hexBytes)
{
    return QByteArray::fromHex(QString(hexBytes).remove(u',').toLatin1());
}

// A string with variables, which the Registry Editor writes as the bytes of its UTF-16 code units.
QString expandableText(const QString &hexBytes)
{
    QByteArray bytes = bytesOf(hexBytes);
    bytes.chop(2); // the terminating null
    return QString::fromUtf16(reinterpret_cast<const char16_t *>(bytes.constData()), bytes.size() / 2);
}

QString textOf(const QString &written)
{
    if (written.startsWith("hex(2):"_L1))
        return expandableText(written.mid(7));
    if (written.startsWith(u'"'))
        return withoutEscapes(written.mid(1, written.size() - 2));
    if (written.startsWith("hex(b):"_L1))
        return QString::number(qFromLittleEndian<qint64>(bytesOf(written.mid(7)).constData()));
    if (written.startsWith("dword:"_L1))
        return QString::number(static_cast<qint32>(written.mid(6).toUInt(nullptr, 16)));
    return QString();
}

} // namespace

void importScript(const QString &script, TableRegistry &registry)
{
    static const QRegularExpression valueLine(u"^(?:\"((?:[^\"\\\\]|\\\\.)*)\"|@)=(.*)$"_s);
    QString key;
    const QStringList lines = script.split(u'\n');
    for (const QString &line : lines) {
        const QRegularExpressionMatch value = valueLine.match(line);
        if (line.startsWith(u'[')) {
            key = line.mid(1, line.lastIndexOf(u']') - 1);
            registry.putKey(key);
        } else if (value.hasMatch()) {
            registry.put(key, withoutEscapes(value.captured(1)), textOf(value.captured(2)));
        }
    }
}
