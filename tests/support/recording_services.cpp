#include "support/recording_services.h"

using namespace Qt::Literals::StringLiterals;

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
    isOpenElsewhere = false;
    removeIfPossible();
}

void RecordingServices::removeIfPossible()
{
    if (!m_isMarked || isOpenElsewhere || current == ServiceState::Active)
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
    asked << u"start "_s + name;
    if (!canBeStarted || current != ServiceState::Stopped)
        return false;
    current = ServiceState::Active;
    return true;
}

ServiceStop RecordingServices::stop(const QString &name, std::chrono::milliseconds /*timeout*/)
{
    asked << u"stop "_s + name;
    if (current != ServiceState::Active || atStop == AtStop::Refuses)
        return ServiceStop::Refused;
    if (atStop == AtStop::Hangs)
        return ServiceStop::NotInTime;
    current = ServiceState::Stopped;
    return ServiceStop::Stopped;
}

bool RecordingServices::remove(const QString &name)
{
    asked << u"remove "_s + name;
    if (!canBeRemoved || current == ServiceState::NotInstalled)
        return false;
    m_isMarked = true;
    removeIfPossible();
    return true;
}
