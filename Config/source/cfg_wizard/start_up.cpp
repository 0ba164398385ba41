#include "cfg_wizard/start_up.h"

#include "cfg_utilities/cfg_utilitys.h"
#include "cfg_wizard/class_wizard.h"
#include "cfg_wizard/interface_language.h"
#include "cfg_wizard/wizard_plan.h"
#include "localization/util_localization_tool.h"
#include "nvx_util/system.h"

#include <QApplication>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Wizard {

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(StartUp)
};

int showPages(cfg_utilitys &engine, const WizardPlan &plan)
{
    ClassWizard wizard(engine, plan.pages);
    engine.searchCADPackages(); // sets the check boxes of the pages
    wizard.show();
    return QApplication::exec();
}

void localize(cfg_utilitys &engine)
{
    engine.initLocalizationTool();
    engine.getLtool()->runScript();
    engine.log(LogLevel::step, u"Localization script finishes cool"_s);
}

} // namespace

int runPasses(const cfg_utilitys &engine, const std::function<int()> &pass)
{
    for (;;) {
        const QString locale = Util::System::getLocale();
        const InterfaceTranslators translators(engine.state().installDir, locale);
        const InterfaceFont font(locale);
        const int result = pass();
        if (result != languageChanged)
            return result;
    }
}

int runPass(cfg_utilitys &engine, const WizardPlan &plan)
{
    engine.checkRunningCAD();
    engine.checkRunningProduct(OnMatch::List);

    engine.setRunMode(plan.runMode);
    switch (plan.action) {
    case WizardPlan::Action::RunSilently:
        engine.searchCADPackages();
        engine.ProcessInstallation();
        if (plan.runMode == RunMode::Uninstall)
            engine.removeOldFiles(Nvx::Engine::OldFiles::Remove);
        return 0;
    case WizardPlan::Action::StopServices:
        engine.log(LogLevel::step, Messages::tr("Stopping Services"));
        engine.stopServices(plan.runMode);
        return 0;
    case WizardPlan::Action::Localize:
        localize(engine);
        return 0;
    case WizardPlan::Action::ShowPages:
        break;
    }
    return showPages(engine, plan);
}

int runProgram(cfg_utilitys &engine)
{
    const WizardPlan plan = planFor(engine.state().runMode, engine.state().silent);
    return runPasses(engine, [&] { return runPass(engine, plan); });
}

} // namespace Nvx::Wizard
