#include "log_of_a_run.h"

#include <QTest>

QByteArray logLine(qint64 number, const QByteArray &text)
{
    return "Sat Nov 21 15:09:47 2026 " + QByteArray::number(number).rightJustified(4) + ' ' + text + '\n';
}

QByteArray stepLine(const QByteArray &text)
{
    return logLine(0, text);
}

QByteArray startOfRun(const QByteArray &options)
{
    return stepLine("") + stepLine(QByteArray(77, '=')) +
           stepLine("Program startup - NVX 2017 DIR== C:\\NVX") +
           stepLine("Command Line:\"C:\\NVX\\NVXConfig.exe\" " + options);
}

QByteArray languageSetUp(const QByteArray &mode, const QByteArray &locale)
{
    return stepLine("Validating Installation Path Velmora NVX 2017 DIR=C:\\NVX") +
           logLine(2, mode + " Language " + locale) + stepLine("ChangeLanguage = " + locale) +
           stepLine("Remove: C:\\ProgramData\\Velmora\\NVX 2017\\Sorvane") +
           removal("C:\\ProgramData\\Velmora\\NVX 2017\\Sorvane", 2) + stepLine(mode + " Sorvane");
}

QByteArray programCheck(const QByteArray &silent)
{
    return stepLine("CheckForRunningOstrade: silent=" + silent + " terminate=off");
}

QByteArray removal(const QByteArray &folder, qint64 exitCode)
{
    return stepLine("Command:cmd.exe /C C:\\NVXwork.bat ") + logLine(exitCode, " output:") +
           "C:\\NVX>rmdir /s /q \"" + folder + "\" \nSome words.\n\n\n";
}

QByteArray program(const QByteArray &command, qint64 exitCode, const QByteArray &output)
{
    return stepLine("Command:" + command) + stepLine("WorkDir:C:\\NVX") + logLine(exitCode, "Output:") +
           logLine(exitCode, "  " + output);
}

QByteArray firstSteps()
{
    return stepLine("Searching for CAD Packages") + stepLine("Finished searching for CAD Packages") +
           stepLine("Beginning Install") + "Processors: 1, Cores per processor: 2\n" +
           removal("C:\\Tutorials", 2) + stepLine("Installing Tutorials") +
           program("C:\\NVX\\7z.exe x C:\\NVX\\en-US\\Examples.7z", 0, "Everything is Ok") +
           stepLine("uninstallServer ") + stepLine("uninstallServer - could not stop service") +
           removal("C:\\ProgramData\\Velmora\\NVX 2017\\Analyze", 2) + removal("C:\\NVX\\HPCAnalyze", 2);
}

QByteArray lastSteps()
{
    return logLine(0, "Create shortcut C:\\users\\Public\\Desktop\\Velmora NVX 2017.lnk Success") +
           stepLine("Processing NVX_flags.txt") + stepLine("Checking material database") +
           stepLine("Copy: C:\\NVX\\matprop.mdb to: C:\\ProgramData\\Velmora\\NVX 2017\\matprop.nvxmdb") +
           stepLine("The installation or update is complete. Click finish to continue.");
}

QByteArray goodInstall()
{
    return startOfRun("-I -S -Len-US") + languageSetUp("Install", "en-US") + programCheck() + firstSteps() +
           lastSteps();
}

QByteArray goodRemoval()
{
    return startOfRun("-U -S") + languageSetUp("UnInstall", "en-US") + programCheck() + firstSteps() +
           stepLine("Processing NVX_flags.txt") + stepLine("NVX_flags.txt has not changed") +
           stepLine("Checking material database") + stepLine("Remove: C:\\NVX\\matprop.new") +
           stepLine("Remove: C:\\NVX\\matprop.nvxmdb") + removal("C:\\NVX\\WebServices", 2) +
           stepLine("The installation or update is complete. Click finish to continue.") +
           stepLine("Removing:C:\\NVX/A.NEW") + removal("C:\\NVX\\Launchers") +
           stepLine("Remove: C:\\ProgramData\\Velmora\\NVX 2017*.dat") +
           stepLine("Remove: Report .pyc files");
}

LogSummary::Run lastRunOf(const QByteArray &log)
{
    LogSummary::RunReader reader;
    LogSummary::LineSplitter lines([&reader](QByteArrayView line) { reader.addLine(line); });
    lines.add(log);
    lines.finish();
    const auto run = reader.lastRun();
    if (!run)
        QTest::qFail("no run begins in the log", __FILE__, __LINE__);
    return run.value_or(LogSummary::Run());
}
