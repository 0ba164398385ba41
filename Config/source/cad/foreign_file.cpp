#include "cad/foreign_file.h"

#include "nvx_util/code_page.h"
#include "nvx_util/trusted_files.h"
#include "nvx_util/whole_file.h"
#include "run/diagnostics.h"
#include "run/reporter.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Nvx::Run;

namespace Nvx::Cad {

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(ForeignFile)
};

} // namespace

std::optional<QByteArray> readForeignFile(const QString &path)
{
    std::optional<QByteArray> contents = Util::readWholeFile(path);
    if (!contents)
        qCWarning(diagnostics, "Unable to read %ls", qUtf16Printable(path));
    return contents;
}

std::optional<QByteArray> toForeignText(Reporter &reporter, const QString &path, const QString &text)
{
    std::optional<QByteArray> encoded = Util::toAnsi(text);
    if (!encoded)
        reporter.log(LogLevel::failure,
                     Messages::tr("The install folder's path cannot be written in the system's code page; "
                                  "the launcher is not added to %1")
                         .arg(path));
    return encoded;
}

void replaceForeignFile(const QString &path, const QByteArray &contents)
{
    const auto way = Util::HeldWay::toEntry(path);
    if (way.plantedPoint() || !Util::replaceWholeFile(path, contents))
        qCWarning(diagnostics, "Unable to write %ls", qUtf16Printable(path));
}

namespace {

constexpr char lowered(char byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

bool isAsciiFoundIn(QByteArrayView bytes, QByteArrayView text)
{
    const auto isSame = [](char one, char other) { return lowered(one) == lowered(other); };
    return text.isEmpty() ||
           std::search(bytes.begin(), bytes.end(), text.begin(), text.end(), isSame) != bytes.end();
}

} // namespace

CaselessSearch::CaselessSearch(const QString &text)
    : m_text(text)
    , m_encoded(Util::toAnsi(text))
    , m_isAscii(
          std::all_of(text.begin(), text.end(), [](QChar character) { return character.unicode() < 0x80; }))
{
}

bool CaselessSearch::isFoundIn(QByteArrayView bytes) const
{
    if (!m_encoded)
        return false;
    if (m_isAscii)
        return isAsciiFoundIn(bytes, *m_encoded);
    // The bytes are searched too: after an invalid byte, decoding could swallow the first character of a
    // match.
    return bytes.indexOf(*m_encoded) >= 0 ||
           QString::fromLocal8Bit(bytes).contains(m_text, Qt::CaseInsensitive);
}

} // namespace Nvx::Cad
