#include "setup/shortcuts.h"

#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "nvx_util/shell_link.h"
#include "nvx_util/system.h"
#include "run/product_files.h"
#include "run/reporter.h"

#include <QCoreApplication>

using Nvx::Util::joinPath;
using Nvx::Util::ShellLink;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Setup {

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(Shortcuts)
};

} // namespace

int createShortcuts(const StepContext &context, RunMode mode)
{
    const QString desktop = context.state.commonDesktop;
    context.reporter.log(LogLevel::step, Messages::tr("Desktop=") + desktop);
    if (desktop.isEmpty()) {
        // Without a folder the link would be created at the top of the drive.
        context.reporter.log(
            LogLevel::failure,
            Messages::tr("The shared desktop folder was not found; no shortcut was created"));
        context.machine.notifyAssociationsChanged();
        return 0;
    }

    const QString name = u"%1 %2"_s.arg(Product::maker, Product::fullName);
    const QString linkPath = joinPath(desktop, name + u".lnk"_s);
    if (!removeProductFile(linkPath))
        context.reporter.log(LogLevel::failure, Messages::tr("Unable to remove %1").arg(linkPath));
    if (mode == RunMode::Install)
        createShortcut(context, joinPath(context.state.installDir, Product::program), linkPath, name,
                       QString(), QString());
    context.machine.notifyAssociationsChanged();
    return 0;
}

int createShortcut(const StepContext &context, const QString &target, const QString &linkPath,
                   const QString &description, const QString &iconPath, const QString &arguments)
{
    const ShellLink link = {.target = target,
                            .linkPath = linkPath,
                            .description = description,
                            .workFolder = context.state.installDir,
                            .iconPath = iconPath,
                            .arguments = arguments};

    qint32 result = Util::shellLinkTextTooLong;
    const QString tooLong = Util::tooLongTextOf(link);
    if (tooLong.isEmpty())
        result = context.machine.createShellLink(link);
    else
        context.reporter.log(LogLevel::failure,
                             Messages::tr("This text is too long for a shortcut: %1").arg(tooLong));

    const QString outcome = result == 0 ? context.state.successWord() : context.state.failureWord();
    context.reporter.log(LogLevel::ofResult(result), Messages::tr("Create shortcut ") + linkPath + outcome);
    return 0;
}

} // namespace Nvx::Setup
