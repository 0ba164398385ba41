#include "cfg_wizard/wizard_plan.h"

WizardPlan planFor(RunMode mode, bool silent)
{
    using Action = WizardPlan::Action;
    using Page = WizardPlan::Page;

    switch (mode) {
    case RunMode::StopServices:
        return {Action::StopServices, {}, mode};
    case RunMode::Localization:
        return {Action::Localize, {}, mode};
    case RunMode::Uninstall:
        if (silent)
            return {Action::RunSilently, {}, mode};
        return {Action::ShowPages, {Page::Conclusion}, mode};
    case RunMode::Install:
        if (silent)
            return {Action::RunSilently, {}, mode};
        return {Action::ShowPages, {Page::Feature, Page::Conclusion}, mode};
    case RunMode::NotGiven:
        break;
    }
    return {Action::ShowPages, {Page::Welcome, Page::Feature, Page::Conclusion}, RunMode::Install};
}
