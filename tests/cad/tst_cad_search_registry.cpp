// The same cases on the registry of the machine, imported by the Registry Editor.

#include "cad/registry_listing.h"
#include "cad_case.h"
#include "nvx_util/native_machine.h"
#include "nvx_util/registry_key.h"
#include "registry_script.h"
#include "support/case_folders.h"
#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QTest>

using namespace Nvx::Cad;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString header = u"Windows Registry Editor Version 5.00\r\n\r\n"_s;

// All keys that the search reads, except the uninstall keys of product codes.
const QStringList searchedKeys{u"HKEY_LOCAL_MACHINE\\Software\\Velmora\\Brevant"_s,
                               u"HKEY_LOCAL_MACHINE\\Software\\PTC"_s,
                               u"HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\PTC"_s,
                               u"HKEY_LOCAL_MACHINE\\Software\\SolidWorks"_s,
                               u"HKEY_LOCAL_MACHINE\\Software\\Unigraphics Solutions"_s,
                               u"HKEY_LOCAL_MACHINE\\Software\\Velmora\\Tamsel"_s,
                               u"HKEY_LOCAL_MACHINE\\Software\\Classes\\SpaceClaim.Location"_s};

QString removalOf(const QStringList &keys)
{
    QString script;
    for (const QString &key : keys)
        script += u"[-%1]\r\n"_s.arg(key);
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

    void everyCaseHasTheExpectedResult_data() { addCaseRows(inCheckout(CASES)); }

    void everyCaseHasTheExpectedResult()
    {
        QFETCH(QString, folder);
        const CadCase expected = CadCase::read(folder);
        TableRegistry table;
        importScript(expected.script, table);
        m_caseKeys = table.keyPaths();
        import(expected.script.section(u'\n', 1).replace("\n"_L1, "\r\n"_L1));
        const CadSearch search = searchCadPackages(MachineRegistryListing(), u"Found "_s);
        QCOMPARE(described(search), expected.expected);
        if (!expected.log.isEmpty())
            QCOMPARE(wholeLog(search), expected.log);
    }

    void theSearchCreatesNoKeys()
    {
        searchCadPackages(MachineRegistryListing(), QString());
        for (const QString &key : searchedKeys) {
            const QString parent = key.section(u'\\', 0, -2);
            const QString name = key.section(u'\\', -1);
            QVERIFY(!Nvx::Util::RegistryKey(parent).subKeyNames().contains(name, Qt::CaseInsensitive));
        }
    }

private:
    void import(const QString &body)
    {
        const QString file = m_folder.path(u"case.reg"_s);
        const QString script = QChar(0xFEFF) + header + body;
        QVERIFY(writeBytes(file, QByteArray(reinterpret_cast<const char *>(script.utf16()),
                                            script.size() * qsizetype(sizeof(char16_t)))));
        Nvx::Util::ProgramCall call;
        call.program = u"regedit.exe"_s;
        call.arguments = {u"/S"_s, file};
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
