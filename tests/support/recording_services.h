#pragma once

#include "nvx_util/service_control.h"

#include <QStringList>

/// One service, in a service control manager that behaves as the test says. It writes down what is asked of
/// it; that somebody looks at the state is not written down.
class RecordingServices : public Nvx::Util::ServiceControl
{
public:
    /// What the service does when it is asked to stop.
    enum class AtStop
    {
        Stops,
        Refuses,
        Hangs ///< takes the request and stays active
    };

    // How things stand, and how they go.
    Nvx::Util::ServiceState current = Nvx::Util::ServiceState::NotInstalled;
    AtStop atStop = AtStop::Stops;
    bool canBeStarted = true;
    bool canBeRemoved = true;
    bool isLookedAt = false; ///< by another program, so that a removal only marks it
    QString registeredDescription = QStringLiteral("as registered");

    /// What it was asked, such as "stop NVX 2017 Server".
    QStringList asked;

    /// The process of the service has been ended.
    void endProcess();

    /// No other program looks at the service any more.
    void release();

    Nvx::Util::ServiceState state(const QString &name) const override;
    QString description(const QString &name) const override;
    bool start(const QString &name) override;
    Nvx::Util::ServiceStop stop(const QString &name, std::chrono::milliseconds patience) override;
    bool remove(const QString &name) override;

private:
    void removeIfPossible();

    bool m_isMarked = false;
};
