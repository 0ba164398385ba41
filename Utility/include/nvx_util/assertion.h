#pragma once

#include <QString>

#include <functional>

namespace Nvx::Util {

/// A condition that should have held and did not.
struct AssertionFailure
{
    QString condition;
    QString unit; ///< the source unit, such as "clt_message"
    int line = 0;
};

/// Reports a failed assertion to the innermost AssertionListener of this thread, or, without one, to the
/// application's message output. Returns, so that the caller can continue with its fallback.
void reportAssertionFailure(const char *condition, const char *unit, int line);

/// Receives the failed assertions of its thread during its lifetime. Tests use it to expect an assertion.
class AssertionListener
{
public:
    explicit AssertionListener(std::function<void(const AssertionFailure &)> receive);
    AssertionListener(const AssertionListener &) = delete;
    AssertionListener &operator=(const AssertionListener &) = delete;
    ~AssertionListener();

private:
    friend void reportAssertionFailure(const char *condition, const char *unit, int line);

    std::function<void(const AssertionFailure &)> m_receive;
    AssertionListener *m_outer;
};

} // namespace Nvx::Util

/// Reports the condition, the source unit and the line if the condition is false. Execution continues.
#define NVX_ASSERT(condition, unit)                                                                          \
    do {                                                                                                     \
        if (!(condition))                                                                                    \
            ::Nvx::Util::reportAssertionFailure(#condition, unit, __LINE__);                                 \
    } while (false)
