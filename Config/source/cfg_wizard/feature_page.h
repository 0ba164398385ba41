#pragma once

#include "run/launcher_boxes.h"

#include <QWizardPage>

#include <array>

class cfg_utilitys;
class QCheckBox;

/// The page that asks which CAD systems get the product's launcher. While it lives, its boxes are the
/// engine's.
class FeaturePage final : public QWizardPage, public LauncherBoxes
{
    Q_OBJECT

public:
    explicit FeaturePage(cfg_utilitys &engine, QWidget *parent = nullptr);
    ~FeaturePage() override;

    void setFound(Launcher launcher, bool found) override;
    void setLabel(Launcher launcher, const QString &label) override;
    bool isTicked(Launcher launcher) const override;

private:
    QCheckBox &box(Launcher launcher) const { return *m_boxes[static_cast<size_t>(launcher)]; }

    cfg_utilitys &m_engine;
    std::array<QCheckBox *, launcherCount> m_boxes{};
};
