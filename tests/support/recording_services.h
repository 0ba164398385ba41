#pragma once

#include "nvx_util/service_control.h"

#include <QStringList>

/// A service control manager with one service, which behaves as the test sets. Records all requests except
/// those for the state.
class RecordingServices : public Nvx::Util::ServiceControl
{
public:
    /// What the service does on a request to stop.
    enum class AtStop
    {
        Stops,
        Refuses,
        Hangs ///< accepts the request and stays active
    };

    // The state, and what is possible.
    Nvx::Util::ServiceState current = Nvx::Util::ServiceState::NotInstalled;
    AtStop atStop = AtStop::Stops;
    bool canBeStarted = true;
    bool canBeRemoved = true;
    bool isOpenElsewhere = false; ///< in another program: a removal only marks the service for deletion
    QString registeredDescription = QStringLiteral("as registered");

    /// The requests, such as "stop NVX 2017 Server".
    QStringList asked;

    /// Simulates the end of the service's process.
    void endProcess();

    /// Simulates that no other program has the service open any more.
    void release();

    Nvx::Util::ServiceState state(const QString &name) const override;
    QString description(const QString &name) const override;
    bool start(const QString &name) override;
    Nvx::Util::ServiceStop stop(const QString &name, std::chrono::milliseconds timeout) override;
    bool remove(const QString &name) override;

private:
    void removeIfPossible();

    bool m_isMarked = false;
};
