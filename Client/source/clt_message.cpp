#include "clt_message.h"

#include <QCoreApplication>
#include <QSet>
#include <QVarLengthArray>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Clt {

namespace {

using AsciiText = QVarLengthArray<char, 256>;

// The text as ASCII with a final NUL. Mostly on the stack, because every text that is read is converted.
AsciiText toAscii(const QString &text)
{
    AsciiText ascii(text.size() + 1);
    const auto end = std::transform(text.begin(), text.end(), ascii.begin(), [](QChar unit) {
        return unit.unicode() < 0x80 ? static_cast<char>(unit.unicode()) : '?';
    });
    *end = '\0';
    return ascii;
}

} // namespace

void Message::setTitle(const QString &title)
{
    m_sourceTitle = title;
    m_title = translated(title);
}

void Message::setText(const QString &text)
{
    m_sourceText = text;
    m_text = translated(text);
}

void Message::setAction(const QString &action)
{
    m_sourceAction = action;
    m_action = translated(action);
}

void Message::applyArguments(const QStringList &arguments)
{
    for (QString *text : {&m_text, &m_action, &m_sourceText, &m_sourceAction})
        *text = Clt::applyArguments(*text, arguments);
}

QString Message::logText() const
{
    QString lines =
        u"### "_s + severityToText(m_severity) + u": "_s + m_file + u' ' + QString::number(m_line) + u'\n';
    lines += m_text + u'\n';
    if (m_text != m_sourceText)
        lines += u'(' + m_sourceText + u")\n"_s;
    return lines;
}

// For a text without a translation, the look-up returns its argument, in which "?" may replace characters.
// The text itself is then returned.
QString Message::translated(const QString &text) const
{
    const AsciiText ascii = toAscii(text);
    const QString found = QCoreApplication::translate(toAscii(m_key.context).constData(), ascii.constData());
    return found == QLatin1String(ascii.constData()) ? text : found;
}

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
