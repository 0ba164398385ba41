#pragma once

#include <QGuiApplication>

namespace Window {

/// Shows that the program is at work, while this object lives.
class WaitCursor
{
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
};

} // namespace Window
