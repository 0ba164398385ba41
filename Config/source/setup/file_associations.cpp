#include "setup/file_associations.h"

#include "nvx_util/code_page.h"
#include "nvx_util/product.h"
#include "nvx_util/system.h"
#include "nvx_util/trusted_files.h"
#include "run/command_runner.h"
#include "run/diagnostics.h"
#include "run/product_files.h"
#include "run/reporter.h"
#include "setup/association_scripts.h"

#include <QCoreApplication>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Setup {

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(FileAssociations)
};

// The bytes of the script; std::nullopt if the code page lacks a character. The Registry Editor reads a
// script without a byte order mark in the system's code page, even if the first line says version 5.00.
std::optional<QByteArray> encoded(const QStringList &lines)
{
    return Util::toAnsi(lines.join(u'\n') + u'\n');
}

void importScript(const StepContext &context, const QString &path, const QStringList &lines)
{
    const std::optional<QByteArray> script = encoded(lines);
    if (!script) {
        context.reporter.log(LogLevel::failure,
                             Messages::tr("The folder's path cannot be written in the system's code page; no "
                                          "files are associated with the product: %1")
                                 .arg(context.state.installDir));
        return;
    }
    removeProductFile(path);
    // Only a new and complete file is ours to import. Nobody may change it until the editor has read it.
    if (const Util::ScriptFile file(path, *script); file)
        CommandRunner(context).runSystemCommand(u"regedit"_s, {u"-s"_s, path}, context.state.installDir,
                                                CommandRunner::usualTimeoutMs);
    else
        qCWarning(diagnostics, "Unable to create %ls", qUtf16Printable(path));
}

} // namespace

int createFileAssociations(const StepContext &context, RunMode mode)
{
    const AssociationNames names = associationNamesOf(Product::release);
    const QString script = Util::joinPath(context.state.installDir, u"FileAssociations.reg"_s);
    context.reporter.progress(LogLevel::step, Messages::tr("Create file associations"));
    context.reporter.log(LogLevel::step, script);

    importScript(context, script, removalScript(names));
    if (mode != RunMode::Install)
        return 0;
    if (context.state.installDirEscaped.isEmpty()) // the user abandoned the start-up
        context.reporter.log(LogLevel::failure,
                             Messages::tr("The install folder is unknown; no files are associated"));
    else
        importScript(context, script, creationScript(names, context.state.installDirEscaped));
    return 0;
}

} // namespace Nvx::Setup
