#include "setup/product_registry.h"

#include "nvx_util/product.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "run/command_runner.h"
#include "run/diagnostics.h"
#include "run/reporter.h"
#include "setup/product_values.h"

#include <QCoreApplication>

using Nvx::Util::RegistryKey;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace Nvx::Setup {

namespace {

struct ViewerMessages
{
    Q_DECLARE_TR_FUNCTIONS(ViewerConfiguration)
};

} // namespace

int configureViewer(const StepContext &context, RunMode mode)
{
    context.reporter.log(LogLevel::step, ViewerMessages::tr("Running NVX 3D-ViewerConfig."));
    const QString program = Util::joinPath(context.state.installDir, u"NVX Viewer/NVXViewerConfig.exe"_s);
    const QStringList arguments = mode == RunMode::Install ? QStringList{u"-i"_s} : QStringList();
    CommandRunner(context).runCommand(program, arguments, QString());
    return 0;
}

namespace {

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(ProductRegistry)
};

bool write(const RegistryValue &value)
{
    RegistryKey key(value.key);
    if (const auto *text = std::get_if<QString>(&value.content))
        return key.setText(value.name, *text);
    return key.setNumber(value.name, std::get<quint32>(value.content));
}

void writeAll(const QList<RegistryValue> &values)
{
    for (const RegistryValue &value : values) {
        if (!write(value))
            qCWarning(diagnostics, "The registry refuses the value %ls of %ls", qUtf16Printable(value.name),
                      qUtf16Printable(value.key));
    }
}

void removeUserGroups()
{
    for (const auto &group : {u"WebServices"_s, u"Lumara"_s}) {
        RegistryKey key(userProductKey() + u'\\' + group);
        if (!key.removeWhole())
            qCWarning(diagnostics, "The registry refuses to remove %ls", qUtf16Printable(key.path()));
    }
}

void updateUninstallEntry(const StepContext &context)
{
    Reporter &reporter = context.reporter;
    const QString locale = context.state.locale;
    const QString entry =
        u"HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\%1"_s.arg(
            Product::fullName);

    reporter.log(LogLevel::step, Messages::tr("Updating language registry uninstall "));
    const QString current = RegistryKey(entry).text(u"UninstallPath"_s).value_or(QString());
    reporter.log(LogLevel::step,
                 Messages::tr("Updating language registry uninstall currently is:") + current);
    const std::optional<QString> command = uninstallCommandIn(current, locale);
    if (!command)
        return;
    reporter.log(LogLevel::step, Messages::tr("Updating language registry uninstall locale=") + locale);
    writeAll({{entry, u"UninstallPath"_s, *command}, {entry, u"UninstallString"_s, *command}});
    reporter.log(LogLevel::step, Messages::tr("Updating language registry uninstall set to:") + *command);
}

} // namespace

int updateRegistry(const StepContext &context, RunMode mode)
{
    context.reporter.progress(LogLevel::step, Messages::tr("Registry paths"));
    if (mode != RunMode::Install) {
        configureViewer(context, mode);
        removeUserGroups();
        return 0;
    }

    const RunState &state = context.state;
    const QString sharedData = Util::System::getProgramDataPath(Product::fullName);
    writeAll(machineValues({.analyzeDirectory = Util::joinPath(sharedData, u"Analyze"_s),
                            .installDir = state.installDir,
                            .locale = state.locale,
                            .registry64 = state.registry64}));
    writeAll(userValues(state.locale));
    updateUninstallEntry(context);
    configureViewer(context, mode);
    return 0;
}

} // namespace Nvx::Setup
