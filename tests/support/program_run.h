#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// How a program ended, and what it wrote, with "\n" as its line ends.
struct ProgramRun
{
    int exitCode = -1; ///< -1 if the program did not start, did not end in time, or crashed
    QString output;
    QString errors;

    /// All that it wrote, for the message of a failed test.
    QByteArray report() const { return (output + errors).toUtf8(); }
};

/// Runs a program in a folder, by default the current one, and waits up to 30 seconds for its end.
inline ProgramRun runToEnd(const QString &program, const QStringList &arguments,
                           const QString &folder = QString())
{
    const auto lines = [](const QByteArray &bytes) {
        return QString::fromUtf8(bytes).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    };
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    const bool ended = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, lines(process.readAllStandardOutput()),
            lines(process.readAllStandardError())};
}
