#pragma once

#include "cfg_wizard/class_wizard.h"
#include "cfg_wizard/wizard_plan.h"
#include "engine/engine_fixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QListWidget>

#include <memory>

/// The real wizard on an engine on a recording machine.
class WizardFixture : public EngineFixture
{
public:
    WizardFixture() { writeFile(installed("NVXSolver.exe")); }

    ~WizardFixture() { wizard.reset(); }

    /// Starts the engine with these options, and builds the pages of its plan.
    ClassWizard &build(const QString &options)
    {
        wizard.reset();
        start(options);
        const Nvx::Wizard::WizardPlan plan =
            Nvx::Wizard::planFor(engine->state().runMode, engine->state().silent);
        engine->setRunMode(plan.runMode);
        wizard = std::make_unique<ClassWizard>(*engine, plan.pages);
        return *wizard;
    }

    /// Builds and shows them.
    ClassWizard &show(const QString &options)
    {
        build(options).show();
        return *wizard;
    }

    QAbstractButton &button(QWizard::WizardButton which) const { return *wizard->button(which); }

    QListWidget &progress() const { return *wizard->findChild<QListWidget *>(QStringLiteral("m_progress")); }

    /// The rows of the progress list.
    QStringList rows() const
    {
        QStringList found;
        for (int row = 0; row < progress().count(); ++row)
            found << progress().item(row)->text();
        return found;
    }

    /// The number of runs that have begun.
    qsizetype runs() const { return lines().filter(QStringLiteral("   0 Beginning ")).size(); }

    std::unique_ptr<ClassWizard> wizard;
};

/// The wizard that is on the screen; null if none is.
inline ClassWizard *shownWizard()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        auto *wizard = qobject_cast<ClassWizard *>(window);
        if (wizard && wizard->isVisible())
            return wizard;
    }
    return nullptr;
}

/// The titles of a wizard's pages in their order, joined by "|".
inline QString titlesOf(const QWizard &wizard)
{
    QStringList titles;
    const QList<int> ids = wizard.pageIds();
    for (const int id : ids)
        titles << wizard.page(id)->title();
    return titles.join(QLatin1Char('|'));
}
