#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "setup/product_registry.h"
#include "setup/product_values.h"
#include "setup/setup_fixture.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

#include <memory>

using Nvx::Util::joinPath;
using Nvx::Util::RegistryKey;

namespace {

const QString entry =
    QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\NVX 2017");
const QString currently = QStringLiteral("0 Updating language registry uninstall currently is:");

} // namespace

class tst_product_registry : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_fixture.reset(); }

    void init()
    {
        m_fixture = std::make_unique<SetupFixture>();
        m_fixture->state.locale = text("de-DE");
        m_fixture->state.registry64 = true;
        for (const QString &key : {machineProductKey(), userProductKey(), entry})
            QVERIFY(RegistryKey(key).removeWhole());
    }

    void anInstallWritesEveryValue()
    {
        QCOMPARE(run(RunMode::Install), 0);
        const QString analyze =
            joinPath(Nvx::Util::System::getProgramDataPath(text("NVX 2017")), text("Analyze"));
        const auto expected = machineValues({analyze, m_fixture->state.installDir, text("de-DE"), true}) +
                              userValues(text("de-DE"));
        for (const RegistryValue &value : expected) {
            const RegistryKey key(value.key);
            if (const auto *string = std::get_if<QString>(&value.content))
                QCOMPARE(key.text(value.name), std::optional(*string));
            else
                QCOMPARE(key.number(value.name), std::optional(std::get<quint32>(value.content)));
        }
        QCOMPARE(RegistryKey(machineProductKey()).valueNames(), QStringList(text("CurrentVersion")));
        QCOMPARE(RegistryKey(machineProductKey() + text("\\17.2")).valueNames().size(), 6);
    }

    void theViewerIsConfiguredLast()
    {
        m_fixture->machine.whileRunning = [this](const auto &) {
            m_rememberedLines = m_fixture->reporter.lines;
        };
        run(RunMode::Install);
        QCOMPARE(
            m_rememberedLines.mid(0, 4),
            QStringList({text("progress 0 Registry paths"), text("0 Updating language registry uninstall "),
                         currently, text("0 Running NVX 3D-ViewerConfig.")}));
        QCOMPARE(m_fixture->machine.calls.size(), 1);
        QCOMPARE(m_fixture->machine.calls.first().arguments, QStringList(text("-i")));
    }

    void theUninstallEntryGetsTheLanguage()
    {
        RegistryKey(entry).setText(text("UninstallPath"), text("setup.exe /LANG=en-US /X"));
        RegistryKey(entry).setText(text("UninstallString"), text("something else"));
        RegistryKey(entry).setText(text("DisplayName"), text("NVX 2017"));
        run(RunMode::Install);
        const std::optional rewritten = text("setup.exe /LANG=de-DE");
        QCOMPARE(RegistryKey(entry).text(text("UninstallPath")), rewritten);
        QCOMPARE(RegistryKey(entry).text(text("UninstallString")), rewritten);
        QCOMPARE(RegistryKey(entry).text(text("DisplayName")), std::optional(text("NVX 2017")));
        QCOMPARE(m_fixture->reporter.lines.mid(1, 4),
                 QStringList({text("0 Updating language registry uninstall "),
                              currently + text("setup.exe /LANG=en-US /X"),
                              text("0 Updating language registry uninstall locale=de-DE"),
                              text("0 Updating language registry uninstall set to:setup.exe /LANG=de-DE")}));
    }

    void anUninstallEntryWithoutALanguageIsLeftAlone()
    {
        RegistryKey(entry).setText(text("UninstallPath"), text("/LANG=en-US"));
        run(RunMode::Install);
        QCOMPARE(RegistryKey(entry).text(text("UninstallPath")), std::optional(text("/LANG=en-US")));
        QVERIFY(!RegistryKey(entry).text(text("UninstallString")));
        QVERIFY(m_fixture->reporter.lines.contains(currently + text("/LANG=en-US")));
        QVERIFY(m_fixture->reporter.lines.filter(text("set to:")).isEmpty());
    }

    void aMissingUninstallEntryIsNotMade()
    {
        run(RunMode::Install);
        QVERIFY(m_fixture->reporter.lines.contains(currently));
        QVERIFY(!RegistryKey(entry).hasEntries());
    }

    void inOtherModesTheUsersGroupsGoAndTheProductsKeyStays_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("uninstall") << int(RunMode::Uninstall);
        QTest::newRow("stop services") << int(RunMode::StopServices);
    }

    void inOtherModesTheUsersGroupsGoAndTheProductsKeyStays()
    {
        QFETCH(int, mode);
        run(RunMode::Install);
        RegistryKey(userProductKey()).setText(text("Locale"), text("de-DE"));
        RegistryKey(userProductKey() + text("\\Lumara\\Deep")).setText(text("a"), text("b"));
        m_fixture->machine.calls.clear();
        m_fixture->reporter.lines.clear();

        QCOMPARE(run(static_cast<RunMode>(mode)), 0);
        QCOMPARE(RegistryKey(userProductKey()).subKeyNames(), QStringList());
        QCOMPARE(RegistryKey(userProductKey()).text(text("Locale")), std::optional(text("de-DE")));
        QCOMPARE(RegistryKey(machineProductKey() + text("\\17.2")).valueNames().size(), 6);
        QCOMPARE(m_fixture->reporter.lines.mid(0, 2),
                 QStringList({text("progress 0 Registry paths"), text("0 Running NVX 3D-ViewerConfig.")}));
        QCOMPARE(m_fixture->machine.calls.size(), 1);
        QVERIFY(m_fixture->machine.calls.first().arguments.isEmpty());
    }

    void anUninstallOfWhatWasNeverInstalledLeavesNoTrace()
    {
        const RecordedDiagnostics diagnostics;
        QCOMPARE(run(RunMode::Uninstall), 0);
        QVERIFY(!RegistryKey(userProductKey()).hasEntries());
        QVERIFY(!RegistryKey(machineProductKey()).hasEntries());
        QCOMPARE(diagnostics.list(), QStringList());
    }

private:
    int run(RunMode mode) { return updateRegistry(m_fixture->context(), mode); }

    std::unique_ptr<SetupFixture> m_fixture;
    QStringList m_rememberedLines;
};

NVX_GUILESS_TEST(tst_product_registry)
#include "tst_product_registry.moc"
