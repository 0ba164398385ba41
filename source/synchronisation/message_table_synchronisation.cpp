#include "synchronisation/message_table_synchronisation.h"

#include "clt_message_table.h"
#include "scanner/error_visual_studio_project.h"
#include "scanner/scan_files.h"
#include "synchronisation/progress_log.h"

#include <QFileInfo>
#include <QTextStream>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace Synchronisation {

namespace {

using Nvx::Util::Done;
using Nvx::Util::Failure;
using Nvx::Util::Outcome;
using Nvx::Util::Result;

struct SourceKeys
{
    Scan::FoundKeys keys;
    int skippedFiles = 0;
};

// The found keys that are not in the table, sorted, because a table is filled fastest in its own order.
std::vector<Clt::MessageKey> newKeys(const Scan::FoundKeys &found, const QSet<Clt::MessageKey> &existing)
{
    std::vector<Clt::MessageKey> keys;
    std::copy_if(found.keyBegin(), found.keyEnd(), std::back_inserter(keys),
                 [&existing](const Clt::MessageKey &key) { return !existing.contains(key); });
    std::ranges::sort(keys);
    return keys;
}

SourceKeys scanSources(const Scan::VisualStudioProject &project, ProgressLog &log, QTextStream &errors)
{
    for (const QString &note : project.notes)
        errors << note << '\n';

    SourceKeys result;
    const auto receive = [&](qsizetype index, const Scan::SourceScanner &scanner) {
        const Scan::ProjectSource &source = project.sources.at(index);
        log.writeLine(u"  %1"_s.arg(source.name));
        if (scanner.hasError()) {
            log.writeLine(u"Parser error: %1"_s.arg(scanner.errorText()));
            ++result.skippedFiles;
        }
        if (const QString problem = Scan::openProblem(source, scanner); !problem.isEmpty())
            errors << u"Cannot open %1: %2 (%3)\n"_s.arg(source.name, problem, source.origin);
        Scan::addKeys(result.keys, scanner);
        log.showProgress(u"Scanned %1 of %2 files"_s.arg(index + 1).arg(project.sources.size()));
        return Scan::Continuation::Continue;
    };
    Scan::scanFiles(project.process(), project.paths(), receive);
    return result;
}

// What a synchronisation reads before it scans the sources.
struct Input
{
    Clt::MessageTable table;
    Scan::VisualStudioProject project;
};

Result<Input> readInput(const QString &messageTableFile, const QString &projectFile, ProgressLog &log)
{
    Input input;
    if (QFileInfo::exists(messageTableFile)) {
        log.writeLine(u"Loading message table \"%1\"..."_s.arg(messageTableFile));
        // Saving a table that was loaded only in part would lose the rest.
        if (!input.table.load(messageTableFile))
            return Failure{u"Could not load message table"_s};
    }
    if (!QFileInfo::exists(projectFile))
        return Failure{u"Could not find Visual Studio project file \"%1\""_s.arg(projectFile)};
    Result<Scan::VisualStudioProject> project = Scan::readVisualStudioProject(projectFile);
    if (!project)
        return Failure{u"Could not parse \"%1\""_s.arg(projectFile)};
    input.project = *std::move(project);
    return input;
}

Outcome saveTable(Clt::MessageTable &table, const QString &messageTableFile, ProgressLog &log)
{
    log.writeLine(u"Saving message table \"%1\"..."_s.arg(messageTableFile));
    if (!table.save(messageTableFile))
        return Failure{u"Could not save table"_s};
    return Done();
}

} // namespace

QString KeyCounts::text() const
{
    if (found == 0)
        return u"Found 0 keys"_s;
    return u"Found %1 keys (%2 new, %3 existing, and %4 obsolete)"_s.arg(found).arg(added).arg(existing).arg(
        obsolete);
}

KeyCounts synchronizeKeys(Clt::MessageTable &table, const Scan::FoundKeys &found)
{
    const QSet<Clt::MessageKey> existing = table.keys();
    KeyCounts counts{.found = found.size(), .existing = existing.size()};
    for (const Clt::MessageKey &key : newKeys(found, existing)) {
        Clt::Message message;
        message.setKey(key);
        message.setState(Clt::MessageState::New);
        const Scan::SourcePlace place = found.value(key);
        message.setFile(place.file);
        message.setLine(place.line);
        table.insert(std::move(message));
        ++counts.added;
    }
    for (const Clt::MessageKey &key : existing) {
        if (const auto place = found.constFind(key); place != found.cend()) {
            table.setPlace(key, place->file, place->line);
            continue;
        }
        Clt::Message message = table.message(key);
        message.setState(Clt::MessageState::Obsolete);
        table.insert(std::move(message));
        ++counts.obsolete;
    }
    return counts;
}

TableSynchronisation synchronizeMessageTable(const QString &messageTableFile, const QString &projectFile,
                                             ProgressLog &log, QTextStream &errors)
{
    Result<Input> input = readInput(messageTableFile, projectFile, log);
    if (!input) {
        log.writeLine(input.error());
        return {.outcome = Failure{input.error()}};
    }
    auto [table, project] = *std::move(input);

    log.writeLine(u"Scanning..."_s);
    const SourceKeys sources = scanSources(project, log, errors);
    log.writeLine(synchronizeKeys(table, sources.keys).text());

    Outcome saved = saveTable(table, messageTableFile, log);
    if (!saved)
        log.writeLine(saved.error());
    return {.outcome = std::move(saved), .skippedFiles = sources.skippedFiles};
}

} // namespace Synchronisation
