#include "synchronisation/message_table_synchronisation.h"

#include "clt_message_table.h"
#include "scanner/error_visual_studio_project.h"
#include "scanner/scan_files.h"
#include "synchronisation/progress_log.h"

#include <QDir>
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

Clt::Message newMessage(const Clt::MessageKey &key, const Scan::SourcePlace &place)
{
    Clt::Message message;
    message.setKey(key);
    message.setState(Clt::MessageState::New);
    message.setFile(place.file);
    message.setLine(place.line);
    return message;
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

Result<Input> readInput(const QString &messageTableFile, const QString &projectFile, ProgressLog &log,
                        QTextStream &errors)
{
    Input input;
    if (QFileInfo::exists(messageTableFile)) {
        log.writeLine(u"Loading message table \"%1\"..."_s.arg(messageTableFile));
        // Saving a table that was loaded only in part would lose the rest.
        const bool isLoaded = input.table.load(messageTableFile);
        Clt::writeReading(errors, messageTableFile, input.table);
        if (!isLoaded)
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

// A file below the current folder is named as compilers name it.
QString shownFile(const QString &file, const QString &currentFolder)
{
    return file.startsWith(currentFolder) ? file.sliced(currentFolder.size()) : file;
}

void writeDifference(QTextStream &errors, const QString &messageTableFile, const Clt::MessageTable &table,
                     const KeyCounts &counts)
{
    const QString currentFolder = QDir::currentPath() + u'/';
    for (const Clt::MessageKey &key : counts.addedKeys) {
        const Clt::Message message = table.message(key);
        errors << shownFile(message.file(), currentFolder) << ':' << message.line() << ": new message "
               << key.displayText() << '\n';
    }
    for (const Clt::MessageKey &key : counts.obsoleteKeys)
        errors << messageTableFile << ": obsolete message " << key.displayText() << '\n';
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
    KeyCounts counts;
    counts.found = found.size();
    counts.existing = static_cast<qsizetype>(table.size());
    QSet<Clt::MessageKey> existing; // of those found
    existing.reserve(std::min(counts.found, counts.existing));
    for (auto entry = table.begin(); entry != table.end(); ++entry) {
        const Clt::MessageKey &key = entry->first;
        Clt::Message &message = table.editable(entry);
        if (const auto place = found.constFind(key); place != found.cend()) {
            message.setFile(place->file);
            message.setLine(place->line);
            existing.insert(key);
            continue;
        }
        counts.obsoleteKeys.push_back(key);
        if (message.state() != Clt::MessageState::Obsolete)
            ++counts.becameObsolete;
        message.setState(Clt::MessageState::Obsolete);
    }
    counts.obsolete = static_cast<qsizetype>(counts.obsoleteKeys.size());
    counts.addedKeys = newKeys(found, existing);
    counts.added = static_cast<qsizetype>(counts.addedKeys.size());
    for (const Clt::MessageKey &key : counts.addedKeys)
        table.insert(newMessage(key, found.value(key)));
    return counts;
}

TableSynchronisation synchronizeMessageTable(const QString &messageTableFile, const QString &projectFile,
                                             ProgressLog &log, QTextStream &errors)
{
    Result<Input> input = readInput(messageTableFile, projectFile, log, errors);
    if (!input) {
        log.writeLine(input.error());
        return {.outcome = Failure{input.error()}};
    }
    auto [table, project] = *std::move(input);

    log.writeLine(u"Scanning..."_s);
    const SourceKeys sources = scanSources(project, log, errors);
    const KeyCounts counts = synchronizeKeys(table, sources.keys);
    log.writeLine(counts.text());
    writeDifference(errors, messageTableFile, table, counts);

    Outcome saved = saveTable(table, messageTableFile, log);
    if (!saved)
        log.writeLine(saved.error());
    if (!table.backupFile().isEmpty())
        errors << Clt::backupText(table.backupFile()) << '\n';
    return {.outcome = std::move(saved), .skippedFiles = sources.skippedFiles};
}

} // namespace Synchronisation
