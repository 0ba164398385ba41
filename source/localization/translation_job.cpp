#include "localization/translation_job.h"

#include "localization/translation_answer.h"
#include "nvx_util/languages.h"
#include "nvx_util/regular_file.h"
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
const QStringList filesToTranslate = {u"client.ts"_s, u"nvxconfig.ts"_s, u"matprop.ts"_s};

// Folders of a share that others can write to, and that could be links to other places.
constexpr int languageLevels = 3; // pTrans, NVX360, CODE
constexpr int filesLevels = 2;    // pTrans, NVX360
constexpr int jobLevels = 3;      // pTrans, ~cBuild, job

bool isFolder(const QString &path)
{
    return !path.isEmpty() && QFileInfo(path).isDir();
}

bool isLink(const QString &path)
{
    const QFileInfo file(path);
    return file.isSymbolicLink() || file.isJunction();
}

// The first link among a path and the folders above it, of which there are so many on the share; empty if
// there is none.
QString linkIn(const QString &path, int levels)
{
    QString part = QDir::cleanPath(QDir::fromNativeSeparators(path));
    for (int level = 0; level < levels && !part.isEmpty(); ++level) {
        if (isLink(part))
            return QDir::toNativeSeparators(part);
        part.truncate(part.lastIndexOf(u'/'));
    }
    return {};
}

bool canBeOpened(const QString &path)
{
    const QFileInfo file(path);
    return !isLink(path) && !file.isDir() && (!file.exists() || file.isWritable());
}

} // namespace

QByteArray jobFile(const QStringList &sourceNames)
{
    QString text;
    for (const QString &name : sourceNames)
        text += sourceLanguage.translatorsCode + u'\\' + name + u'\n';
    return text.toUtf8();
}

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

// True if no part of the path on the share is a link; otherwise it is logged.
bool TranslationJob::isOnShare(const QString &path, int levels)
{
    const QString link = linkIn(path, levels);
    if (!link.isEmpty())
        m_reporter.log(LogLevel::failure, tr("%1 is a link, which is not followed").arg(link));
    return link.isEmpty();
}

// Removes a link, not its target.
void TranslationJob::remove(const QString &path)
{
    if (!QFile::exists(path) && !isLink(path))
        return;
    if ((!isLink(path) && !makeWritable(path)) || !QFile::remove(path))
        m_reporter.log(LogLevel::failure, u"can't remove"_s + path);
    if (QFile::exists(path))
        m_reporter.log(LogLevel::failure, path + u" still exist"_s);
}

void TranslationJob::writeJobFile()
{
    const QString path = jobPath(u".job"_s);
    if (!isFolder(m_jobFolder) || !isOnShare(path, jobLevels + 1) || !canBeOpened(path)) {
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
    for (const QString &name : filesToTranslate)
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
    if (!isFolder(m_jobFolder) || !isOnShare(m_shareFolder, filesLevels)) {
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
    if (!isOnShare(target, languageLevels) || !QDir().mkpath(target)) {
        m_reporter.log(LogLevel::failure, target + u" not available"_s);
        return;
    }
    const QStringList names = matchingFiles(source, collectedFiles());
    const QSet<QString> current(names.begin(), names.end());
    const QStringList earlier = matchingFiles(target, collectedFiles());
    for (const QString &name : earlier)
        if (!current.contains(name))
            remove(joinPath(target, name));
    for (const QString &name : names) {
        const QString path = joinPath(target, name);
        if (!isOnShare(path, 1) || !copyWhole(joinPath(source, name), path))
            m_reporter.log(LogLevel::failure, u"upload fails "_s + path);
    }
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
    m_refused.clear();
    for (const Language &language : targetLanguages)
        download(language);
}

void TranslationJob::download(const Language &language)
{
    const QString source = joinPath(m_shareFolder, language.translatorsCode);
    m_reporter.log(LogLevel::step, u"download"_s + source);
    if (!m_folders.hasRoot() || m_shareFolder.isEmpty() || !isFolder(source) ||
        !isOnShare(source, languageLevels)) {
        m_reporter.log(LogLevel::failure, u"download fails "_s + source);
        return;
    }
    QStringList names = matchingFiles(source, m_filePatterns);
    if (names.size() > maxFiles) {
        m_reporter.log(LogLevel::failure, tr("%1 has more than %2 files; the others are not downloaded")
                                              .arg(source, QString::number(maxFiles)));
        names.resize(maxFiles);
    }
    for (const QString &name : std::as_const(names)) {
        const QString path = joinPath(source, name);
        if (!downloadFile(path, joinPath(m_folders.folder(language.locale), name), language.locale))
            m_reporter.log(LogLevel::failure, u"download fails "_s + path);
    }
}

bool TranslationJob::downloadFile(const QString &source, const QString &target, const QString &locale)
{
    const bool translation = source.endsWith(".ts"_L1, Qt::CaseInsensitive);
    if (isOnShare(source, 1)) {
        const auto [answer, wasOpened, problem] = Nvx::Util::readRegularFile(source, maxFileSize);
        QString reason = problem;
        if (answer && translation)
            reason = reasonAgainst(*answer, target, locale);
        if (reason.isEmpty())
            return makeWritable(target) && Nvx::Util::replaceWholeFile(target, *answer);
        m_reporter.log(LogLevel::failure, tr("%1 is refused: %2").arg(source, reason));
    }
    m_refused[locale] += translation ? 1 : 0;
    return false;
}

// Why the answer must not replace the target; empty if it may.
QString TranslationJob::reasonAgainst(const QByteArray &answer, const QString &target,
                                      const QString &locale) const
{
    const Nvx::Util::Result<Translations> translations = readTranslations(answer);
    if (!translations)
        return translations.error();
    // What is there already is no answer.
    if (Nvx::Util::readWholeFile(target) == answer)
        return {};
    const QString english = joinPath(m_folders.folder(sourceLanguage.locale), QFileInfo(target).fileName());
    return reasonToRefuse(
        *translations,
        {.locale = locale, .earlier = translationsIn(target), .english = translationsIn(english)});
}

} // namespace Localization
