#include "localization/translation_job.h"

#include "localization/job_file.h"
#include "nvx_util/languages.h"
#include "nvx_util/system.h"
#include "nvx_util/whole_file.h"
#include "run/reporter.h"

#include <QDir>
#include <QFile>
#include <QSet>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;
using Nvx::Util::joinPath;
using Nvx::Util::Language;
using Nvx::Util::sourceLanguage;
using Nvx::Util::targetLanguages;

namespace Localization {

namespace {

const QString jobName = u"NVX360"_s;
const QStringList sourceNames = {u"client.ts"_s, u"nvxconfig.ts"_s, u"matprop.ts"_s};

bool isFolder(const QString &path)
{
    return !path.isEmpty() && QFileInfo(path).isDir();
}

bool canBeOpened(const QString &path)
{
    const QFileInfo file(path);
    return !file.isDir() && (!file.exists() || file.isWritable());
}

} // namespace

TranslationJob::TranslationJob(const LocaleFolders &folders, const QString &shareFolder,
                               const QString &jobFolder, const QStringList &filePatterns, Reporter &reporter,
                               Pause pause)
    : m_folders(folders)
    , m_shareFolder(shareFolder)
    , m_jobFolder(jobFolder)
    , m_filePatterns(filePatterns)
    , m_reporter(reporter)
    , m_pause(std::move(pause))
{
}

QString TranslationJob::jobPath(const QString &suffix) const
{
    return joinPath(m_jobFolder, jobName + suffix);
}

void TranslationJob::remove(const QString &path)
{
    if (!QFile::exists(path))
        return;
    if (!makeWritable(path) || !QFile::remove(path))
        m_reporter.log(LogLevel::failure, u"can't remove"_s + path);
    if (QFile::exists(path))
        m_reporter.log(LogLevel::failure, path + u" still exist"_s);
}

void TranslationJob::writeJobFile()
{
    const QString path = jobPath(u".job"_s);
    if (!isFolder(m_jobFolder) || !canBeOpened(path)) {
        m_reporter.log(LogLevel::failure, u"can't open "_s + path);
        return;
    }
    // There is nothing to translate.
    if (!m_folders.hasRoot()) {
        m_reporter.log(LogLevel::failure, u"can't write "_s + path);
        return;
    }
    // The ".done" file of an earlier request would end the wait before the translators have begun.
    remove(jobPath(u".done"_s));

    QStringList names;
    for (const QString &name : sourceNames)
        if (QFile::exists(joinPath(m_folders.folder(sourceLanguage.locale), name)))
            names.append(name);
    if (Nvx::Util::replaceWholeFile(path, jobFile(names)))
        m_reporter.log(LogLevel::step, u"job file cool"_s);
    else
        m_reporter.log(LogLevel::failure, u"can't write "_s + path);
}

void TranslationJob::upload()
{
    // If the share's own folder is missing, mkpath would create it on this machine.
    if (!isFolder(m_jobFolder)) {
        m_reporter.log(LogLevel::failure, m_shareFolder + u" not available"_s);
        return;
    }
    // The sources come last: when a worker has them, it has all files.
    for (const Language &language : targetLanguages)
        upload(m_folders.collected(language.translatorsCode),
               joinPath(m_shareFolder, language.translatorsCode));
    upload(m_folders.collected(sourceLanguage.translatorsCode),
           joinPath(m_shareFolder, sourceLanguage.translatorsCode));
}

void TranslationJob::upload(const QString &source, const QString &target)
{
    m_reporter.log(LogLevel::step, u"upload "_s + target);
    // All files on the share would count as no longer collected.
    if (!m_folders.hasRoot() || !isFolder(source)) {
        m_reporter.log(LogLevel::failure, u"upload fails "_s + target);
        return;
    }
    if (!QDir().mkpath(target)) {
        m_reporter.log(LogLevel::failure, target + u" not available"_s);
        return;
    }
    const QStringList names = matchingFiles(source, collectedFiles());
    const QSet<QString> current(names.begin(), names.end());
    const QStringList earlier = matchingFiles(target, collectedFiles());
    for (const QString &name : earlier)
        if (!current.contains(name))
            remove(joinPath(target, name));
    for (const QString &name : names)
        if (!copyWhole(joinPath(source, name), joinPath(target, name)))
            m_reporter.log(LogLevel::failure, u"upload fails "_s + joinPath(target, name));
}

void TranslationJob::waitUntilDone()
{
    const QString done = jobPath(u".done"_s);
    for (int polls = 1; !isFolder(m_jobFolder) || !QFile::exists(done); ++polls) {
        if (polls > maxPolls) {
            m_reporter.log(LogLevel::failure, u"timeout"_s);
            return;
        }
        m_pause(pollInterval);
    }
}

void TranslationJob::download()
{
    for (const Language &language : targetLanguages)
        download(joinPath(m_shareFolder, language.translatorsCode), m_folders.folder(language.locale));
}

void TranslationJob::download(const QString &source, const QString &target)
{
    m_reporter.log(LogLevel::step, u"download"_s + source);
    if (!m_folders.hasRoot() || m_shareFolder.isEmpty() || !isFolder(source)) {
        m_reporter.log(LogLevel::failure, u"download fails "_s + source);
        return;
    }
    const QStringList names = matchingFiles(source, m_filePatterns);
    for (const QString &name : names)
        if (!downloadFile(joinPath(source, name), joinPath(target, name)))
            m_reporter.log(LogLevel::failure, u"download fails "_s + joinPath(source, name));
}

bool TranslationJob::downloadFile(const QString &source, const QString &target)
{
    const std::optional<QByteArray> bytes = Nvx::Util::readWholeFile(source);
    const bool translation = source.endsWith(".ts"_L1, Qt::CaseInsensitive);
    if (!bytes || (translation && !isWholeTranslationFile(*bytes)))
        return false;
    return makeWritable(target) && Nvx::Util::replaceWholeFile(target, *bytes);
}

} // namespace Localization
