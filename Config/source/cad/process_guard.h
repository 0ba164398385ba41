#pragma once

#include "run/process_finder.h"

#include <QString>
#include <QStringList>

namespace Nvx::Run {
struct StepContext;
}

/// Asks what is to happen to running CAD systems, in silent runs too, and ends them when the user says so.
/// True only when the question was dismissed.
bool guardAgainstRunningCad(const StepContext &context);

/// The same for the product's own programs, those of its other releases left out. A silent run ends them
/// without asking. Programs that are to be ended when they are found are ended without a question in any run.
bool guardAgainstRunningProduct(const StepContext &context, OnMatch onMatch);

/// The question about running CAD systems with these names for people, one for each process; there is at
/// least one.
QString runningCadQuestion(const QStringList &names);

/// The question about running programs of the product.
QString runningProductQuestion(const QStringList &names);
