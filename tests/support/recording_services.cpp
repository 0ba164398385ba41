#include "support/recording_services.h"

using Nvx::Util::ServiceState;
using Nvx::Util::ServiceStop;

void RecordingServices::endProcess()
{
    if (current == ServiceState::Active)
        current = ServiceState::Stopped;
    removeIfPossible();
}

void RecordingServices::release()
{
    isLookedAt = false;
    removeIfPossible();
}

void RecordingServices::removeIfPossible()
{
    if (!m_isMarked || isLookedAt || current == ServiceState::Active)
        return;
    current = ServiceState::NotInstalled;
    m_isMarked = false;
}

ServiceState RecordingServices::state(const QString & /*name*/) const
{
    return current;
}

QString RecordingServices::description(const QString & /*name*/) const
{
    return registeredDescription;
}

bool RecordingServices::start(const QString &name)
{
    asked << QStringLiteral("start ") + name;
    if (!canBeStarted || current != ServiceState::Stopped)
        return false;
    current = ServiceState::Active;
    return true;
}

ServiceStop RecordingServices::stop(const QString &name, std::chrono::milliseconds /*patience*/)
{
    asked << QStringLiteral("stop ") + name;
    if (current != ServiceState::Active || atStop == AtStop::Refuses)
        return ServiceStop::Refused;
    if (atStop == AtStop::Hangs)
        return ServiceStop::NotInTime;
    current = ServiceState::Stopped;
    return ServiceStop::Stopped;
}

bool RecordingServices::remove(const QString &name)
{
    asked << QStringLiteral("remove ") + name;
    if (!canBeRemoved || current == ServiceState::NotInstalled)
        return false;
    m_isMarked = true;
    removeIfPossible();
    return true;
}
