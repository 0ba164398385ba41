#include "clt_message.h"

#include <QByteArray>
#include <QCoreApplication>

namespace Clt {

namespace {

QByteArray toAscii(const QString &text)
{
    QByteArray ascii = text.toLatin1();
    for (char &character : ascii) {
        if (static_cast<unsigned char>(character) > 0x7f)
            character = '?';
    }
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
    QString lines = QStringLiteral("### ") + severityToText(m_severity) + QStringLiteral(": ") + m_file +
                    u' ' + QString::number(m_line) + u'\n';
    lines += m_text + u'\n';
    if (m_text != m_sourceText)
        lines += u'(' + m_sourceText + QStringLiteral(")\n");
    return lines;
}

// The application answers an unknown text with the text that it was asked for, which ASCII may have
// mutilated; the text itself is then the answer.
QString Message::translated(const QString &text) const
{
    const QByteArray ascii = toAscii(text);
    const QString answer = QCoreApplication::translate(toAscii(m_key.context).constData(), ascii.constData());
    return answer == QLatin1String(ascii.constData()) ? text : answer;
}

} // namespace Clt
