#pragma once

#include "run/process_finder.h"

#include <QString>
#include <QStringList>

namespace Nvx::Run {
struct StepContext;
}

namespace Nvx::Cad {

/// Asks the user what to do about running CAD systems, in silent runs too, and ends them on Yes. Returns true
/// only if the question was dismissed.
bool guardAgainstRunningCad(const Run::StepContext &context);

/// Does the same for the product's own programs, but not for those of its other releases. A silent run ends
/// them without asking. With OnMatch::Terminate they are ended without asking in any run.
bool guardAgainstRunningProduct(const Run::StepContext &context, Run::OnMatch onMatch);

/// The question about running CAD systems. names has the display name of each process, and is not empty.
QString runningCadQuestion(const QStringList &names);

/// The same question about running programs of the product.
QString runningProductQuestion(const QStringList &names);

} // namespace Nvx::Cad
