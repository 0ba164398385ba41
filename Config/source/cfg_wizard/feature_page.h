#pragma once

#include "cad/launcher_check_boxes.h"

#include <QHash>
#include <QWizardPage>

class cfg_utilitys;
class QCheckBox;
class QGridLayout;

/// The page that asks which CAD systems get the product's launcher. While it exists, the engine uses its
/// check boxes.
class FeaturePage final : public QWizardPage, public Nvx::Cad::LauncherCheckBoxes
{
    Q_OBJECT

public:
    explicit FeaturePage(cfg_utilitys &engine, QWidget *parent = nullptr);
    ~FeaturePage() override;

    void setFound(Nvx::Cad::Launcher launcher, bool found) override;
    void setLabel(Nvx::Cad::Launcher launcher, const QString &label) override;
    bool isChecked(Nvx::Cad::Launcher launcher) const override;

private:
    void addDescription(QGridLayout &layout);
    void addCheckBoxes(QGridLayout &layout);

    cfg_utilitys &m_engine;
    QHash<Nvx::Cad::Launcher, QCheckBox *> m_checkBoxes;
};
