#include "log_summary/log_line.h"

#include <QDate>
#include <QTime>

#include <algorithm>
#include <charconv>
#include <string_view>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace LogSummary {

namespace {

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

/// Whether the characters have the form: "a" for a letter, "9" for a digit, the others for themselves.
bool hasForm(QByteArrayView characters, std::string_view form)
{
    if (characters.size() < qsizetype(form.size()))
        return false;
    for (std::size_t i = 0; i < form.size(); ++i) {
        const char character = characters[qsizetype(i)];
        const bool fits = form[i] == 'a'   ? isLetter(character)
                          : form[i] == '9' ? isDigit(character)
                                           : character == form[i];
        if (!fits)
            return false;
    }
    return true;
}

/// The length of the date at the beginning of a line; 0 if it does not begin with one.
qsizetype dateLength(QByteArrayView line)
{
    constexpr std::string_view day = "aaa aaa ";
    constexpr std::string_view time = " 99:99:99 9999 ";
    if (!hasForm(line, day))
        return 0;
    qsizetype end = day.size();
    if (end < line.size() && line[end] == ' ')
        ++end;
    const qsizetype number = end;
    while (end < line.size() && end < number + 2 && isDigit(line[end]))
        ++end;
    if (end == number || !hasForm(line.sliced(end), time))
        return 0;
    return end + qsizetype(time.size()) - 1;
}

} // namespace

LogLine readLogLine(QByteArrayView line)
{
    const LogLine undated{.text = line};
    const qsizetype end = dateLength(line);
    if (end == 0)
        return undated;
    qsizetype start = end;
    while (start < line.size() && line[start] == ' ')
        ++start;
    LogLine read{.isDated = true, .stamp = line.first(end)};
    const char *const last = line.data() + line.size();
    const auto [after, error] = std::from_chars(line.data() + start, last, read.number);
    if (error != std::errc() || (after != last && *after != ' '))
        return undated;
    const qsizetype text = after - line.data() + 1;
    read.text = text < line.size() ? line.sliced(text) : QByteArrayView();
    return read;
}

QString isoTime(QByteArrayView stamp)
{
    // The names of months are English in every language.
    const QStringList words = QString::fromLatin1(stamp).simplified().split(u' ');
    if (words.size() != 5)
        return {};
    const QString day = QStringList{words.at(1), words.at(2), words.at(4)}.join(u' ');
    const QDate date = QDate::fromString(day, u"MMM d yyyy"_s);
    const QTime time = QTime::fromString(words.at(3), u"HH:mm:ss"_s);
    if (!date.isValid() || !time.isValid())
        return {};
    return date.toString(Qt::ISODate) + u'T' + time.toString(Qt::ISODate);
}

LineSplitter::LineSplitter(Consumer consumer)
    : m_consumer(std::move(consumer))
{
}

void LineSplitter::add(QByteArrayView piece)
{
    for (qsizetype end = piece.indexOf('\n'); end >= 0; end = piece.indexOf('\n')) {
        const QByteArrayView part = piece.first(end);
        piece = piece.sliced(end + 1);
        if (m_begun.isEmpty()) {
            passOn(part);
            continue;
        }
        keep(part);
        passOn(m_begun);
        m_begun.clear();
    }
    keep(piece);
}

void LineSplitter::finish()
{
    if (!m_begun.isEmpty())
        passOn(m_begun);
    m_begun.clear();
}

// Keeps one byte more than is passed on: it may be the CR of the line end.
void LineSplitter::keep(QByteArrayView part)
{
    const qsizetype space = maxLineBytes + 1 - m_begun.size();
    m_begun.append(part.first(std::min(part.size(), space)));
}

void LineSplitter::passOn(QByteArrayView line) const
{
    if (line.endsWith('\r'))
        line.chop(1);
    m_consumer(line.first(std::min(line.size(), maxLineBytes)));
}

} // namespace LogSummary
