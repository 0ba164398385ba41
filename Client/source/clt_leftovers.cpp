#include "clt_leftovers.h"

#include "nvx_util/whole_file.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Clt {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Leftovers)
};

QString textOf(const Leftover &leftover)
{
    const QString line = QString::number(leftover.line);
    if (leftover.laterLine == 0)
        return Texts::tr("Line %1: %2 is not kept").arg(line, leftover.what);
    return Texts::tr("Line %1: %2 is not kept; it occurs again in line %3")
        .arg(line, leftover.what, QString::number(leftover.laterLine));
}

QString logLineOf(const QString &fileName, const Leftover &leftover)
{
    QString line = u"%1:%2: %3 is not kept"_s.arg(fileName, QString::number(leftover.line), leftover.what);
    if (leftover.laterLine != 0)
        line += u"; it occurs again in line "_s + QString::number(leftover.laterLine);
    return line;
}

QString copyName(const QString &fileName, int number)
{
    const QString first = fileName + u".before"_s;
    return number == 1 ? first : first + u'.' + QString::number(number);
}

} // namespace

void Leftovers::add(const Leftover &leftover)
{
    ++m_count;
    if (m_listed.size() < maximumListed)
        m_listed.push_back(leftover);
}

QStringList Leftovers::texts(std::size_t maximum) const
{
    QStringList texts;
    const std::size_t shown = std::min(maximum, m_listed.size());
    for (std::size_t i = 0; i < shown; ++i)
        texts.append(textOf(m_listed[i]));
    if (const qsizetype more = m_count - texts.size(); more > 0)
        texts.append(Texts::tr("... and %1 more").arg(more));
    return texts;
}

QStringList Leftovers::logLines(const QString &fileName) const
{
    QStringList lines;
    for (const Leftover &leftover : m_listed)
        lines.append(logLineOf(fileName, leftover));
    if (const qsizetype more = m_count - lines.size(); more > 0)
        lines.append(u"%1: %2 more are not kept"_s.arg(fileName, QString::number(more)));
    return lines;
}

QString shortened(const QString &text)
{
    constexpr qsizetype maximum = 60;
    const QString line = text.left(4 * maximum).simplified();
    return line.size() <= maximum ? line : line.left(maximum) + u"..."_s;
}

std::optional<QString> backUpFile(const QString &fileName)
{
    const std::optional<QByteArray> contents = Nvx::Util::readWholeFile(fileName);
    if (!contents)
        return std::nullopt;
    for (int number = 1;; ++number) {
        const QString copy = copyName(fileName, number);
        if (!QFile::exists(copy))
            return Nvx::Util::copyToFreeName(fileName, copy) ? std::optional(copy) : std::nullopt;
        if (Nvx::Util::readWholeFile(copy) == contents)
            return copy;
    }
}

QString backupText(const QString &copy)
{
    return Texts::tr("Parts of the file were dropped; the previous file is kept as %1").arg(copy);
}

bool isSameFile(const QString &one, const QString &other)
{
    return QFile::exists(one) && QFile::exists(other) && QFileInfo(one) == QFileInfo(other);
}

void FileLeftovers::set(const QString &fileName, const Leftovers &leftovers)
{
    m_fileName = fileName;
    m_leftovers = leftovers;
}

bool FileLeftovers::replace(const QString &fileName, const QByteArray &contents)
{
    m_copy.clear();
    const bool loses = !m_leftovers.isEmpty() && isSameFile(fileName, m_fileName);
    std::optional<QString> copy = QString();
    if (loses)
        copy = backUpFile(fileName);
    if (!copy || !Nvx::Util::replaceWholeFile(fileName, contents))
        return false;
    m_copy = *copy;
    // Nothing is lost any more. Compared only now, because the file may not have existed before.
    if (isSameFile(fileName, m_fileName))
        m_leftovers = Leftovers();
    return true;
}

} // namespace Clt
