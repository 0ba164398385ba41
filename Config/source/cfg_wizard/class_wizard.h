#pragma once

#include "cfg_wizard/wizard_plan.h"

#include <QWizard>

class cfg_utilitys;

/// The program's window, with the pages of a plan. The id of a page is its WizardPlan::Page.
class ClassWizard final : public QWizard
{
    Q_OBJECT

public:
    ClassWizard(cfg_utilitys &engine, const QList<Nvx::Wizard::WizardPlan::Page> &pages);

    /// Logs the end of the program and closes the window; called by Finish.
    void accept() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWizardPage *makePage(Nvx::Wizard::WizardPlan::Page page);
    void setLook();
    void equalisePageHeights();

    cfg_utilitys &m_engine;
};
