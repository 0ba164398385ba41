#include "cfg_wizard/wizard_plan.h"

using namespace Nvx::Run;

namespace Nvx::Wizard {

WizardPlan planFor(RunMode mode, bool silent)
{
    using Action = WizardPlan::Action;
    using Page = WizardPlan::Page;

    switch (mode) {
    case RunMode::StopServices:
        return {.action = Action::StopServices, .runMode = mode};
    case RunMode::Localization:
        return {.action = Action::Localize, .runMode = mode};
    case RunMode::Uninstall:
        if (silent)
            return {.action = Action::RunSilently, .runMode = mode};
        return {.pages = {Page::Conclusion}, .runMode = mode};
    case RunMode::Install:
        if (silent)
            return {.action = Action::RunSilently, .runMode = mode};
        return {.pages = {Page::Feature, Page::Conclusion}, .runMode = mode};
    case RunMode::NotGiven:
        break;
    }
    return {.pages = {Page::Welcome, Page::Feature, Page::Conclusion}};
}

} // namespace Nvx::Wizard
