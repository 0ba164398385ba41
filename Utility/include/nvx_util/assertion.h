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

/// Reports a failed assertion: to the innermost AssertionListener of this thread, or to the application's
/// message output when there is none. Returns, so that the caller goes on with its stated fallback.
void reportAssertionFailure(const char *condition, const char *unit, int line);

/// Receives the failed assertions of its thread while it lives. Tests check with it for exactly the
/// assertions that they expect.
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

/// Reports a failure naming the condition, the source unit and the line when the condition does not hold.
/// Execution goes on.
#define NVX_ASSERT(condition, unit)                                                                          \
    do {                                                                                                     \
        if (!(condition))                                                                                    \
            ::Nvx::Util::reportAssertionFailure(#condition, unit, __LINE__);                                 \
    } while (false)
