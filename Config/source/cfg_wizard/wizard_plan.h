#pragma once

#include "run/run_state.h"

#include <QList>

namespace Nvx::Wizard {

/// What the program does after its start, decided from the run mode and the silent flag alone.
struct WizardPlan
{
    enum class Action
    {
        ShowPages,    ///< show a wizard with these pages
        RunSilently,  ///< perform the installation run without a window
        StopServices, ///< stop the product's services, without a window
        Localize      ///< run the localisation tool, without a window
    };
    enum class Page
    {
        Welcome,
        Feature,
        Conclusion
    };

    Action action = Action::ShowPages;
    QList<Page> pages = {};                       ///< for ShowPages, in order
    Run::RunMode runMode = Run::RunMode::Install; ///< the mode from here on
};

/// The plan for a run. The silent flag is ignored if no mode was given.
WizardPlan planFor(Run::RunMode mode, bool silent);

} // namespace Nvx::Wizard
