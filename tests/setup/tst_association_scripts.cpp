#include "setup/association_scripts.h"
#include "support/test_class.h"

#include <QTest>

using namespace Nvx::Setup;
using namespace Qt::Literals::StringLiterals;

namespace {

const AssociationNames names = associationNamesOf(u"2017"_s);
const QString escaped = u"C:\\\\Program Files\\\\NVX"_s;

} // namespace

class tst_association_scripts : public QObject
{
    Q_OBJECT

private slots:
    void theNamesContainTheRelease_data()
    {
        QTest::addColumn<QString>("release");
        QTest::addColumn<QString>("programId");
        QTest::addColumn<QString>("description");
        QTest::newRow("this release") << u"2017"_s << u"NVX2017"_s << u"NVX 2017"_s;
        QTest::newRow("another release") << u"2019"_s << u"NVX2019"_s << u"NVX 2019"_s;
    }

    void theNamesContainTheRelease()
    {
        QFETCH(QString, release);
        QTEST(associationNamesOf(release).programId, "programId");
        QTEST(associationNamesOf(release).description, "description");
    }

    void theRemovalScriptIsComplete()
    {
        QCOMPARE(removalScript(names),
                 QStringList(
                     {u"Windows Registry Editor Version 5.00"_s, u"[-HKEY_CLASSES_ROOT\\.nvxst]"_s,
                      u"[-HKEY_CLASSES_ROOT\\WOW6432Node\\.nvxst]"_s,
                      u"[-HKEY_CURRENT_"
                      "USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.nvxst]"_s,
                      u"[-HKEY_CURRENT_"
                      "USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RecentDocs\\.nvxst]"_s,
                      u"[-HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.nvxst]"_s,
                      u"[-HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.nvxst]"_s,
                      u"[-HKEY_CLASSES_ROOT\\.nvz]"_s, u"[-HKEY_CLASSES_ROOT\\WOW6432Node\\.nvz]"_s,
                      u"[-HKEY_CURRENT_"
                      "USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.nvz]"_s,
                      u"[-HKEY_CURRENT_"
                      "USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RecentDocs\\.nvz]"_s,
                      u"[-HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.nvz]"_s,
                      u"[-HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.nvz]"_s,
                      u"[-HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.tpl]"_s}));
    }

    void aTypeThatTheProductOpensHasFourteenLines_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<QString>("extension");
        QTest::newRow("study") << 1 << u"nvxst"_s;
        QTest::newRow("compressed project") << 15 << u"nvz"_s;
    }

    void aTypeThatTheProductOpensHasFourteenLines()
    {
        QFETCH(int, first);
        QFETCH(QString, extension);
        const QStringList expected = {
            u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.EXT]"_s,
            u"@=\"NVX2017.EXT\""_s,
            u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.EXT\\NVX2017.EXT]"_s,
            u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.EXT\\NVX2017.EXT\\ShellNew]"_s,
            u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.EXT]"_s,
            u"@=\"NVX 2017\""_s,
            u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.EXT\\DefaultIcon]"_s,
            u"@=\"\\\"C:\\\\Program Files\\\\NVX\\\\EXT.ico\\\"\""_s,
            u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.EXT\\shell]"_s,
            u"@=\"Open\""_s,
            u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.EXT\\shell\\Open]"_s,
            u"@=\"NVX 2017\""_s,
            u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.EXT\\shell\\Open\\command]"_s,
            u"@=\"\\\"C:\\\\Program Files\\\\NVX\\\\NVX.exe\\\" \\\"%1\\\"\""_s,
        };
        QCOMPARE(creationScript(names, escaped).mid(first, 14),
                 QStringList(expected).replaceInStrings(u"EXT"_s, extension));
    }

    void aTypeThatTheProductDoesNotOpenHasEightLines_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("icon");
        QTest::newRow("template") << 29 << u"tpl"_s << u"nvxtpl"_s;
        QTest::newRow("package") << 37 << u"nvxpkg"_s << u"nvxpkg"_s;
    }

    void aTypeThatTheProductDoesNotOpenHasEightLines()
    {
        QFETCH(int, first);
        QFETCH(QString, extension);
        QFETCH(QString, icon);
        const QStringList expected = {
            u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.EXT]"_s,
            u"@=\"NVX2017.EXT\""_s,
            u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.EXT\\NVX2017.EXT]"_s,
            u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.EXT\\NVX2017.EXT\\ShellNew]"_s,
            u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.EXT]"_s,
            u"@=\"NVX 2017\""_s,
            u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.EXT\\DefaultIcon]"_s,
            u"@=\"\\\"C:\\\\Program Files\\\\NVX\\\\ICON.ico\\\"\""_s,
        };
        QCOMPARE(
            creationScript(names, escaped).mid(first, 8),
            QStringList(expected).replaceInStrings(u"EXT"_s, extension).replaceInStrings(u"ICON"_s, icon));
    }

    void theCreationScriptIsAHeaderAndFourTypes()
    {
        const QStringList lines = creationScript(names, escaped);
        QCOMPARE(lines.first(), u"Windows Registry Editor Version 5.00"_s);
        QCOMPARE(lines.size(), 1 + 14 + 14 + 8 + 8);
    }

    void noKeyContainsTheInstallDir()
    {
        for (const QString &key : creationScript(names, u"HERE"_s).filter(u"["_s))
            QVERIFY(!key.contains(u"HERE"_s));
    }

    void placeholdersInTheInstallDirAreNotReplaced()
    {
        const QStringList lines = creationScript(names, u"C:\\\\100%1 %2"_s);
        QCOMPARE(lines.at(8), u"@=\"\\\"C:\\\\100%1 %2\\\\nvxst.ico\\\"\""_s);
        QCOMPARE(lines.at(14), u"@=\"\\\"C:\\\\100%1 %2\\\\NVX.exe\\\" \\\"%1\\\"\""_s);
    }
};

NVX_GUILESS_TEST(tst_association_scripts)
#include "tst_association_scripts.moc"
