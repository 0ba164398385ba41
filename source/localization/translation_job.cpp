#include "localization/translation_job.h"

#include "localization/job_file.h"
#include "nvx_util/languages.h"
#include "nvx_util/system.h"
#include "nvx_util/whole_file.h"
#include "run/reporter.h"

#include <QDir>
#include <QFile>
#include <QSet>

using Nvx::Util::joinPath;
using Nvx::Util::Language;
using Nvx::Util::sourceLanguage;
using Nvx::Util::targetLanguages;

namespace util {

namespace {

const QString jobName = QStringLiteral("NVX360");
const QStringList sourceNames = {QStringLiteral("client.ts"), QStringLiteral("nvxconfig.ts"),
                                 QStringLiteral("matprop.ts")};

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
        m_reporter.log(LogLevel::failure, QStringLiteral("can't remove") + path);
    if (QFile::exists(path))
        m_reporter.log(LogLevel::failure, path + QStringLiteral(" still exist"));
}

void TranslationJob::writeJobFile()
{
    const QString path = jobPath(QStringLiteral(".job"));
    if (!isFolder(m_jobFolder) || !canBeOpened(path)) {
        m_reporter.log(LogLevel::failure, QStringLiteral("can't open ") + path);
        return;
    }
    // There is nothing to ask for.
    if (!m_folders.hasRoot()) {
        m_reporter.log(LogLevel::failure, QStringLiteral("can't write ") + path);
        return;
    }
    // The answer to an earlier request would end the wait before the translators have begun.
    remove(jobPath(QStringLiteral(".done")));

    QStringList names;
    for (const QString &name : sourceNames)
        if (QFile::exists(joinPath(m_folders.folder(sourceLanguage.locale), name)))
            names.append(name);
    if (Nvx::Util::replaceWholeFile(path, jobFile(names)))
        m_reporter.log(LogLevel::step, QStringLiteral("job file cool"));
    else
        m_reporter.log(LogLevel::failure, QStringLiteral("can't write ") + path);
}

void TranslationJob::upload()
{
    // The share's own folder stands above ours: without it we would make a share on this machine.
    if (!isFolder(m_jobFolder)) {
        m_reporter.log(LogLevel::failure, m_shareFolder + QStringLiteral(" not available"));
        return;
    }
    // The sources come last: a worker that has them has everything.
    for (const Language &language : targetLanguages)
        upload(m_folders.collected(language.translatorsCode),
               joinPath(m_shareFolder, language.translatorsCode));
    upload(m_folders.collected(sourceLanguage.translatorsCode),
           joinPath(m_shareFolder, sourceLanguage.translatorsCode));
}

void TranslationJob::upload(const QString &source, const QString &target)
{
    m_reporter.log(LogLevel::step, QStringLiteral("upload ") + target);
    // The translators' files would all count as no longer collected.
    if (!m_folders.hasRoot() || !isFolder(source)) {
        m_reporter.log(LogLevel::failure, QStringLiteral("upload fails ") + target);
        return;
    }
    if (!QDir().mkpath(target)) {
        m_reporter.log(LogLevel::failure, target + QStringLiteral(" not available"));
        return;
    }
    const QStringList names = matchingFiles(source, filesHandedOn());
    const QSet<QString> kept(names.begin(), names.end());
    const QStringList earlier = matchingFiles(target, filesHandedOn());
    for (const QString &name : earlier)
        if (!kept.contains(name))
            remove(joinPath(target, name));
    for (const QString &name : names)
        if (!copyWhole(joinPath(source, name), joinPath(target, name)))
            m_reporter.log(LogLevel::failure, QStringLiteral("upload fails ") + joinPath(target, name));
}

void TranslationJob::waitUntilDone()
{
    const QString done = jobPath(QStringLiteral(".done"));
    for (int polls = 1; !isFolder(m_jobFolder) || !QFile::exists(done); ++polls) {
        if (polls > maxPolls) {
            m_reporter.log(LogLevel::failure, QStringLiteral("timeout"));
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
    m_reporter.log(LogLevel::step, QStringLiteral("download") + source);
    if (!m_folders.hasRoot() || m_shareFolder.isEmpty() || !isFolder(source)) {
        m_reporter.log(LogLevel::failure, QStringLiteral("download fails ") + source);
        return;
    }
    const QStringList names = matchingFiles(source, m_filePatterns);
    for (const QString &name : names)
        if (!takeOver(joinPath(source, name), joinPath(target, name)))
            m_reporter.log(LogLevel::failure, QStringLiteral("download fails ") + joinPath(source, name));
}

bool TranslationJob::takeOver(const QString &source, const QString &target)
{
    const std::optional<QByteArray> bytes = Nvx::Util::readWholeFile(source);
    const bool translation = source.endsWith(QLatin1String(".ts"), Qt::CaseInsensitive);
    if (!bytes || (translation && !isWholeTranslationFile(*bytes)))
        return false;
    return makeWritable(target) && Nvx::Util::replaceWholeFile(target, *bytes);
}

} // namespace util
