#pragma once

#include "log_summary/log_line.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace LogSummary {

/// What a run was started for.
enum class RunMode
{
    Unknown, ///< the options were left at a message box, or the log ends before them
    Install,
    Remove,
    StopServices,
    Translate
};

/// How a run went, in the order of severity.
enum class Verdict
{
    Ok,
    Failed,     ///< it reached its end, but a step failed
    Incomplete, ///< it was ended, or is still running
    Waiting     ///< it shows a message box, or was ended while it showed one
};

/// Something that a run could not do.
struct FailedStep
{
    enum class Kind
    {
        Program, ///< an external program
        Removal, ///< the command that removes a folder
        Line     ///< a line of the log
    };

    Kind kind = Kind::Line;
    qint64 number = 0;    ///< as in the log: a level, an exit code, an error code, -1 or -2
    QString text = {};    ///< what failed: a line of the log, or an English phrase about the program
    QString step = {};    ///< of a program: the ordinary line before its command, in the language of the run
    QString command = {}; ///< of a program
    QStringList output = {};
    QString time = {}; ///< "2026-11-21T15:09:47", the machine's local time
};

/// The last run in a log.
struct Run
{
    RunMode mode = RunMode::Unknown;
    std::optional<bool> isSilent; ///< empty if the log ends before it says so
    QString language;             ///< such as "de-DE"; empty if none is set up
    QString started;              ///< as in FailedStep
    QString ended;                ///< the time of the last line
    Verdict verdict = Verdict::Ok;
    QString reason; ///< why it is incomplete, or the message box that it waits for
    std::vector<FailedStep> failedSteps;
    qint64 failedStepCount = 0; ///< may be more than are listed
};

/// What RunReader knows of the run so far.
struct RunState
{
    /// How far the run has come.
    enum class Place
    {
        Begun,
        LanguageSetUp,
        ProgramsChecked, ///< it has looked for running programs
        Steps,
        FlagsFile
    };
    /// What the lines that follow may belong to.
    enum class Output
    {
        None,
        OfProgram,
        OfRemoval
    };

    Run run;
    Place place = Place::Begun;
    Output output = Output::None;
    qint64 outputNumber = 0;
    bool outputFailed = false;
    bool isCommandRunning = false;
    bool namesServerFolder = false;  ///< the last removal is that of the server's working folder
    bool hasRemovedServer = false;   ///< that folder has been removed
    bool hasTranslated = false;      ///< the translations have been updated
    bool hasRemovedOldFiles = false; ///< the last step of a silent removal has begun
    int linesAfterFlagsFile = 0;
    QByteArray command;
    QByteArray step;
    QByteArray lastText;
    QByteArray firstStamp;
    QByteArray lastStamp;
};

/// Reads a log line by line and retains its last run.
///
/// It decides on numbers, on the order of the lines, and on texts that are the same in every language, so it
/// reads the logs of all languages. Its memory is bounded whatever the log contains.
class RunReader
{
public:
    static constexpr std::size_t maxFailedSteps = 200;
    static constexpr qsizetype maxOutputLines = 30;

    void addLine(QByteArrayView line);

    /// The last run; std::nullopt if no run has begun.
    std::optional<Run> lastRun() const;

private:
    using Place = RunState::Place;
    using Output = RunState::Output;

    void addDated(const LogLine &line);
    void addUndated(QByteArrayView text);
    void addOrdinary(const LogLine &line);
    void addAfterFlagsFile(const LogLine &line);
    void addProgramEnd(const LogLine &line);
    void addRemovalEnd(const LogLine &line);
    void addOutputLine(QByteArrayView text);
    void addFailure(const LogLine &line, FailedStep failure);
    void setUpLanguage(QByteArrayView text);
    bool isComplete() const;
    std::optional<QString> messageBox() const;
    QString stoppedAt() const;

    std::optional<RunState> m_state;
};

} // namespace LogSummary
