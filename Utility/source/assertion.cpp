#include "nvx_util/assertion.h"

#include <QDebug>

#include <utility>

namespace Nvx::Util {

namespace {

thread_local AssertionListener *innermost = nullptr;

}

AssertionListener::AssertionListener(std::function<void(const AssertionFailure &)> receive)
    : m_receive(std::move(receive))
    , m_outer(std::exchange(innermost, this))
{
}

AssertionListener::~AssertionListener()
{
    innermost = m_outer;
}

void reportAssertionFailure(const char *condition, const char *unit, int line)
{
    if (innermost) {
        innermost->m_receive(
            {.condition = QString::fromUtf8(condition), .unit = QString::fromUtf8(unit), .line = line});
        return;
    }
    qCritical("Assertion failed: %s, %s, line %d", condition, unit, line);
}

} // namespace Nvx::Util
