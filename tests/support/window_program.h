#pragma once

#include "support/file_bytes.h"
#include "support/test_folder.h"

#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QTest>

/// Starts a program with a table window on a file with this name and these contents, and returns whether the
/// program opens it; it then adds the file to its list of recent files.
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
        qWarning("the program %s; its last file is \"%s\"", isRunning ? "is running" : "has ended",
                 qPrintable(recent()));
    return isOpened && isRunning;
}
