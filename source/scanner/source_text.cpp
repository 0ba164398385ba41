#include "scanner/source_text.h"

#include "nvx_util/code_page.h"

#include <QString>
#include <QUtf8StringView>

#include <array>

namespace Scan {

namespace {

constexpr char byteOrderMark[] = "\xEF\xBB\xBF";

bool isUtf8(const QByteArray &bytes)
{
    return QUtf8StringView(bytes.constData(), bytes.size()).isValidUtf8();
}

QString fromWindows1252(const QByteArray &bytes)
{
    // The characters of the bytes 0x80 to 0x9F; the rest are those of Latin-1.
    static constexpr std::array<char16_t, 32> characters = {
        0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
    };
    QString text = QString::fromLatin1(bytes);
    for (QChar &character : text) {
        const char16_t unit = character.unicode();
        if (unit >= 0x80 && unit < 0xA0)
            character = QChar(characters[unit - 0x80]);
    }
    return text;
}

} // namespace

QString decodeEightBit(const QByteArray &bytes)
{
    if (isUtf8(bytes))
        return QString::fromUtf8(bytes);
    const QString text = Nvx::Util::toQString(bytes.toStdString());
    return text.contains(QChar(QChar::ReplacementCharacter)) ? fromWindows1252(bytes) : text;
}

QByteArray toSourceText(const QByteArray &fileContents)
{
    if (fileContents.startsWith(byteOrderMark)) {
        const QByteArray text = fileContents.mid(3);
        return isUtf8(text) ? text : QString::fromUtf8(text).toUtf8();
    }
    return isUtf8(fileContents) ? fileContents : decodeEightBit(fileContents).toUtf8();
}

} // namespace Scan
