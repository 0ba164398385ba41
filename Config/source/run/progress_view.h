#pragma once

#include <QString>

namespace Nvx::Run {

/// Where progress lines are shown: the list on the wizard's last page. A silent run has none.
class ProgressView
{
public:
    ProgressView() = default;
    ProgressView(const ProgressView &) = delete;
    ProgressView &operator=(const ProgressView &) = delete;
    virtual ~ProgressView() = default;

    /// Adds a row at the end and scrolls to it.
    virtual void appendRow(const QString &text) = 0;

    /// Removes all rows.
    virtual void clear() = 0;

    /// Called when the run begins and when it ends.
    virtual void runCompleteChanged() = 0;
};

} // namespace Nvx::Run
