#include "setup/material_database.h"

#include "nvx_util/machine.h"
#include "nvx_util/product.h"
#include "nvx_util/system.h"
#include "nvx_util/whole_file.h"
#include "run/diagnostics.h"
#include "run/product_files.h"
#include "run/reporter.h"

#include <QFile>

using Nvx::Util::joinPath;
using Nvx::Util::System;

namespace {

const auto shippedFile = Nvx::Product::materialNames;
const auto workingFile = QStringLiteral("matprop.nvxmdb");

// The installer may still be closing the shipped file.
constexpr int furtherLooks = 4;
constexpr std::chrono::milliseconds pauseBeforeLook{10};

QString shared(const QString &fileName)
{
    return joinPath(System::getProgramDataPath(Nvx::Product::fullName), fileName);
}

QString previousYear()
{
    return QString::number(Nvx::Product::release.toInt() - 1);
}

QString previousDatabase()
{
    return shared(QStringLiteral("Materials %1.nvxmdb").arg(previousYear()));
}

// The users' database goes by this one name: a copy never takes the place of anything.
void copyIfMissing(const QString &source, const QString &target)
{
    System::makePath(System::getProgramDataPath(Nvx::Product::fullName));
    if (!Nvx::Util::copyToFreeName(source, target))
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
    // A copy that a crash cut off is nobody's database, and as long as one of these.
    for (const QString &database : {shared(workingFile), previousDatabase()})
        Nvx::Util::removeUnfinished(database);
    if (mode == RunMode::Install)
        install();
    else if (mode == RunMode::Uninstall)
        remove();
    return 0;
}

void MaterialDatabase::install()
{
    copyPreviousRelease();
    const QString source = beside(shippedFile);
    if (!isShipped(source)) {
        m_context.reporter.progress(LogLevel::step, tr("Installation error matprop.mdb does not exist?"));
        m_context.reporter.log(LogLevel::step, tr("Installation error: ") + source + tr(" does not exist."));
        return;
    }
    const QString target = shared(workingFile);
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
    const QString folder = System::getEnv(QStringLiteral("OSTRADE%1DIR").arg(previousYear()));
    const QString source = joinPath(folder, shippedFile);
    if (!folder.isEmpty() && QFile::exists(source))
        copyIfMissing(source, target);
}

bool MaterialDatabase::isShipped(const QString &shipped)
{
    for (int looks = 0; !QFile::exists(shipped); ++looks) {
        if (looks == furtherLooks)
            return false;
        m_context.machine.sleep(pauseBeforeLook);
    }
    return true;
}

void MaterialDatabase::remove()
{
    const QString leftover = beside(QStringLiteral("matprop.new"));
    m_context.reporter.log(LogLevel::step, tr("Remove: ") + leftover);
    removeProductFile(leftover);
    // The line names the program's folder; the database lies in the folder that all users share.
    m_context.reporter.log(LogLevel::step, tr("Remove: ") + beside(workingFile));
    removeProductFile(shared(workingFile));
}

QString MaterialDatabase::beside(const QString &fileName) const
{
    return joinPath(m_context.machine.executableFolder(), fileName);
}
