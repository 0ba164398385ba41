#pragma once

#include <QSet>
#include <QString>

namespace Nvx::Cad {

/// The launchers, in the order of cadSystems().
enum class Launcher
{
    Brevant,
    Creo,
    SolidWorks,
    Nx,
    Tamsel,
    TamselArchitecture,
    TamselMep,
    SpaceClaim
};

/// The check boxes that decide which launchers are configured: those of the wizard's page, or of a run
/// without a page.
class LauncherCheckBoxes
{
public:
    LauncherCheckBoxes() = default;
    LauncherCheckBoxes(const LauncherCheckBoxes &) = delete;
    LauncherCheckBoxes &operator=(const LauncherCheckBoxes &) = delete;
    virtual ~LauncherCheckBoxes() = default;

    /// Enables and checks the check box if the CAD system was found; disables and unchecks it otherwise.
    virtual void setFound(Launcher launcher, bool found) = 0;

    /// Replaces the label of a check box.
    virtual void setLabel(Launcher launcher, const QString &label) = 0;

    virtual bool isChecked(Launcher launcher) const = 0;
};

/// The check boxes of a run that shows no page: every launcher whose CAD system was found is checked.
class UnshownCheckBoxes final : public LauncherCheckBoxes
{
public:
    void setFound(Launcher launcher, bool found) override
    {
        if (found)
            m_checked.insert(launcher);
        else
            m_checked.remove(launcher);
    }
    void setLabel(Launcher, const QString &) override {}
    bool isChecked(Launcher launcher) const override { return m_checked.contains(launcher); }

private:
    QSet<Launcher> m_checked;
};

} // namespace Nvx::Cad
