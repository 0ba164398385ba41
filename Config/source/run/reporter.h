#pragma once

#include <QString>

/// How a step says what it does. The level is a small number, 0 for ordinary lines.
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
