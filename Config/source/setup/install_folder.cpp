#include "setup/install_folder.h"

#include "nvx_util/product.h"
#include "nvx_util/system.h"
#include "nvx_util/trusted_files.h"
#include "run/product_files.h"

#include <QDir>
#include <QFileInfo>

using Nvx::Util::System;
using namespace Nvx::Run;

namespace Nvx::Setup {

namespace {

// The folders of the maker and of the product; what they are in belongs to the system.
constexpr int ownLevels = 2;

QString folderOf(const QString &path)
{
    return QDir::toNativeSeparators(QFileInfo(path).path());
}

} // namespace

void reserveInstallFolder(const StepContext &context, RunMode mode)
{
    if (mode != RunMode::Install)
        return;
    const QString folder = context.state.installDir;
    if (const auto way = Util::HeldWay::toFolder(folder); isTrustedWay(context.reporter, way, folder))
        reserveFolder(context.reporter, folder);
    for (const QString &shared :
         {System::getProgramDataPath(Product::fullName), folderOf(System::getTutorialsDirPath())}) {
        const auto way = Util::HeldWay::toFolder(folderOf(folderOf(shared)));
        if (isTrustedWay(context.reporter, way, shared))
            takeOverFolders(context.reporter, shared, ownLevels);
    }
}

} // namespace Nvx::Setup
