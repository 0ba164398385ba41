#include "log_summary/run.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace LogSummary {

namespace {

constexpr qsizetype bannerWidth = 77;

// The texts below are in English in every log: those that are not translated, and those that are logged
// before the translations are loaded.
constexpr QByteArrayView commandLineStart = "Command Line:";
constexpr QByteArrayView guardStart = "CheckForRunningOstrade: silent=";
constexpr QByteArrayView commandStart = "Command:";
constexpr QByteArrayView workFolderStart = "WorkDir:";
constexpr QByteArrayView programEnd = "Output:";
constexpr QByteArrayView removalEnd = " output:";
constexpr QByteArrayView outputIndent = "  ";
constexpr QByteArrayView removedFileStart = "Removing:";
constexpr QByteArrayView translationEnd = "Localization script finishes cool";
constexpr QByteArrayView noLanguage = "No Language locale Specified";
constexpr QByteArrayView resetFolderStart = "Program startup - Install path is empty or is invalid";

// Files that are named in every language.
constexpr QByteArrayView flagsFile = "NVX_flags.txt";
constexpr QByteArrayView shippedMaterials = "matprop.mdb";
constexpr QByteArrayView anyMaterials = "matprop.";
constexpr QByteArrayView usersMaterials = "matprop.nvxmdb";
constexpr QByteArrayView reportFiles = ".pyc";
constexpr QByteArrayView serverFolder = "HPCAnalyze";

// Failures in ordinary lines that can be told in English logs only.
constexpr QByteArrayView notTerminatedEnd = " was not terminated";
constexpr QByteArrayView serviceStays = "uninstallServer - could not uninstall service";

// The first line of the language set-up begins with the word of the mode.
constexpr std::array<std::pair<QByteArrayView, RunMode>, 4> modeStarts = {{
    {"Install Language", RunMode::Install},
    {"UnInstall Language", RunMode::Remove},
    {"Found  Language", RunMode::StopServices},
    {" Success Language", RunMode::Translate},
}};

constexpr qint64 step = 0;
constexpr qint64 note = 2;
constexpr qint64 timedOut = -1;
constexpr qint64 notStarted = -2;
// The command interpreter's exit codes for a folder that does not exist: of the folder itself and of its
// parent.
constexpr qint64 missingFolder = 2;
constexpr qint64 missingParent = 3;

// At "Checking the materials" and at the end a run logs a line that names no file.
constexpr int linesOfTheEnd = 2;

bool isBanner(const LogLine &line)
{
    return line.text.size() == bannerWidth &&
           std::all_of(line.text.begin(), line.text.end(), [](char character) { return character == '='; });
}

QString textOf(QByteArrayView bytes)
{
    return QString::fromUtf8(bytes);
}

void assign(QByteArray &target, QByteArrayView source)
{
    // Unlike an assignment this allocates nothing if there is enough space.
    target.resize(0);
    target.append(source);
}

bool isFailedRemoval(qint64 exitCode)
{
    return exitCode != step && exitCode != missingFolder && exitCode != missingParent;
}

bool isFailureInOrdinaryLine(QByteArrayView text)
{
    return text == noLanguage || text == serviceStays || text.startsWith(resetFolderStart) ||
           text.endsWith(notTerminatedEnd);
}

QString outcomeOf(qint64 exitCode)
{
    if (exitCode == notStarted)
        return u"the program could not be started"_s;
    if (exitCode == timedOut)
        return u"the program did not end in time"_s;
    if (exitCode > 0)
        return u"exit code %1"_s.arg(exitCode);
    constexpr int hexadecimal = 16;
    const QString code = QString::number(static_cast<quint32>(exitCode), hexadecimal).toUpper();
    return u"exit code %1 (0x%2)"_s.arg(exitCode).arg(code);
}

} // namespace

void RunReader::addLine(QByteArrayView line)
{
    const LogLine read = readLogLine(line);
    if (read.isDated && isBanner(read)) {
        m_state.emplace();
        m_state->firstStamp = read.stamp.toByteArray();
        m_state->lastStamp = m_state->firstStamp;
    } else if (m_state && read.isDated) {
        addDated(read);
    } else if (m_state) {
        addUndated(line);
    }
}

void RunReader::addDated(const LogLine &line)
{
    RunState &state = *m_state;
    const QByteArrayView text = line.text;
    // The empty line before the next run.
    if (text.isEmpty())
        return;
    assign(state.lastStamp, line.stamp);
    if (state.output == Output::OfProgram && line.number == state.outputNumber &&
        text.startsWith(outputIndent)) {
        addOutputLine(text.sliced(outputIndent.size()));
        return;
    }
    state.output = Output::None;
    state.namesServerFolder = false;
    assign(state.lastText, text);

    if (text == programEnd) {
        addProgramEnd(line);
    } else if (text.startsWith(removalEnd)) {
        addRemovalEnd(line);
    } else if (text.startsWith(commandStart)) {
        assign(state.command, text.sliced(commandStart.size()));
        state.isCommandRunning = true;
    } else if (line.number == note && state.place < Place::Steps) {
        setUpLanguage(text);
    } else if (line.number != step) {
        state.hasRemovedServer = state.hasRemovedServer || text.contains(serverFolder);
        addFailure(line, {.text = textOf(text)});
    } else if (!text.startsWith(workFolderStart)) {
        addOrdinary(line);
    }
}

// The later lines of a removal's output, and the line with the processors.
void RunReader::addUndated(QByteArrayView text)
{
    RunState &state = *m_state;
    if (state.output == Output::OfRemoval)
        addOutputLine(text);
    else if (state.place == Place::ProgramsChecked && !text.trimmed().isEmpty())
        state.place = Place::Steps;
}

void RunReader::addOrdinary(const LogLine &line)
{
    RunState &state = *m_state;
    const QByteArrayView text = line.text;
    assign(state.step, text);
    if (isFailureInOrdinaryLine(text))
        addFailure(line, {.text = textOf(text)});
    if (text.startsWith(guardStart)) {
        state.place = std::max(state.place, Place::ProgramsChecked);
        state.run.isSilent = text.sliced(guardStart.size()).startsWith("on");
    } else if (text == translationEnd) {
        state.hasTranslated = true;
    } else if (state.place >= Place::Steps && text.contains(flagsFile)) {
        state.place = Place::FlagsFile;
        state.linesAfterFlagsFile = 0;
    } else if (state.place == Place::FlagsFile) {
        addAfterFlagsFile(line);
    }
}

void RunReader::addAfterFlagsFile(const LogLine &line)
{
    RunState &state = *m_state;
    const QByteArrayView text = line.text;
    if (text.contains(anyMaterials)) {
        // Two lines report missing materials; only the second contains their path.
        const bool areMissing = text.contains(shippedMaterials) && !text.contains(usersMaterials);
        if (areMissing && (text.contains('\\') || text.contains('/')))
            addFailure(line, {.text = textOf(text)});
    } else if (text.contains(reportFiles)) {
        state.hasRemovedOldFiles = true;
    } else if (!text.startsWith(removedFileStart)) {
        ++state.linesAfterFlagsFile;
    }
}

void RunReader::addProgramEnd(const LogLine &line)
{
    RunState &state = *m_state;
    state.output = Output::OfProgram;
    state.outputNumber = line.number;
    state.outputFailed = line.number != step;
    state.isCommandRunning = false;
    if (state.outputFailed)
        addFailure(line, {.kind = FailedStep::Kind::Program,
                          .text = outcomeOf(line.number),
                          .step = textOf(state.step),
                          .command = textOf(state.command)});
}

void RunReader::addRemovalEnd(const LogLine &line)
{
    RunState &state = *m_state;
    state.output = Output::OfRemoval;
    state.outputFailed = isFailedRemoval(line.number);
    state.isCommandRunning = false;
    if (state.outputFailed)
        addFailure(line, {.kind = FailedStep::Kind::Removal,
                          .text = outcomeOf(line.number),
                          .step = textOf(state.step),
                          .command = textOf(state.command)});
    addOutputLine(line.text.sliced(removalEnd.size()));
}

void RunReader::addOutputLine(QByteArrayView text)
{
    RunState &state = *m_state;
    if (state.output == Output::OfRemoval && text.contains(serverFolder)) {
        state.namesServerFolder = true;
        state.hasRemovedServer = true;
    }
    // A failure that is not listed has no output either.
    if (!state.outputFailed || state.run.failedStepCount != qint64(state.run.failedSteps.size()))
        return;
    QStringList &output = state.run.failedSteps.back().output;
    const QByteArrayView trimmed = text.trimmed();
    if (!trimmed.isEmpty() && output.size() < maxOutputLines)
        output.append(textOf(trimmed));
}

void RunReader::addFailure(const LogLine &line, FailedStep failure)
{
    Run &run = m_state->run;
    ++run.failedStepCount;
    if (run.failedSteps.size() == maxFailedSteps)
        return;
    failure.number = line.number;
    failure.time = isoTime(line.stamp);
    run.failedSteps.push_back(std::move(failure));
}

// The wizard may set up another language later.
void RunReader::setUpLanguage(QByteArrayView text)
{
    RunState &state = *m_state;
    if (state.place == Place::Begun) {
        state.place = Place::LanguageSetUp;
        const auto *const start =
            std::find_if(modeStarts.begin(), modeStarts.end(),
                         [text](const auto &mode) { return text.startsWith(mode.first); });
        if (start == modeStarts.end())
            return;
        state.run.mode = start->second;
        state.run.language = textOf(text.sliced(start->first.size())).trimmed();
        return;
    }
    state.run.language = textOf(text.sliced(text.lastIndexOf(' ') + 1));
}

bool RunReader::isComplete() const
{
    const RunState &state = *m_state;
    if (state.run.mode == RunMode::Translate)
        return state.hasTranslated;
    if (state.run.mode == RunMode::StopServices)
        return state.hasRemovedServer;
    const bool endsWithOldFiles = state.run.mode == RunMode::Remove && state.run.isSilent.value_or(false);
    return state.linesAfterFlagsFile >= linesOfTheEnd && (state.hasRemovedOldFiles || !endsWithOldFiles);
}

std::optional<QString> RunReader::messageBox() const
{
    const RunState &state = *m_state;
    const QByteArrayView last = state.lastText;
    if (state.isCommandRunning)
        return std::nullopt;
    switch (state.place) {
    case Place::Begun:
        if (last.startsWith(commandLineStart))
            return u"an option is unknown"_s;
        break;
    case Place::LanguageSetUp:
        return u"a CAD system is running"_s;
    case Place::ProgramsChecked:
        if (last.startsWith(guardStart) && !state.run.isSilent.value_or(true))
            return u"a program of the product is running"_s;
        break;
    case Place::Steps:
    case Place::FlagsFile:
        if (state.namesServerFolder && state.run.mode != RunMode::Remove)
            return u"the server is missing, or has not registered its service"_s;
        break;
    }
    return std::nullopt;
}

QString RunReader::stoppedAt() const
{
    const RunState &state = *m_state;
    if (state.isCommandRunning)
        return u"ends during the command "_s + textOf(state.command).trimmed();
    if (state.place == Place::ProgramsChecked && !state.run.isSilent.value_or(true) &&
        (state.run.mode == RunMode::Install || state.run.mode == RunMode::Remove))
        return u"the wizard is open, or was closed before the installation"_s;
    return state.lastText.isEmpty() ? u"ends at its start"_s
                                    : u"ends after the line "_s + textOf(state.lastText);
}

std::optional<Run> RunReader::lastRun() const
{
    if (!m_state)
        return std::nullopt;
    Run run = m_state->run;
    run.started = isoTime(m_state->firstStamp);
    run.ended = isoTime(m_state->lastStamp);
    if (isComplete()) {
        run.verdict = run.failedStepCount == 0 ? Verdict::Ok : Verdict::Failed;
    } else if (const auto box = messageBox()) {
        run.verdict = Verdict::Waiting;
        run.reason = *box;
    } else {
        run.verdict = Verdict::Incomplete;
        run.reason = stoppedAt();
    }
    return run;
}

} // namespace LogSummary
