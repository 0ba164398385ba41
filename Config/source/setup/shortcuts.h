#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

#include <QString>

/// Removes the product's shortcut from the desktop of all users, on install makes it anew, and tells the
/// shell. Always returns 0. Without such a desktop nothing is touched, which is logged at level 1.
int createShortcuts(const StepContext &context, RunMode mode);

/// Makes one shortcut, a link file of the shell, that starts the target in the install dir; an empty iconPath
/// leaves the target's own icon. Always returns 0. The outcome is logged, with the result of the shell's last
/// call as the level. A text that a link cannot hold whole fails, and no link is made.
int createShortcut(const StepContext &context, const QString &target, const QString &linkPath,
                   const QString &description, const QString &iconPath, const QString &arguments);
