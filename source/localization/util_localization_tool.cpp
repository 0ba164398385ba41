#include "localization/util_localization_tool.h"

#include "localization/locale_folders.h"
#include "localization/translatable_texts.h"
#include "localization/translation_answer.h"
#include "localization/translation_tools.h"
#include "materials/mat_translation_table.h"
#include "nvx_util/languages.h"
#include "nvx_util/machine.h"
#include "nvx_util/regular_file.h"
#include "nvx_util/system.h"
#include "run/reporter.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;
using Localization::LocaleFolders;
using Localization::LocalizationSettings;
using Localization::TranslationTools;
using Nvx::Util::joinPath;
using Nvx::Util::Language;
using Nvx::Util::sourceLanguage;
using Nvx::Util::System;
using Nvx::Util::targetLanguages;

namespace util {

namespace {

const QString buildOutputFolder = u"C:\\build\\NVX2017"_s;
constexpr auto settlingTime = std::chrono::milliseconds(1000);

bool isFolder(const QString &path)
{
    return QFileInfo(path).isDir();
}

QString onShare(const QString &share, const QString &relativePath)
{
    return share.isEmpty() ? QString() : joinPath(share, relativePath);
}

/// The sources and forms below a folder, sorted.
QStringList sourcesIn(const QString &folder)
{
    QStringList paths;
    QDirIterator files(folder, {u"*.cpp"_s, u"*.ui"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(QDir::toNativeSeparators(files.next()));
    paths.sort();
    return paths;
}

QByteArray bytesOf(const QString &path)
{
    Nvx::Util::RegularFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

util_localization_tool::util_localization_tool(const StepContext &context, QObject *parent)
    : QObject(parent)
    , m_filePatterns{u"*.ts"_s, u"*.xaml"_s, u"*.csv"_s}
    , m_context(context)
{
    const LocalizationSettings settings = readSettings();
    m_rootFolder = QDir::toNativeSeparators(settings.root);
    m_shareFolder = onShare(settings.share, u"pTrans/NVX360/"_s);
    m_toolsFolder = settings.qtTools;
    m_job = std::make_unique<Localization::TranslationJob>(
        LocaleFolders(m_rootFolder, m_context.reporter), m_shareFolder,
        onShare(settings.share, u"pTrans/~cBuild/job"_s), m_filePatterns, m_context.reporter,
        [&machine = context.machine](std::chrono::milliseconds time) { machine.sleep(time); });
}

util_localization_tool::~util_localization_tool() = default;

LocalizationSettings util_localization_tool::readSettings() const
{
    const QString path = joinPath(m_context.machine.executableFolder(), u"localization.xml"_s);
    if (!QFile::exists(path)) {
        return {.root = Localization::firstExisting(
                    {buildOutputFolder, System::getProgramFilesPathFromRegistry(false)}, isFolder)};
    }
    const auto settings = Localization::readLocalizationSettings(bytesOf(path));
    if (!settings) {
        // Guessing another folder could rewrite the wrong sources.
        m_context.reporter.log(LogLevel::failure, tr("%1 is damaged").arg(path));
        return {};
    }
    return {.root = Localization::firstExisting({settings->root}, isFolder),
            .share = settings->share,
            .qtTools = settings->qtTools};
}

QString util_localization_tool::inRoot(const QString &relativePath) const
{
    return joinPath(m_rootFolder, relativePath);
}

QString util_localization_tool::inLocale(QLatin1StringView locale, const QString &name) const
{
    return inRoot(u"Locale/%1/%2"_s.arg(locale, name));
}

void util_localization_tool::runScript()
{
    Reporter &reporter = m_context.reporter;
    reporter.log(LogLevel::step, m_rootFolder);
    reporter.log(LogLevel::step, m_shareFolder);
    if (!hasRoot())
        reporter.log(LogLevel::failure, tr("No source folder was found; nothing is translated"));
    else if (!TranslationTools(m_context, m_toolsFolder).hasTools())
        reporter.log(LogLevel::failure,
                     tr("localization.xml has no full path of a folder with lupdate and lrelease; "
                        "nothing is updated or compiled"));
    LocaleFolders folders(m_rootFolder, reporter);
    folders.prepare();
    scanSources();
    updateEnglishSources();
    updateMaterialNames();
    folders.collect();
    folders.prepare();
    m_context.machine.sleep(settlingTime);
    runTranslationJob();
    folders.prepare();
    compile();
    copyRibbon();
    summarize();
}

void util_localization_tool::scanSources()
{
    const QStringList paths = hasRoot() ? sourcesIn(inRoot(u"Projects"_s)) : QStringList();
    qint64 total = 0;
    for (const QString &path : paths) {
        const QByteArray bytes = bytesOf(path);
        const bool form = path.endsWith(".ui"_L1, Qt::CaseInsensitive);
        const int count = form ? Localization::countTranslatableStrings(bytes)
                               : Localization::countTranslatableCalls(bytes);
        total += count;
        m_context.reporter.log(LogLevel::step,
                               tr("%1: %2 texts to translate").arg(path, QString::number(count)));
    }
    m_context.reporter.log(LogLevel::step,
                           tr("%1 texts to translate in %2 files").arg(total).arg(paths.size()));
}

// The lines that end in "cool" report the progress of the run, also after a failure, which has lines of its
// own.
void util_localization_tool::updateEnglishSources()
{
    update(u"Projects/Client/client.pro"_s, u"client.ts"_s);
    m_context.reporter.log(LogLevel::step, u"tr1 finishes cool"_s);
    update(u"Projects/Config/Config.pro"_s, u"nvxconfig.ts"_s);
    m_context.reporter.log(LogLevel::step, u"tr2 finishes cool"_s);
}

void util_localization_tool::update(const QString &project, const QString &name)
{
    if (!hasRoot())
        return;
    TranslationTools tools(m_context, m_toolsFolder);
    tools.update(inRoot(project), inLocale(sourceLanguage.locale, name));
}

void util_localization_tool::updateMaterialNames()
{
    const QString translations = inLocale(sourceLanguage.locale, u"matprop.ts"_s);
    if (hasRoot() && Localization::makeWritable(translations)) {
        const auto update =
            Materials::updateTranslationFile(inRoot(u"Projects/Client/runtime/matprop.mdb"_s), translations);
        if (!update)
            m_context.reporter.log(LogLevel::failure, update.error());
        else if (!update->note.isEmpty())
            m_context.reporter.log(LogLevel::failure, update->note);
    } else {
        m_context.reporter.log(LogLevel::failure, u"Permission fails:"_s + translations);
    }
    m_context.reporter.log(LogLevel::step, u"mat finishes cool"_s);
}

void util_localization_tool::runTranslationJob()
{
    m_job->writeJobFile();
    m_job->upload();
    m_job->waitUntilDone();
    m_context.reporter.log(LogLevel::step, u"job done"_s);
    m_job->download();
    m_context.reporter.log(LogLevel::step, u"cbuild finishes cool"_s);
}

void util_localization_tool::compile()
{
    for (const Language &language : targetLanguages) {
        m_context.reporter.log(LogLevel::step, u"release client "_s + language.locale);
        release(language.locale, u"client.ts"_s, u"client.qm"_s);
        m_context.reporter.log(LogLevel::step, u"release config "_s + language.locale);
        release(language.locale, u"nvxconfig.ts"_s, u"nvxconfig.qm"_s);
    }
    m_context.reporter.log(LogLevel::step, u"release finishes cool"_s);
}

void util_localization_tool::release(QLatin1StringView locale, const QString &translations,
                                     const QString &compiled)
{
    if (!hasRoot())
        return;
    TranslationTools tools(m_context, m_toolsFolder);
    tools.release(inLocale(locale, translations), inLocale(locale, compiled));
}

void util_localization_tool::copyRibbon()
{
    const auto name = u"Ribbon2D.xmal"_s;
    const QString source = inLocale(sourceLanguage.locale, name);
    for (const Language &language : targetLanguages) {
        const QString target = inLocale(language.locale, name);
        if (hasRoot() && !Localization::makeWritable(target))
            m_context.reporter.log(LogLevel::failure, u"Permission fails:"_s + target);
        else if (!hasRoot() || !Localization::copyWhole(source, target))
            m_context.reporter.log(LogLevel::failure, u"Copy fails:"_s + target);
    }
    m_context.reporter.log(LogLevel::step, u"Ribbon2D copied cool"_s);
}

void util_localization_tool::summarize()
{
    using State = Localization::TranslatedString::State;
    if (!hasRoot())
        return;
    for (const Language &language : targetLanguages) {
        qsizetype finished = 0;
        qsizetype open = 0;
        const QString folder = inRoot(u"Locale/"_s + language.locale);
        for (const QString &name : Localization::matchingFiles(folder, {u"*.ts"_s})) {
            const auto translations = Localization::translationsIn(joinPath(folder, name));
            finished += translations.count(State::Finished);
            open += translations.count(State::Open);
        }
        m_context.reporter.log(LogLevel::step, tr("%1: %2 texts finished, %3 open; %4 files refused")
                                                   .arg(language.locale)
                                                   .arg(finished)
                                                   .arg(open)
                                                   .arg(m_job->refusedFiles(language.locale)));
    }
}

} // namespace util
