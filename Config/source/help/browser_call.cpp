#include "help/browser_call.h"

#include <QFileInfo>
#include <QUrl>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Help {

namespace {

const auto placeholder = u"%1"_s;

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

bool startsWithDrive(const QString &address)
{
    return address.size() > 2 && address.at(0).unicode() < 128 && address.at(0).isLetter() &&
           address.at(1) == u':' && (address.at(2) == u'\\' || address.at(2) == u'/');
}

bool isPath(const QString &address)
{
    return startsWithDrive(address) || address.startsWith("\\\\"_L1) || address.startsWith(u'/');
}

// Backslashes in the query and the fragment stay.
void useSlashesInPath(QString &address)
{
    const auto isEndOfPath = [](QChar c) { return c == u'?' || c == u'#'; };
    const auto end = std::find_if(address.begin(), address.end(), isEndOfPath);
    std::replace(address.begin(), end, QChar(u'\\'), QChar(u'/'));
}

QUrl urlOf(QString address)
{
    if (isPath(address))
        return QUrl::fromLocalFile(address.replace(u'\\', u'/'));
    if (address.startsWith("file:"_L1, Qt::CaseInsensitive))
        useSlashesInPath(address);
    return QUrl(address);
}

/// Reads arguments one by one.
class ArgumentReader
{
public:
    explicit ArgumentReader(const QString &text)
        : m_text(text)
    {
        skipBlanks();
    }

    bool atEnd() const { return m_at == m_text.size(); }

    QString next()
    {
        QString argument;
        bool quoted = false;
        for (; !atEnd() && (quoted || !isBlank(m_text.at(m_at))); ++m_at) {
            const QChar c = m_text.at(m_at);
            if (c == u'\\') {
                readBackslashes(argument);
            } else if (c != u'"') {
                argument += c;
            } else if (quoted && m_text.mid(m_at + 1, 1) == "\""_L1) {
                argument += u'"';
                ++m_at;
            } else {
                quoted = !quoted;
            }
        }
        skipBlanks();
        return argument;
    }

private:
    void skipBlanks()
    {
        while (!atEnd() && isBlank(m_text.at(m_at)))
            ++m_at;
    }

    // Before a quote, two backslashes mean one, and an odd one makes the quote an ordinary character;
    // elsewhere a backslash is an ordinary character. Ends on the last character read.
    void readBackslashes(QString &argument)
    {
        qsizetype end = m_at;
        while (end < m_text.size() && m_text.at(end) == u'\\')
            ++end;
        const qsizetype count = end - m_at;
        const bool beforeQuote = end < m_text.size() && m_text.at(end) == u'"';
        argument += QString(beforeQuote ? count / 2 : count, u'\\');
        m_at = end - 1;
        if (beforeQuote && count % 2 == 1) {
            argument += u'"';
            m_at = end;
        }
    }

    const QString &m_text;
    qsizetype m_at = 0;
};

// The end of an unquoted program path at the start of the command line. The path may contain blanks, since
// some installers forget the quotes.
qsizetype endOfBareProgram(const QString &commandLine)
{
    const auto suffix = ".exe"_L1;
    for (qsizetype at = 0; (at = commandLine.indexOf(suffix, at, Qt::CaseInsensitive)) >= 0;) {
        at += suffix.size();
        if (at == commandLine.size() || isBlank(commandLine.at(at)))
            return at;
    }
    const auto blank = std::find_if(commandLine.begin(), commandLine.end(), isBlank);
    return blank - commandLine.begin();
}

// The program and its arguments.
BrowserCall splitCommandLine(const QString &commandLine)
{
    const QString trimmed = commandLine.trimmed();
    if (!trimmed.startsWith(u'"')) {
        const qsizetype end = endOfBareProgram(trimmed);
        return {trimmed.left(end), splitArguments(trimmed.mid(end))};
    }
    // A backslash does not escape the closing quote of a program.
    const qsizetype closing = trimmed.indexOf(u'"', 1);
    if (closing < 0)
        return {trimmed.mid(1), {}};
    return {trimmed.mid(1, closing - 1), splitArguments(trimmed.mid(closing + 1))};
}

// Programs that would execute parts of an address as commands.
bool interpretsArguments(QString program)
{
    // The operating system ignores dots and blanks at the end of a file name.
    while (program.endsWith(u'.') || program.endsWith(u' '))
        program.chop(1);
    const QFileInfo file(program.replace(u'\\', u'/').toLower());
    const QStringList suffixes{u"bat"_s, u"cmd"_s};
    const QStringList interpreters{u"cmd"_s, u"command"_s, u"powershell"_s, u"pwsh"_s};
    return suffixes.contains(file.suffix()) || interpreters.contains(file.completeBaseName());
}

bool looksLikeAnOption(const QString &argument)
{
    return argument.startsWith(u'-') || argument.startsWith(u'/');
}

} // namespace

QString encodedAddress(const QString &address)
{
    return QString::fromLatin1(urlOf(address).toEncoded()); // empty if it is not valid
}

QString expandVariables(const QString &text, const std::function<QString(const QString &)> &valueOf)
{
    QString expanded;
    qsizetype at = 0;
    while (at < text.size()) {
        const qsizetype opening = text.indexOf(u'%', at);
        const qsizetype closing = opening < 0 ? -1 : text.indexOf(u'%', opening + 1);
        if (closing < 0)
            break;
        const QString value = valueOf(text.mid(opening + 1, closing - opening - 1));
        // The closing percent sign of an unknown name may begin the next variable.
        const qsizetype next = value.isNull() ? closing : closing + 1;
        expanded += text.mid(at, opening - at);
        expanded += value.isNull() ? text.mid(opening, closing - opening) : value;
        at = next;
    }
    return expanded + text.mid(at);
}

QStringList splitArguments(const QString &commandLine)
{
    QStringList arguments;
    for (ArgumentReader reader(commandLine); !reader.atEnd();)
        arguments += reader.next();
    return arguments;
}

std::optional<BrowserCall> browserCall(const QString &commandLine, const QString &encodedAddress)
{
    BrowserCall call = splitCommandLine(commandLine);
    if (call.program.isEmpty() || call.program.contains(placeholder) || interpretsArguments(call.program))
        return std::nullopt;

    QString address = encodedAddress;
    const bool hasPlaceholder = commandLine.contains(placeholder);
    const auto scheme = "http://"_L1;
    if (hasPlaceholder && address.startsWith(scheme))
        address.remove(0, scheme.size());
    if (address.isEmpty() || looksLikeAnOption(address))
        return std::nullopt;

    if (hasPlaceholder)
        call.arguments.replaceInStrings(placeholder, address);
    else
        call.arguments += address;
    return call;
}

} // namespace Nvx::Help
