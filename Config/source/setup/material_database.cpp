#include "setup/material_database.h"

#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "nvx_util/system.h"
#include "nvx_util/trusted_files.h"
#include "nvx_util/whole_file.h"
#include "run/diagnostics.h"
#include "run/product_files.h"
#include "run/reporter.h"

#include <QFile>

#include <chrono>

using Nvx::Util::joinPath;
using Nvx::Util::System;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace Nvx::Setup {

namespace {

const auto shippedFile = Product::materialNames;
const auto workingFile = u"matprop.nvxmdb"_s;

// The installer may still be closing the shipped file.
constexpr int maxRetries = 4;
constexpr std::chrono::milliseconds retryPause = 10ms;

QString inSharedFolder(const QString &fileName)
{
    return joinPath(System::getProgramDataPath(Product::fullName), fileName);
}

QString previousYear()
{
    return QString::number(Product::release.toInt() - 1);
}

QString previousDatabase()
{
    return inSharedFolder(u"Materials %1.nvxmdb"_s.arg(previousYear()));
}

// The target may be the users' database, so an existing file is never replaced.
void copyIfMissing(const QString &source, const QString &target)
{
    const QString folder = System::getProgramDataPath(Product::fullName);
    const auto way = Util::HeldWay::toFolder(folder);
    const bool isTrusted = !way.plantedPoint();
    if (isTrusted)
        System::makePath(folder);
    if (!isTrusted || !Util::copyToFreeName(source, target))
        qCWarning(diagnostics, "Unable to copy %ls to %ls", qUtf16Printable(source), qUtf16Printable(target));
}

} // namespace

MaterialDatabase::MaterialDatabase(const StepContext &context)
    : m_context(context)
{
}

int MaterialDatabase::check(RunMode mode)
{
    m_context.reporter.progress(LogLevel::step, tr("Checking material database"));
    // The unfinished copies of a run that was killed are useless, and large.
    for (const QString &database : {inSharedFolder(workingFile), previousDatabase()})
        Util::removeUnfinished(database);
    if (mode == RunMode::Install)
        install();
    else if (mode == RunMode::Uninstall)
        remove();
    return 0;
}

void MaterialDatabase::install()
{
    copyPreviousRelease();
    const QString source = inProgramFolder(shippedFile);
    if (!isShipped(source)) {
        m_context.reporter.progress(LogLevel::step, tr("Installation error matprop.mdb does not exist?"));
        m_context.reporter.log(LogLevel::step, tr("Installation error: ") + source + tr(" does not exist."));
        return;
    }
    const QString target = inSharedFolder(workingFile);
    if (QFile::exists(target))
        return;
    m_context.reporter.log(LogLevel::step, tr("Copy: ") + source + tr(" to: ") + target);
    copyIfMissing(source, target);
}

void MaterialDatabase::copyPreviousRelease()
{
    const QString target = previousDatabase();
    if (QFile::exists(target))
        return;
    const QString folder = System::getEnv(u"OSTRADE%1DIR"_s.arg(previousYear()));
    const QString source = joinPath(folder, shippedFile);
    if (!folder.isEmpty() && QFile::exists(source))
        copyIfMissing(source, target);
}

bool MaterialDatabase::isShipped(const QString &shipped)
{
    for (int retries = 0; !QFile::exists(shipped); ++retries) {
        if (retries == maxRetries)
            return false;
        m_context.machine.sleep(retryPause);
    }
    return true;
}

void MaterialDatabase::remove()
{
    const QString leftover = inProgramFolder(u"matprop.new"_s);
    m_context.reporter.log(LogLevel::step, tr("Remove: ") + leftover);
    removeProductFile(leftover);
    // The line names the program's folder although the database is in the folder that all users share. That
    // is deliberate.
    m_context.reporter.log(LogLevel::step, tr("Remove: ") + inProgramFolder(workingFile));
    removeProductFile(inSharedFolder(workingFile));
}

QString MaterialDatabase::inProgramFolder(const QString &fileName) const
{
    return joinPath(m_context.machine.executableFolder(), fileName);
}

} // namespace Nvx::Setup
