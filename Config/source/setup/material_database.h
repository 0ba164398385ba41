#pragma once

#include "run/run_state.h"
#include "run/step_context.h"

#include <QCoreApplication>
#include <QString>

/// The material database: the product ships "matprop.mdb" and works with a copy of it in the folder that all
/// users share. The copy belongs to the users, who add their materials to it; only an uninstall removes it.
class MaterialDatabase
{
    Q_DECLARE_TR_FUNCTIONS(MaterialDatabase)

public:
    explicit MaterialDatabase(const StepContext &context);

    /// On install, copies the database of the previous release and the shipped one to where they are
    /// missing, whole or not at all; on uninstall, removes the users' database and what updates have left.
    /// A step of the installation run; always returns 0. A copy or removal that fails is not told.
    int check(RunMode mode);

private:
    void install();
    void remove();
    void copyPreviousRelease();
    bool isShipped(const QString &shipped);
    QString beside(const QString &fileName) const;

    StepContext m_context;
};
