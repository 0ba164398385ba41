#pragma once

#include <QString>

/// The levels of the log's lines. A line on a program's exit code, or on another result of the system, has
/// that result as its level.
namespace LogLevel {

inline constexpr int step = 0;
inline constexpr int failure = 1;
inline constexpr int note = 2;

constexpr int ofResult(int result)
{
    return result;
}

} // namespace LogLevel

/// How a step reports what it does.
class Reporter
{
public:
    Reporter() = default;
    Reporter(const Reporter &) = delete;
    Reporter &operator=(const Reporter &) = delete;
    virtual ~Reporter() = default;

    /// Writes a line into the log.
    virtual void log(int level, const QString &text) = 0;

    /// Shows a line to the user where there is a progress list, and logs it.
    virtual void progress(int level, const QString &text) = 0;

    /// Shows a box that waits for the user, and logs its text.
    virtual void inform(int level, const QString &text) = 0;
};
