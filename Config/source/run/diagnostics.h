#pragma once

#include <QLoggingCategory>

/// Failures that the log leaves out: a step passes them over. They go to Qt's diagnostic output as warnings,
/// in English, for an administrator who looks into one machine.
Q_DECLARE_LOGGING_CATEGORY(diagnostics)
