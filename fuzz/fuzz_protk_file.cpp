// Whatever a protk.dat holds: a removal keeps exactly the pieces of others, byte for byte, an install puts
// the entry in front or leaves the file, and doing either twice is the same as once.

#include "cad/creo/creo_names.h"
#include "cad/creo/protk_file.h"

#include <QStringList>

#include <cstdlib>

namespace {

const QByteArray entry = creoEntry(QStringLiteral("C:\\NVX"), QStringLiteral("C:\\NVX"), 2).toLatin1();

void require(bool condition)
{
    if (!condition)
        std::abort();
}

// The plain way: split as text with one character for each byte, measured as text of the code page.
QByteArray expectedRemoval(const QByteArray &contents)
{
    QByteArray kept;
    const QStringList pieces =
        QString::fromLatin1(contents).split(QStringLiteral("end\r\n"), Qt::SkipEmptyParts);
    for (const QString &piece : pieces) {
        const QByteArray bytes = piece.toLatin1();
        const qsizetype length = QString::fromLocal8Bit(bytes).trimmed().size();
        if (length >= 5 && !bytes.toLower().contains("nvx_2017_creo"))
            kept += bytes + "end\r\n";
    }
    return kept;
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
