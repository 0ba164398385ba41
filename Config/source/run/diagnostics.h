#pragma once

#include <QLoggingCategory>

namespace Nvx::Run {

/// Failures that are not in the log, because no step reports them. They are warnings in Qt's diagnostic
/// output, in English, for an administrator who examines one machine.
inline const QLoggingCategory &diagnostics()
{
    static const QLoggingCategory category("nvx.configuration");
    return category;
}

} // namespace Nvx::Run
