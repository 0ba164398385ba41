// For any protk.dat: a removal preserves exactly the pieces of other programs, byte for byte; an install
// prepends the entry or does not change the file; doing either twice has the same result as once.

#include "cad/creo/protk_file.h"

#include <QStringList>

#include <cstdlib>

using namespace Nvx::Cad;
using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray entry = creoEntry(u"C:\\NVX"_s, u"C:\\NVX"_s, 2).toLatin1();

void require(bool condition)
{
    if (!condition)
        std::abort();
}

// The simple way: pieces are split as Latin-1, and measured in the code page.
QByteArray expectedRemoval(const QByteArray &contents)
{
    QByteArray preserved;
    const QStringList pieces = QString::fromLatin1(contents).split(u"end\r\n"_s, Qt::SkipEmptyParts);
    for (const QString &piece : pieces) {
        const QByteArray bytes = piece.toLatin1();
        const qsizetype length = QString::fromLocal8Bit(bytes).trimmed().size();
        if (length >= 5 && !bytes.toLower().contains("nvx_2017_creo"))
            preserved += bytes + "end\r\n";
    }
    return preserved;
}

QByteArray installed(const QByteArray &contents)
{
    const QByteArray cleared = withoutLauncherEntries(contents);
    return withLauncherEntry(cleared, entry).value_or(cleared);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    const QByteArray contents(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const QByteArray removed = withoutLauncherEntries(contents);
    require(removed == expectedRemoval(contents));
    require(withoutLauncherEntries(removed) == removed);

    const std::optional<QByteArray> added = withLauncherEntry(contents, entry);
    require(added.has_value() == (contents.indexOf("$OSTRADE2017") < 1));
    require(!added || *added == entry + contents);

    const QByteArray once = installed(contents);
    require(installed(once) == once);
    require(withoutLauncherEntries(once) == removed);
    return 0;
}
