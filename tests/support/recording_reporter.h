#pragma once

#include "run/reporter.h"

#include <QList>
#include <QStringList>

/// Records what is reported as "LEVEL TEXT", after "progress " or "inform " where it is not for the log.
class RecordingReporter : public Nvx::Run::Reporter
{
public:
    QStringList lines;

    void log(int level, const QString &text) override { add(QString(), level, text); }
    void progress(int level, const QString &text) override { add(QStringLiteral("progress "), level, text); }
    void inform(int level, const QString &text) override { add(QStringLiteral("inform "), level, text); }

private:
    void add(const QString &kind, int level, const QString &text)
    {
        lines.append(kind + QString::number(level) + u' ' + text);
    }
};
