// Any log has the same last run with either line end and in pieces of any size; every report of it is one
// line, or well-formed JSON.

#include "log_summary/report.h"

#include <QJsonDocument>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

std::optional<LogSummary::Run> lastRun(const QByteArray &log, qsizetype pieceSize)
{
    LogSummary::RunReader reader;
    LogSummary::LineSplitter lines([&reader](QByteArrayView line) { reader.addLine(line); });
    for (qsizetype i = 0; i < log.size(); i += pieceSize)
        lines.add(QByteArrayView(log).sliced(i).first(std::min(pieceSize, log.size() - i)));
    lines.finish();
    return reader.lastRun();
}

QByteArray report(const std::optional<LogSummary::Run> &run, LogSummary::ReportFormat format)
{
    return LogSummary::machineReport({.name = QStringLiteral("PC"),
                                      .file = QStringLiteral("PC.log"),
                                      .run = run,
                                      .problem = run ? QString() : QStringLiteral("no run")},
                                     format, true);
}

/// With CR LF in place of each LF that has no CR before it.
QByteArray withCarriageReturns(const QByteArray &log)
{
    QByteArray other;
    for (qsizetype i = 0; i < log.size(); ++i) {
        if (log[i] == '\n' && (i == 0 || log[i - 1] != '\r'))
            other += '\r';
        other += log[i];
    }
    return other;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size)
{
    using LogSummary::ReportFormat;
    const QByteArray log(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const auto run = lastRun(log, log.size() + 1);
    const QByteArray json = report(run, ReportFormat::Json);
    require(QJsonDocument::fromJson(json).isObject());
    require(report(run, ReportFormat::Text).count('\n') == 1);
    require(report(lastRun(withCarriageReturns(log), log.size() + 1), ReportFormat::Json) == json);
    constexpr qsizetype smallPiece = 7;
    require(report(lastRun(log, smallPiece), ReportFormat::Json) == json);
    return 0;
}
