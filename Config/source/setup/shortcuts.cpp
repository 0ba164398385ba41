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
        // A link without a folder would land at the top of the drive.
        context.reporter.log(LogLevel::failure,
                             Messages::tr("There is no desktop folder of all users, it gets no shortcut"));
        context.machine.notifyAssociationsChanged();
        return 0;
    }

    const QString name = QStringLiteral("%1 %2").arg(Nvx::Product::maker, Nvx::Product::fullName);
    const QString linkPath = joinPath(desktop, name + QStringLiteral(".lnk"));
    if (!removeProductFile(linkPath))
        context.reporter.log(LogLevel::failure, Messages::tr("Unable to remove %1").arg(linkPath));
    if (mode == RunMode::Install)
        createShortcut(context, joinPath(context.state.installDir, Nvx::Product::program), linkPath, name,
                       QString(), QString());
    context.machine.notifyAssociationsChanged();
    return 0;
}

int createShortcut(const StepContext &context, const QString &target, const QString &linkPath,
                   const QString &description, const QString &iconPath, const QString &arguments)
{
    ShellLink link;
    link.target = target;
    link.linkPath = linkPath;
    link.description = description;
    link.workFolder = context.state.installDir;
    link.iconPath = iconPath;
    link.arguments = arguments;

    qint32 result = Nvx::Util::shellLinkTextTooLong;
    const QString tooLong = Nvx::Util::tooLongTextOf(link);
    if (tooLong.isEmpty())
        result = context.machine.createShellLink(link);
    else
        context.reporter.log(LogLevel::failure,
                             Messages::tr("This text is too long for a shortcut: %1").arg(tooLong));

    const QString outcome = result == 0 ? context.state.successWord() : context.state.failureWord();
    context.reporter.log(LogLevel::ofResult(result), Messages::tr("Create shortcut ") + linkPath + outcome);
    return 0;
}
