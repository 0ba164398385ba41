#include "setup/file_associations.h"

#include "nvx_util/code_page.h"
#include "nvx_util/system.h"
#include "run/product.h"
#include "run/product_files.h"
#include "run/reporter.h"
#include "setup/association_scripts.h"
#include "setup/command_runner.h"

#include <QCoreApplication>
#include <QFile>

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(FileAssociations)
};

// The lines as the file holds them; none when the code page lacks a character of one. The Registry Editor
// reads a script without a byte order mark in that code page, whatever version its first line names.
QList<QByteArray> encoded(const QStringList &lines)
{
    QList<QByteArray> bytes;
    for (const QString &line : lines) {
        const std::optional<QByteArray> written = Nvx::Util::toAnsi(line + QLatin1Char('\n'));
        if (!written)
            return {};
        bytes.append(*written);
    }
    return bytes;
}

bool createScript(const QString &path, const QList<QByteArray> &lines)
{
    removeProductFile(path);
    QFile file(path);
    // Only a file that is new is ours to import.
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return false;
    for (const QByteArray &line : lines) {
        if (file.write(line) != line.size())
            return false;
    }
    return file.flush();
}

void importScript(const StepContext &context, const QString &path, const QStringList &lines)
{
    const QList<QByteArray> bytes = encoded(lines);
    if (bytes.isEmpty()) {
        context.reporter.log(1, Messages::tr("The system's code page cannot write the folder, no files are "
                                             "associated with the product: %1")
                                    .arg(context.state.installDir));
        return;
    }
    if (createScript(path, bytes))
        CommandRunner(context).runSystemCommand(QStringLiteral("regedit"), {QStringLiteral("-s"), path},
                                                context.state.installDir, CommandRunner::usualTimeoutMs);
    else
        context.reporter.log(1, Messages::tr("Unable to create %1").arg(path));
    removeProductFile(path);
}

} // namespace

int createFileAssociations(const StepContext &context, RunMode mode)
{
    const AssociationNames names = associationNamesOf(productRelease);
    const QString script =
        Nvx::Util::joinPath(context.state.installDir, QStringLiteral("FileAssociations.reg"));
    context.reporter.progress(0, Messages::tr("Create file associations"));
    context.reporter.log(0, script);

    importScript(context, script, removalScript(names));
    if (mode != RunMode::Install)
        return 0;
    if (context.state.installDirEscaped.isEmpty()) // the user broke the reading of the command line off
        context.reporter.log(1, Messages::tr("The install folder is not known, no files are associated"));
    else
        importScript(context, script, creationScript(names, context.state.installDirEscaped));
    return 0;
}
