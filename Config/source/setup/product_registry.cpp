#include "setup/product_registry.h"

#include "nvx_util/product.h"
#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "run/diagnostics.h"
#include "run/reporter.h"
#include "setup/product_values.h"
#include "setup/uninstall_command.h"
#include "setup/viewer_configuration.h"

#include <QCoreApplication>

using Nvx::Util::RegistryKey;

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
    for (const auto &group : {QStringLiteral("WebServices"), QStringLiteral("Lumara")}) {
        RegistryKey key(userProductKey() + QLatin1Char('\\') + group);
        if (!key.removeWhole())
            qCWarning(diagnostics, "The registry refuses to remove %ls", qUtf16Printable(key.path()));
    }
}

void updateUninstallEntry(const StepContext &context)
{
    Reporter &reporter = context.reporter;
    const QString locale = context.state.locale;
    const QString entry =
        QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\%1")
            .arg(Nvx::Product::fullName);

    reporter.log(LogLevel::step, Messages::tr("Updating language registry uninstall "));
    const QString current = RegistryKey(entry).text(QStringLiteral("UninstallPath")).value_or(QString());
    reporter.log(LogLevel::step,
                 Messages::tr("Updating language registry uninstall currently is:") + current);
    const std::optional<QString> command = uninstallCommandIn(current, locale);
    if (!command)
        return;
    reporter.log(LogLevel::step, Messages::tr("Updating language registry uninstall locale=") + locale);
    writeAll({{entry, QStringLiteral("UninstallPath"), *command},
              {entry, QStringLiteral("UninstallString"), *command}});
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

    ProductRecord record;
    record.analyzeDirectory = Nvx::Util::joinPath(
        Nvx::Util::System::getProgramDataPath(Nvx::Product::fullName), QStringLiteral("Analyze"));
    record.installDir = context.state.installDir;
    record.locale = context.state.locale;
    record.registry64 = context.state.registry64;
    writeAll(machineValues(record));
    writeAll(userValues(record.locale));
    updateUninstallEntry(context);
    configureViewer(context, mode);
    return 0;
}
