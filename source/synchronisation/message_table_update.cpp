#include "synchronisation/message_table_update.h"

#include "clt_message_table.h"
#include "scanner/error_visual_studio_project.h"
#include "scanner/source_scanner.h"
#include "synchronisation/progress_log.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <optional>
#include <vector>

namespace Error {

namespace {

TableUpdate fail(ProgressLog &log, const QString &line)
{
    log.writeLine(line);
    return {};
}

struct ScanResult
{
    Scan::FoundKeys keys;
    int skippedFiles = 0;
};

/// The found keys that do not exist, in key order: a table is filled in the least time in its own order.
std::vector<Clt::MessageKey> newKeys(const Scan::FoundKeys &found, const QSet<Clt::MessageKey> &existing)
{
    std::vector<Clt::MessageKey> keys;
    std::copy_if(found.keyBegin(), found.keyEnd(), std::back_inserter(keys),
                 [&existing](const Clt::MessageKey &key) { return !existing.contains(key); });
    std::sort(keys.begin(), keys.end());
    return keys;
}

ScanResult scanProject(const QString &projectFile, const Scan::VisualStudioProject &project, ProgressLog &log)
{
    QStringList paths;
    for (const QString &sourceFile : project.sourceFiles)
        paths.append(Scan::sourceFilePath(projectFile, sourceFile));

    ScanResult result;
    const auto receive = [&](qsizetype index, const Scan::SourceScanner &scanner) {
        log.writeLine(QStringLiteral("  %1").arg(project.sourceFiles.at(index)));
        if (scanner.hasError()) {
            log.writeLine(QStringLiteral("Parser error: %1").arg(scanner.errorText()));
            ++result.skippedFiles;
        }
        Scan::addKeys(result.keys, scanner);
        log.showProgress(QStringLiteral("Scanned %1 of %2 files").arg(index + 1).arg(paths.size()));
        return Scan::Continuation::GoOn;
    };
    Scan::scanFiles(project.process(), paths, receive);
    return result;
}

} // namespace

QString KeyCounts::text() const
{
    if (found == 0)
        return QStringLiteral("Found 0 keys");
    return QStringLiteral("Found %1 keys (%2 new, %3 existing, and %4 obsolete)")
        .arg(found)
        .arg(added)
        .arg(existing)
        .arg(obsolete);
}

KeyCounts synchronizeKeys(Clt::MessageTable &table, const Scan::FoundKeys &found)
{
    const QSet<Clt::MessageKey> existing = table.keys();
    KeyCounts counts{found.size(), 0, existing.size(), 0};
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

TableUpdate synchronizeMessageTable(const QString &messageTableFile, const QString &projectFile,
                                    ProgressLog &log)
{
    Clt::MessageTable table;
    if (QFileInfo::exists(messageTableFile)) {
        log.writeLine(QStringLiteral("Loading message table \"%1\"...").arg(messageTableFile));
        // What was not read would be lost when the table is saved.
        if (!table.load(messageTableFile))
            return fail(log, QStringLiteral("Could not load message table"));
    }
    if (!QFileInfo::exists(projectFile))
        return fail(log, QStringLiteral("Could not find Visual Studio project file \"%1\"").arg(projectFile));
    const std::optional<Scan::VisualStudioProject> project = Scan::readVisualStudioProject(projectFile);
    if (!project)
        return fail(log, QStringLiteral("Could not parse \"%1\"").arg(projectFile));

    log.writeLine(QStringLiteral("Scanning..."));
    const ScanResult scan = scanProject(projectFile, *project, log);
    log.writeLine(synchronizeKeys(table, scan.keys).text());

    log.writeLine(QStringLiteral("Saving message table \"%1\"...").arg(messageTableFile));
    if (!table.save(messageTableFile)) {
        log.writeLine(QStringLiteral("Could not save table"));
        return {false, scan.skippedFiles};
    }
    return {true, scan.skippedFiles};
}

} // namespace Error
