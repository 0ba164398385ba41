// The language of the run: what is remembered of it, and the files that go with it.

#include "cfg_utilities/cfg_utilitys.h"
#include "nvx_util/languages.h"
#include "nvx_util/product.h"
#include "nvx_util/system.h"
#include "nvx_util/whole_file.h"
#include "run/product_files.h"

#include <QDir>
#include <QFile>

using Nvx::Util::joinPath;
using Nvx::Util::System;

namespace {

const QString builtInLocale = Nvx::Util::sourceLanguage.locale;
const QString japanese = QStringLiteral("ja-JP");
const QString flagsFile = Nvx::Product::flagsFile;

} // namespace

void cfg_utilitys::setUpLanguage(RunMode mode)
{
    log(LogLevel::note, m_state.modeWord(mode) + QLatin1Char(' ') + tr("Language ") + m_state.locale);
    if (mode == RunMode::Uninstall)
        resetSorvane(RunMode::Uninstall);
    if (m_state.locale.isEmpty()) {
        log(LogLevel::step, tr("No Language locale Specified"));
        return;
    }
    log(LogLevel::step, tr("Language ") + m_state.locale);

    // The steps below look at the run's mode, and a run without one counts as the mode that was passed.
    const RunMode stored = m_state.runMode;
    m_state.runMode = mode;
    if (mode == RunMode::Install) {
        log(LogLevel::step, tr("Install Language: ") + m_state.locale);
        createFlagsFile();
    }
    switchLanguage(builtInLocale);
    if (m_state.locale != builtInLocale) {
        switchLanguage(m_state.locale);
        installSolverResources();
    }
    m_state.runMode = stored;
    m_state.currentLocale = m_state.locale;
}

// The shortcuts' names are those of the language in which they were made.
void cfg_utilitys::changeLanguage(const QString &locale)
{
    createShortcuts(RunMode::Uninstall);
    m_state.locale = locale;
    setUpLanguage(RunMode::Install);
    createShortcuts(RunMode::Install);
}

void cfg_utilitys::createFlagsFile()
{
    const QString flagsFolder = System::getFlagsDirPath();
    System::makePath(flagsFolder);
    const QString target = joinPath(flagsFolder, flagsFile);
    if (QFile::exists(target))
        return;

    const QString prepared = System::getEnv(QStringLiteral("OSTRADE2017TEMP"));
    const QString source = joinPath(prepared, flagsFile);
    if (!prepared.isEmpty() && QFile::exists(source)) {
        // Whole or not at all: what is there once is never copied again.
        if (!Nvx::Util::copyToFreeName(source, target))
            log(LogLevel::failure, tr("Unable to create %1").arg(target));
        return;
    }
    QFile file(target);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        log(LogLevel::failure, tr("Unable to create %1").arg(target));
}

// The argument decides what is remembered and logged; the files come from the folder of the run's locale.
void cfg_utilitys::switchLanguage(const QString &locale)
{
    System::setLocale(locale);
    log(LogLevel::step, tr("ChangeLanguage = ") + locale);
    resetSorvane(m_state.runMode);
    if (m_state.runMode == RunMode::Install)
        installLanguageFiles();
}

void cfg_utilitys::installLanguageFiles()
{
    const QString localeFolder = joinPath(m_state.installDir, m_state.locale);
    if (m_state.locale == builtInLocale) {
        const QString source = joinPath(localeFolder, Nvx::Product::materialNames);
        const QString target = joinPath(m_state.installDir, QStringLiteral("matprop.new"));
        replaceProductFile(source, target);
        log(LogLevel::step, tr("COPY:%1 to %2").arg(source, target));
    }
    installSolverResources();

    const QString dictionary =
        joinPath(System::getUserDataPath(), QStringLiteral("NVX_db_dictionary.nvxcfg"));
    removeProductFile(dictionary);
    log(LogLevel::step, tr("Remove:") + dictionary);

    for (const auto &library :
         {QStringLiteral("VistrelResources.dll"), QStringLiteral("VelmoraApplicationFrameRes.dll")})
        replaceProductFile(joinPath(localeFolder, library), joinPath(m_state.installDir, library));
}

void cfg_utilitys::installSolverResources()
{
    const auto library = QStringLiteral("ZorvRes.dll");
    const QString folder = joinPath(m_state.installDir, QStringLiteral("ja"));
    removeProductFile(joinPath(folder, library));
    QDir().rmdir(folder); // stays when it holds anything else
    if (m_state.locale != japanese)
        return;

    QDir().mkdir(folder);
    const QString localeFolder = joinPath(m_state.installDir, japanese);
    QFile::copy(joinPath(localeFolder, library), joinPath(folder, library));
    log(LogLevel::step, tr("zorv :") + m_state.installDir);
}
