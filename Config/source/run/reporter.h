#pragma once

#include <QString>

namespace Nvx::Run {

/// The levels of the lines in the log.
namespace LogLevel {

inline constexpr int step = 0;
inline constexpr int failure = 1;
inline constexpr int note = 2;

/// The level of a line about a program's exit code or an error number of the system: that number.
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

    /// Adds a line to the progress list, if there is one, and logs it.
    virtual void progress(int level, const QString &text) = 0;

    /// Shows a message box, waits until the user closes it, and logs its text.
    virtual void inform(int level, const QString &text) = 0;
};

} // namespace Nvx::Run
