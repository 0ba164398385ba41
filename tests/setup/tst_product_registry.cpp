#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "setup/product_registry.h"
#include "setup/product_values.h"
#include "setup/setup_fixture.h"
#include "support/recorded_diagnostics.h"
#include "support/test_class.h"

#include <QTest>

#include <memory>

using Nvx::Util::joinPath;
using Nvx::Util::RegistryKey;
using namespace Nvx::Run;
using namespace Nvx::Setup;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString entry =
    u"HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\NVX 2017"_s;
const QString currently = u"0 Updating language registry uninstall currently is:"_s;

} // namespace

class tst_product_registry : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { m_fixture.reset(); }

    void init()
    {
        m_fixture = std::make_unique<SetupFixture>();
        m_fixture->state.locale = u"de-DE"_s;
        m_fixture->state.registry64 = true;
        for (const QString &key : {machineProductKey(), userProductKey(), entry})
            QVERIFY(RegistryKey(key).removeWhole());
    }

    void anInstallWritesEveryValue()
    {
        QCOMPARE(run(RunMode::Install), 0);
        const QString analyze = joinPath(Nvx::Util::System::getProgramDataPath(u"NVX 2017"_s), u"Analyze"_s);
        const auto expected =
            machineValues({analyze, m_fixture->state.installDir, u"de-DE"_s, true}) + userValues(u"de-DE"_s);
        for (const RegistryValue &value : expected) {
            const RegistryKey key(value.key);
            if (const auto *string = std::get_if<QString>(&value.content))
                QCOMPARE(key.text(value.name), std::optional(*string));
            else
                QCOMPARE(key.number(value.name), std::optional(std::get<quint32>(value.content)));
        }
        QCOMPARE(RegistryKey(machineProductKey()).valueNames(), QStringList(u"CurrentVersion"_s));
        QCOMPARE(RegistryKey(machineProductKey() + u"\\17.2"_s).valueNames().size(), 6);
    }

    void theViewerIsConfiguredLast()
    {
        m_fixture->machine.whileRunning = [this](const auto &) {
            m_linesAtFirstProgram = m_fixture->reporter.lines;
        };
        run(RunMode::Install);
        QCOMPARE(m_linesAtFirstProgram.mid(0, 4),
                 QStringList({u"progress 0 Registry paths"_s, u"0 Updating language registry uninstall "_s,
                              currently, u"0 Running NVX 3D-ViewerConfig."_s}));
        QCOMPARE(m_fixture->machine.calls.size(), 1);
        QCOMPARE(m_fixture->machine.calls.first().arguments, QStringList(u"-i"_s));
    }

    void theUninstallEntryGetsTheLanguage()
    {
        RegistryKey(entry).setText(u"UninstallPath"_s, u"setup.exe /LANG=en-US /X"_s);
        RegistryKey(entry).setText(u"UninstallString"_s, u"another command"_s);
        RegistryKey(entry).setText(u"DisplayName"_s, u"NVX 2017"_s);
        run(RunMode::Install);
        const std::optional rewritten = u"setup.exe /LANG=de-DE"_s;
        QCOMPARE(RegistryKey(entry).text(u"UninstallPath"_s), rewritten);
        QCOMPARE(RegistryKey(entry).text(u"UninstallString"_s), rewritten);
        QCOMPARE(RegistryKey(entry).text(u"DisplayName"_s), std::optional(u"NVX 2017"_s));
        QCOMPARE(m_fixture->reporter.lines.mid(1, 4),
                 QStringList({u"0 Updating language registry uninstall "_s,
                              currently + u"setup.exe /LANG=en-US /X"_s,
                              u"0 Updating language registry uninstall locale=de-DE"_s,
                              u"0 Updating language registry uninstall set to:setup.exe /LANG=de-DE"_s}));
    }

    void anUninstallEntryWithoutALanguageIsLeftAlone()
    {
        RegistryKey(entry).setText(u"UninstallPath"_s, u"/LANG=en-US"_s);
        run(RunMode::Install);
        QCOMPARE(RegistryKey(entry).text(u"UninstallPath"_s), std::optional(u"/LANG=en-US"_s));
        QVERIFY(!RegistryKey(entry).text(u"UninstallString"_s));
        QVERIFY(m_fixture->reporter.lines.contains(currently + u"/LANG=en-US"_s));
        QVERIFY(m_fixture->reporter.lines.filter(u"set to:"_s).isEmpty());
    }

    void aMissingUninstallEntryIsNotCreated()
    {
        run(RunMode::Install);
        QVERIFY(m_fixture->reporter.lines.contains(currently));
        QVERIFY(!RegistryKey(entry).hasEntries());
    }

    void inOtherModesOnlyTheUsersGroupsAreRemoved_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("uninstall") << int(RunMode::Uninstall);
        QTest::newRow("stop services") << int(RunMode::StopServices);
    }

    void inOtherModesOnlyTheUsersGroupsAreRemoved()
    {
        QFETCH(int, mode);
        run(RunMode::Install);
        RegistryKey(userProductKey()).setText(u"Locale"_s, u"de-DE"_s);
        RegistryKey(userProductKey() + u"\\Lumara\\Deep"_s).setText(u"a"_s, u"b"_s);
        m_fixture->machine.calls.clear();
        m_fixture->reporter.lines.clear();

        QCOMPARE(run(static_cast<RunMode>(mode)), 0);
        QCOMPARE(RegistryKey(userProductKey()).subKeyNames(), QStringList());
        QCOMPARE(RegistryKey(userProductKey()).text(u"Locale"_s), std::optional(u"de-DE"_s));
        QCOMPARE(RegistryKey(machineProductKey() + u"\\17.2"_s).valueNames().size(), 6);
        QCOMPARE(m_fixture->reporter.lines.mid(0, 2),
                 QStringList({u"progress 0 Registry paths"_s, u"0 Running NVX 3D-ViewerConfig."_s}));
        QCOMPARE(m_fixture->machine.calls.size(), 1);
        QVERIFY(m_fixture->machine.calls.first().arguments.isEmpty());
    }

    void anUninstallWithoutAnInstallationWritesNothing()
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
    QStringList m_linesAtFirstProgram;
};

NVX_GUILESS_TEST(tst_product_registry)
#include "tst_product_registry.moc"
