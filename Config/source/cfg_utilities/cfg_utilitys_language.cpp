// The language of the run: remembering it, and the files that depend on it.

#include "cfg_utilities/cfg_utilitys.h"
#include "cfg_utilities/flag_file.h"
#include "nvx_util/languages.h"
#include "nvx_util/product.h"
#include "nvx_util/system.h"
#include "nvx_util/trusted_files.h"
#include "nvx_util/whole_file.h"
#include "run/product_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using Nvx::Util::joinPath;
using Nvx::Util::System;
using namespace Nvx::Run;
using namespace Nvx;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString builtInLocale = Util::sourceLanguage.locale;
const QString japanese = u"ja-JP"_s;
const QString flagsFile = Product::flagsFile;

} // namespace

void cfg_utilitys::setUpLanguage(RunMode mode)
{
    log(LogLevel::note, m_state.modeWord(mode) + u' ' + tr("Language ") + m_state.locale);
    if (mode == RunMode::Uninstall)
        resetSorvane(RunMode::Uninstall);
    if (m_state.locale.isEmpty()) {
        log(LogLevel::step, tr("No Language locale Specified"));
        return;
    }
    log(LogLevel::step, tr("Language ") + m_state.locale);

    // The operations below read the run's mode, and a run without a mode is treated as the mode that was
    // passed.
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

// The shortcuts are created again, since their texts depend on the language.
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
    const QString target = joinPath(flagsFolder, flagsFile);
    const auto way = Util::HeldWay::toEntry(target);
    if (!isTrustedWay(context().reporter, way, target))
        return;
    System::makePath(flagsFolder);
    if (QFile::exists(target))
        return;

    QByteArray contents;
    const QString prepared = System::getEnv(u"OSTRADE2017TEMP"_s);
    const QString source = joinPath(prepared, flagsFile);
    if (!prepared.isEmpty() && (!Engine::canBeFolder(prepared) || QFileInfo::exists(source))) {
        if (const auto found = Engine::readPreparedFlagFile(prepared, flagsFile))
            contents = *found;
        else
            log(LogLevel::failure, tr("%1 is not used; it is not an ordinary file of at most %2 KiB")
                                       .arg(source)
                                       .arg(Engine::maxPreparedFlagFileBytes / 1024));
    }
    // A file that exists is never written again, so it must be written whole or not at all.
    if (!Util::createWholeFile(target, contents))
        log(LogLevel::failure, tr("Unable to create %1").arg(target));
}

// The argument is remembered and logged; the files come from the folder of the run's locale. That is
// deliberate.
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
        const QString source = joinPath(localeFolder, Product::materialNames);
        const QString target = joinPath(m_state.installDir, u"matprop.new"_s);
        replaceProductFile(source, target);
        log(LogLevel::step, tr("COPY:%1 to %2").arg(source, target));
    }
    installSolverResources();

    const QString dictionary = joinPath(System::getUserDataPath(), u"NVX_db_dictionary.nvxcfg"_s);
    removeProductFile(dictionary);
    log(LogLevel::step, tr("Remove:") + dictionary);

    for (const auto &library : {u"VistrelResources.dll"_s, u"VelmoraApplicationFrameRes.dll"_s})
        replaceProductFile(joinPath(localeFolder, library), joinPath(m_state.installDir, library));
}

void cfg_utilitys::installSolverResources()
{
    const auto library = u"ZorvRes.dll"_s;
    const QString folder = joinPath(m_state.installDir, u"ja"_s);
    removeProductFile(joinPath(folder, library));
    QDir().rmdir(folder); // fails if it contains other files
    if (m_state.locale != japanese)
        return;

    QDir().mkdir(folder);
    const QString localeFolder = joinPath(m_state.installDir, japanese);
    QFile::copy(joinPath(localeFolder, library), joinPath(folder, library));
    log(LogLevel::step, tr("zorv :") + m_state.installDir);
}
