#pragma once

#include <QString>

#include <array>

/// The launchers, in the order of their boxes on the page.
enum class Launcher
{
    Creo,
    SolidWorks,
    Brevant,
    Nx,
    Tamsel,
    TamselArchitecture,
    TamselMep,
    SpaceClaim
};

constexpr int launcherCount = 8;

/// The boxes that say which launchers are to be configured: those of the wizard's page, or of a run without
/// one.
class LauncherBoxes
{
public:
    LauncherBoxes() = default;
    LauncherBoxes(const LauncherBoxes &) = delete;
    LauncherBoxes &operator=(const LauncherBoxes &) = delete;
    virtual ~LauncherBoxes() = default;

    /// A launcher whose CAD system was found is enabled and ticked, any other disabled and unticked.
    virtual void setFound(Launcher launcher, bool found) = 0;

    /// Replaces the text beside a box.
    virtual void setLabel(Launcher launcher, const QString &label) = 0;

    virtual bool isTicked(Launcher launcher) const = 0;
};

/// The boxes of a run that shows no page: every launcher found is ticked.
class UnshownLauncherBoxes final : public LauncherBoxes
{
public:
    void setFound(Launcher launcher, bool found) override { m_found[static_cast<size_t>(launcher)] = found; }
    void setLabel(Launcher, const QString &) override {}
    bool isTicked(Launcher launcher) const override { return m_found[static_cast<size_t>(launcher)]; }

private:
    std::array<bool, launcherCount> m_found{};
};
