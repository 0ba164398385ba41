#include "setup/association_scripts.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

namespace {

const AssociationNames names = associationNamesOf(QStringLiteral("2017"));
const QString escaped = QStringLiteral("C:\\\\Program Files\\\\NVX");

} // namespace

class tst_association_scripts : public QObject
{
    Q_OBJECT

private slots:
    void theNamesAreThoseOfTheRelease_data()
    {
        QTest::addColumn<QString>("release");
        QTest::addColumn<QString>("programId");
        QTest::addColumn<QString>("description");
        QTest::newRow("this one") << text("2017") << text("NVX2017") << text("NVX 2017");
        QTest::newRow("another") << text("2019") << text("NVX2019") << text("NVX 2019");
    }

    void theNamesAreThoseOfTheRelease()
    {
        QFETCH(QString, release);
        QTEST(associationNamesOf(release).programId, "programId");
        QTEST(associationNamesOf(release).description, "description");
    }

    void theRemovalIsThisScript()
    {
        QCOMPARE(
            removalScript(names),
            QStringList(
                {text("Windows Registry Editor Version 5.00"), text("[-HKEY_CLASSES_ROOT\\.nvxst]"),
                 text("[-HKEY_CLASSES_ROOT\\WOW6432Node\\.nvxst]"),
                 text("[-HKEY_CURRENT_"
                      "USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.nvxst]"),
                 text("[-HKEY_CURRENT_"
                      "USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RecentDocs\\.nvxst]"),
                 text("[-HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.nvxst]"),
                 text("[-HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.nvxst]"),
                 text("[-HKEY_CLASSES_ROOT\\.nvz]"), text("[-HKEY_CLASSES_ROOT\\WOW6432Node\\.nvz]"),
                 text("[-HKEY_CURRENT_"
                      "USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.nvz]"),
                 text("[-HKEY_CURRENT_"
                      "USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\RecentDocs\\.nvz]"),
                 text("[-HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.nvz]"),
                 text("[-HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.nvz]"),
                 text("[-HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.tpl]")}));
    }

    void aTypeThatTheProductOpensTakesFourteenLines_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<QString>("extension");
        QTest::newRow("study") << 1 << text("nvxst");
        QTest::newRow("compressed project") << 15 << text("nvz");
    }

    void aTypeThatTheProductOpensTakesFourteenLines()
    {
        QFETCH(int, first);
        QFETCH(QString, extension);
        const QStringList expected = {
            text("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.EXT]"),
            text("@=\"NVX2017.EXT\""),
            text("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.EXT\\NVX2017.EXT]"),
            text("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.EXT\\NVX2017.EXT\\ShellNew]"),
            text("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.EXT]"),
            text("@=\"NVX 2017\""),
            text("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.EXT\\DefaultIcon]"),
            text("@=\"\\\"C:\\\\Program Files\\\\NVX\\\\EXT.ico\\\"\""),
            text("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.EXT\\shell]"),
            text("@=\"Open\""),
            text("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.EXT\\shell\\Open]"),
            text("@=\"NVX 2017\""),
            text("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.EXT\\shell\\Open\\command]"),
            text("@=\"\\\"C:\\\\Program Files\\\\NVX\\\\NVX.exe\\\" \\\"%1\\\"\""),
        };
        QCOMPARE(creationScript(names, escaped).mid(first, 14),
                 QStringList(expected).replaceInStrings(text("EXT"), extension));
    }

    void aTypeThatTheProductDoesNotOpenTakesEightLines_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("icon");
        QTest::newRow("template") << 29 << text("tpl") << text("nvxtpl");
        QTest::newRow("package") << 37 << text("nvxpkg") << text("nvxpkg");
    }

    void aTypeThatTheProductDoesNotOpenTakesEightLines()
    {
        QFETCH(int, first);
        QFETCH(QString, extension);
        QFETCH(QString, icon);
        const QStringList expected = {
            text("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.EXT]"),
            text("@=\"NVX2017.EXT\""),
            text("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.EXT\\NVX2017.EXT]"),
            text("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\.EXT\\NVX2017.EXT\\ShellNew]"),
            text("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.EXT]"),
            text("@=\"NVX 2017\""),
            text("[HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\NVX2017.EXT\\DefaultIcon]"),
            text("@=\"\\\"C:\\\\Program Files\\\\NVX\\\\ICON.ico\\\"\""),
        };
        QCOMPARE(creationScript(names, escaped).mid(first, 8), QStringList(expected)
                                                                   .replaceInStrings(text("EXT"), extension)
                                                                   .replaceInStrings(text("ICON"), icon));
    }

    void theCreationIsItsHeaderAndTheFourTypes()
    {
        const QStringList lines = creationScript(names, escaped);
        QCOMPARE(lines.first(), text("Windows Registry Editor Version 5.00"));
        QCOMPARE(lines.size(), 1 + 14 + 14 + 8 + 8);
    }

    void keysNeverHoldTheInstallDir()
    {
        for (const QString &key : creationScript(names, text("HERE")).filter(text("[")))
            QVERIFY(!key.contains(text("HERE")));
    }

    void anInstallDirWithPlaceholdersStandsAsItIs()
    {
        const QStringList lines = creationScript(names, text("C:\\\\100%1 %2"));
        QCOMPARE(lines.at(8), text("@=\"\\\"C:\\\\100%1 %2\\\\nvxst.ico\\\"\""));
        QCOMPARE(lines.at(14), text("@=\"\\\"C:\\\\100%1 %2\\\\NVX.exe\\\" \\\"%1\\\"\""));
    }
};

NVX_GUILESS_TEST(tst_association_scripts)
#include "tst_association_scripts.moc"
