#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

#include <QCoreApplication>
#include <QString>

namespace Nvx::Setup {

/// The material database. The product ships "matprop.mdb" and works with a copy of it in the folder that all
/// users share. The copy belongs to the users, who add their own materials; only an uninstall removes it.
class MaterialDatabase
{
    Q_DECLARE_TR_FUNCTIONS(MaterialDatabase)

public:
    explicit MaterialDatabase(const Run::StepContext &context);

    /// On install, copies the previous release's database and the shipped one if their targets are missing,
    /// each copy whole or not at all. On uninstall, removes the users' database and the leftover of updates.
    /// A step of the installation run; always returns 0. A copy that fails is a diagnostic warning; a removal
    /// that fails is not reported.
    int check(Run::RunMode mode);

private:
    void install();
    void remove();
    void copyPreviousRelease();
    bool isShipped(const QString &shipped);
    QString inProgramFolder(const QString &fileName) const;

    Run::StepContext m_context;
};

} // namespace Nvx::Setup
