#include "cad/foreign_file.h"

#include "nvx_util/code_page.h"
#include "nvx_util/whole_file.h"
#include "run/diagnostics.h"
#include "run/reporter.h"

#include <QCoreApplication>

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
    if (!Util::replaceWholeFile(path, contents))
        qCWarning(diagnostics, "Unable to write %ls", qUtf16Printable(path));
}

} // namespace Nvx::Cad
