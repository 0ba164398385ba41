#pragma once

#include "log_summary/arguments.h"
#include "log_summary/run.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace LogSummary {

/// A machine's log and the last run in it.
struct Machine
{
    QString name;
    QString file;
    std::optional<Run> run = std::nullopt;
    QString problem = {}; ///< why there is no run; empty if there is one
};

/// The report in pieces, so that it grows with the logs on the screen: first its beginning, then each
/// machine, then its end. All pieces are UTF-8 and end with LF. Control characters of a log are not passed
/// on.
QByteArray reportStart(ReportFormat format);
QByteArray machineReport(const Machine &machine, ReportFormat format, bool isFirst);
QByteArray reportEnd(ReportFormat format);

} // namespace LogSummary
