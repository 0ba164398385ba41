#include "localization/util_localization_tool.h"

#include "localization/locale_folders.h"
#include "localization/translatable_texts.h"
#include "localization/translation_tools.h"
#include "materials/mat_translation_table.h"
#include "nvx_util/languages.h"
#include "nvx_util/machine.h"
#include "nvx_util/system.h"
#include "run/reporter.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

using Nvx::Util::joinPath;
using Nvx::Util::Language;
using Nvx::Util::sourceLanguage;
using Nvx::Util::System;
using Nvx::Util::targetLanguages;

namespace util {

namespace {

const QString buildOutputFolder = QStringLiteral("C:\\build\\NVX2017");
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
    QDirIterator files(folder, {QStringLiteral("*.cpp"), QStringLiteral("*.ui")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(QDir::toNativeSeparators(files.next()));
    paths.sort();
    return paths;
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

util_localization_tool::util_localization_tool(const StepContext &context, QObject *parent)
    : QObject(parent)
    , m_filePatterns{QStringLiteral("*.ts"), QStringLiteral("*.xaml"), QStringLiteral("*.csv")}
    , m_context(context)
{
    const LocalizationSettings settings = readSettings();
    m_rootFolder = QDir::toNativeSeparators(settings.root);
    m_shareFolder = onShare(settings.share, QStringLiteral("pTrans/NVX360/"));
    m_toolsFolder = settings.qtTools;
    m_job = std::make_unique<TranslationJob>(
        LocaleFolders(m_rootFolder, m_context.reporter), m_shareFolder,
        onShare(settings.share, QStringLiteral("pTrans/~cBuild/job")), m_filePatterns, m_context.reporter,
        [&machine = context.machine](std::chrono::milliseconds time) { machine.sleep(time); });
}

util_localization_tool::~util_localization_tool() = default;

LocalizationSettings util_localization_tool::readSettings() const
{
    const QString path = joinPath(m_context.machine.executableFolder(), QStringLiteral("localization.xml"));
    if (!QFile::exists(path)) {
        LocalizationSettings settings;
        settings.root =
            firstExisting({buildOutputFolder, System::getProgramFilesPathFromRegistry(false)}, isFolder);
        return settings;
    }
    std::optional<LocalizationSettings> settings = readLocalizationSettings(bytesOf(path));
    if (!settings) {
        // Guessing another folder could rewrite the wrong sources.
        m_context.reporter.log(LogLevel::failure, tr("%1 is damaged").arg(path));
        return {};
    }
    settings->root = firstExisting({settings->root}, isFolder);
    return *settings;
}

QString util_localization_tool::inRoot(const QString &relativePath) const
{
    return joinPath(m_rootFolder, relativePath);
}

QString util_localization_tool::inLocale(QLatin1StringView locale, const QString &name) const
{
    return inRoot(QStringLiteral("Locale/%1/%2").arg(locale, name));
}

void util_localization_tool::runScript()
{
    Reporter &reporter = m_context.reporter;
    reporter.log(LogLevel::step, m_rootFolder);
    reporter.log(LogLevel::step, m_shareFolder);
    if (!hasRoot())
        reporter.log(LogLevel::failure, tr("There is no folder of sources, nothing is translated"));
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
}

void util_localization_tool::scanSources()
{
    const QStringList paths = hasRoot() ? sourcesIn(inRoot(QStringLiteral("Projects"))) : QStringList();
    qint64 total = 0;
    for (const QString &path : paths) {
        const QByteArray bytes = bytesOf(path);
        const bool form = path.endsWith(QLatin1String(".ui"), Qt::CaseInsensitive);
        const int count = form ? countTranslatableStrings(bytes) : countTranslatableCalls(bytes);
        total += count;
        m_context.reporter.log(LogLevel::step,
                               tr("%1: %2 texts to translate").arg(path, QString::number(count)));
    }
    m_context.reporter.log(LogLevel::step,
                           tr("%1 texts to translate in %2 files").arg(total).arg(paths.size()));
}

// The lines that end in "cool" tell how far the run is. What went wrong before them has lines of its own.
void util_localization_tool::updateEnglishSources()
{
    update(QStringLiteral("Projects/Client/client.pro"), QStringLiteral("client.ts"));
    m_context.reporter.log(LogLevel::step, QStringLiteral("tr1 finishes cool"));
    update(QStringLiteral("Projects/Config/Config.pro"), QStringLiteral("nvxconfig.ts"));
    m_context.reporter.log(LogLevel::step, QStringLiteral("tr2 finishes cool"));
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
    const QString translations = inLocale(sourceLanguage.locale, QStringLiteral("matprop.ts"));
    if (hasRoot() && makeWritable(translations)) {
        const mat::TableUpdate update = mat::updateTranslationFile(
            inRoot(QStringLiteral("Projects/Client/runtime/matprop.mdb")), translations);
        if (update.outcome != mat::TableUpdate::Outcome::Updated)
            m_context.reporter.log(LogLevel::failure, update.error);
        else if (!update.note.isEmpty())
            m_context.reporter.log(LogLevel::failure, update.note);
    } else {
        m_context.reporter.log(LogLevel::failure, QStringLiteral("Permission fails:") + translations);
    }
    m_context.reporter.log(LogLevel::step, QStringLiteral("mat finishes cool"));
}

void util_localization_tool::runTranslationJob()
{
    m_job->writeJobFile();
    m_job->upload();
    m_job->waitUntilDone();
    m_context.reporter.log(LogLevel::step, QStringLiteral("job done"));
    m_job->download();
    m_context.reporter.log(LogLevel::step, QStringLiteral("cbuild finishes cool"));
}

void util_localization_tool::compile()
{
    for (const Language &language : targetLanguages) {
        m_context.reporter.log(LogLevel::step, QStringLiteral("release client ") + language.locale);
        release(language.locale, QStringLiteral("client.ts"), QStringLiteral("client.qm"));
        m_context.reporter.log(LogLevel::step, QStringLiteral("release config ") + language.locale);
        release(language.locale, QStringLiteral("nvxconfig.ts"), QStringLiteral("nvxconfig.qm"));
    }
    m_context.reporter.log(LogLevel::step, QStringLiteral("release finishes cool"));
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
    const auto name = QStringLiteral("Ribbon2D.xmal");
    const QString source = inLocale(sourceLanguage.locale, name);
    for (const Language &language : targetLanguages) {
        const QString target = inLocale(language.locale, name);
        if (hasRoot() && !makeWritable(target))
            m_context.reporter.log(LogLevel::failure, QStringLiteral("Permission fails:") + target);
        else if (!hasRoot() || !copyWhole(source, target))
            m_context.reporter.log(LogLevel::failure, QStringLiteral("Copy fails:") + target);
    }
    m_context.reporter.log(LogLevel::step, QStringLiteral("Ribbon2D copied cool"));
}

} // namespace util
