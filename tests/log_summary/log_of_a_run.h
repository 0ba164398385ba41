#pragma once

#include "log_summary/run.h"

#include <QByteArray>

/// A line of a log, with a date.
QByteArray logLine(qint64 number, const QByteArray &text);

/// An ordinary line.
QByteArray stepLine(const QByteArray &text);

/// The lines from the beginning of a run to the last one of its command line.
QByteArray startOfRun(const QByteArray &options);

/// The lines from the set-up of the language to the last one before the programs are checked.
QByteArray languageSetUp(const QByteArray &mode, const QByteArray &locale);

/// The line about the running programs.
QByteArray programCheck(const QByteArray &silent = "on");

/// The lines of a folder's removal.
QByteArray removal(const QByteArray &folder, qint64 exitCode = 0);

/// The lines of a program.
QByteArray program(const QByteArray &command, qint64 exitCode, const QByteArray &output);

/// The lines of the steps, from the search for CAD systems to the server's removal.
QByteArray firstSteps();

/// The lines after the server's removal, to the end of an install.
QByteArray lastSteps();

/// All of an install in English.
QByteArray goodInstall();

/// All of a silent removal in English.
QByteArray goodRemoval();

/// Reads a log; the error is a failure of the test.
LogSummary::Run lastRunOf(const QByteArray &log);
