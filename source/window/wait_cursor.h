#pragma once

#include <QGuiApplication>

namespace Window {

/// Shows the wait cursor during its lifetime.
class WaitCursor
{
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
};

} // namespace Window
