#pragma once

#include <QLoggingCategory>

namespace Nvx::Run {

/// Failures that are not in the log, because no step reports them. They are warnings in Qt's diagnostic
/// output, in English, for an administrator who examines one machine.
Q_DECLARE_LOGGING_CATEGORY(diagnostics)

} // namespace Nvx::Run
