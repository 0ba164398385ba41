#pragma once

#include "support/file_bytes.h"
#include "support/test_folder.h"

#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QTest>

/// Starts a program with a table window on a file of that name and contents; false, with a line of its own,
/// unless the program comes up and opens it. The list of recent files, which the program keeps, tells that.
inline bool opensNamedFile(const QString &program, const QString &fileName, const QByteArray &contents)
{
    const TestFolder folder;
    const QString file = folder.path(fileName);
    if (!writeBytes(file, contents))
        return false;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    qputenv("QT_QPA_PLATFORM", "offscreen");

    QProcess process;
    process.start(program, {file});
    if (!process.waitForStarted())
        return false;
    const auto recent = [&] {
        const QSettings settings(QStringLiteral("Velmora"), QFileInfo(program).baseName());
        return settings.value(QStringLiteral("recentFiles")).toStringList().value(0);
    };
    const bool isOpened = QTest::qWaitFor([&] { return recent() == file; }, 20'000);
    const bool isRunning = process.state() == QProcess::Running;
    process.kill();
    process.waitForFinished();
    if (!isOpened || !isRunning)
        qWarning("%s: %s", isRunning ? "has opened" : "has ended, opened", qPrintable(recent()));
    return isOpened && isRunning;
}
