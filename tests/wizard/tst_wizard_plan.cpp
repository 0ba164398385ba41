#include "cfg_wizard/wizard_plan.h"
#include "support/test_class.h"

#include <QTest>

using namespace Nvx::Run;
using Nvx::Wizard::planFor;
using Nvx::Wizard::WizardPlan;

class tst_wizard_plan : public QObject
{
    Q_OBJECT

private slots:
    void everyModeHasItsPlan_data()
    {
        using Action = WizardPlan::Action;
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("silent");
        QTest::addColumn<int>("action");
        QTest::addColumn<QString>("pages");
        QTest::addColumn<int>("modeFromHereOn");

        const auto row = [](const char *name, RunMode mode, bool silent, Action action, const char *pages,
                            RunMode modeFromHereOn) {
            QTest::newRow(name) << int(mode) << silent << int(action) << QString::fromLatin1(pages)
                                << int(modeFromHereOn);
        };
        row("install", RunMode::Install, false, Action::ShowPages, "FC", RunMode::Install);
        row("silent install", RunMode::Install, true, Action::RunSilently, "", RunMode::Install);
        row("uninstall", RunMode::Uninstall, false, Action::ShowPages, "C", RunMode::Uninstall);
        row("silent uninstall", RunMode::Uninstall, true, Action::RunSilently, "", RunMode::Uninstall);
        row("stop services", RunMode::StopServices, false, Action::StopServices, "", RunMode::StopServices);
        row("silent stop services", RunMode::StopServices, true, Action::StopServices, "",
            RunMode::StopServices);
        row("localisation", RunMode::Localization, false, Action::Localize, "", RunMode::Localization);
        row("no mode is an install with all pages", RunMode::NotGiven, false, Action::ShowPages, "WFC",
            RunMode::Install);
        row("silent without a mode still shows all pages", RunMode::NotGiven, true, Action::ShowPages, "WFC",
            RunMode::Install);
    }

    void everyModeHasItsPlan()
    {
        QFETCH(int, mode);
        QFETCH(bool, silent);
        const WizardPlan plan = planFor(static_cast<RunMode>(mode), silent);
        QTEST(static_cast<int>(plan.action), "action");
        QTEST(static_cast<int>(plan.runMode), "modeFromHereOn");
        QString pages;
        for (const WizardPlan::Page page : plan.pages)
            pages += QLatin1Char("WFC"[static_cast<int>(page)]);
        QTEST(pages, "pages");
    }
};

NVX_GUILESS_TEST(tst_wizard_plan)
#include "tst_wizard_plan.moc"
