#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

#include <QString>

namespace Nvx::Setup {

/// Removes the product's shortcut from the desktop of all users, creates it again on install, and notifies
/// the shell. Always returns 0. If there is no such desktop, nothing is touched and a failure is logged.
int createShortcuts(const Run::StepContext &context, Run::RunMode mode);

/// Creates one shortcut, a link file of the shell, that starts the target in the install dir. With an empty
/// iconPath it shows the target's own icon. Always returns 0. The outcome is logged with the result of the
/// shell's last call as the level. If a text is too long for a link file, no link is created.
int createShortcut(const Run::StepContext &context, const QString &target, const QString &linkPath,
                   const QString &description, const QString &iconPath, const QString &arguments);

} // namespace Nvx::Setup
