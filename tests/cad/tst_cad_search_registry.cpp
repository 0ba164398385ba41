// The cases again, on the registry of the machine, into which the Registry Editor has imported them.

#include "cad/machine_registry_listing.h"
#include "cad_case.h"
#include "nvx_util/native_machine.h"
#include "nvx_util/registry_key.h"
#include "registry_script.h"
#include "support/case_folders.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QTest>

namespace {

const QString header = QStringLiteral("Windows Registry Editor Version 5.00\r\n\r\n");

// Everything that the search looks at but the keys that product codes name.
const QStringList searchedKeys{QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Velmora\\Brevant"),
                               QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\PTC"),
                               QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\PTC"),
                               QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\SolidWorks"),
                               QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Unigraphics Solutions"),
                               QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Velmora\\Tamsel"),
                               QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Classes\\SpaceClaim.Location")};

QString removalOf(const QStringList &keys)
{
    QString script;
    for (const QString &key : keys)
        script += QStringLiteral("[-%1]\r\n").arg(key);
    return script;
}

} // namespace

class tst_cad_search_registry : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { import(removalOf(searchedKeys)); }

    void cleanup()
    {
        import(removalOf(searchedKeys + m_caseKeys));
        m_caseKeys.clear();
    }

    void everyCaseComesToWhatIsExpected_data() { addCaseRows(QStringLiteral(CASES)); }

    void everyCaseComesToWhatIsExpected()
    {
        QFETCH(QString, folder);
        const CadCase expected = CadCase::read(folder);
        TableRegistry table;
        importScript(expected.script, table);
        m_caseKeys = table.keyPaths();
        import(expected.script.section(QLatin1Char('\n'), 1)
                   .replace(QLatin1String("\n"), QLatin1String("\r\n")));
        const CadSearch search = searchCadPackages(MachineRegistryListing(), QStringLiteral("Found "));
        QCOMPARE(described(search), expected.expected);
        if (!expected.log.isEmpty())
            QCOMPARE(wholeLog(search), expected.log);
    }

    void theSearchMakesNoKeys()
    {
        searchCadPackages(MachineRegistryListing(), QString());
        for (const QString &key : searchedKeys) {
            const QString above = key.section(QLatin1Char('\\'), 0, -2);
            const QString name = key.section(QLatin1Char('\\'), -1);
            QVERIFY(!Nvx::Util::RegistryKey(above).subKeyNames().contains(name, Qt::CaseInsensitive));
        }
    }

private:
    void import(const QString &body)
    {
        const QString file = m_folder.path(QStringLiteral("case.reg"));
        const QString script = QChar(0xFEFF) + header + body;
        QVERIFY(writeBytes(file, QByteArray(reinterpret_cast<const char *>(script.utf16()),
                                            script.size() * qsizetype(sizeof(char16_t)))));
        Nvx::Util::ProgramCall call;
        call.program = QStringLiteral("regedit.exe");
        call.arguments = {QStringLiteral("/S"), file};
        call.place = Nvx::Util::ProgramCall::Place::SystemFolder;
        const Nvx::Util::ProgramResult result = m_machine.run(call);
        QVERIFY(result.outcome == Nvx::Util::ProgramResult::Outcome::Exited);
    }

    Nvx::Util::NativeMachine m_machine;
    TestFolder m_folder;
    QStringList m_caseKeys;
};

NVX_GUILESS_TEST(tst_cad_search_registry)
#include "tst_cad_search_registry.moc"
