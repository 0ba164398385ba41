#pragma once

#include "cfg_wizard/wizard_plan.h"

#include <QWizard>

class cfg_utilitys;

/// The program's window: the pages of a plan, in their order. Each page's id is its WizardPlan::Page.
class ClassWizard final : public QWizard
{
    Q_OBJECT

public:
    ClassWizard(cfg_utilitys &engine, const QList<WizardPlan::Page> &pages);

    /// Finish: logs that the program ends, and closes the window.
    void accept() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWizardPage *makePage(WizardPlan::Page page);
    void dress();
    void levelPages();

    cfg_utilitys &m_engine;
};
