#include "cad/creo/creo_names.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QDir>
#include <QTest>

class tst_creo_names : public QObject
{
    Q_OBJECT

private slots:
    void protkLiesWhereTheReleaseKeepsIt_data()
    {
        QTest::addColumn<QString>("installDir");
        QTest::addColumn<QString>("shipCode");
        QTest::addColumn<int>("release");
        QTest::addColumn<QString>("path");
        QTest::newRow("Creo 1.0") << text("C:\\PTC\\Creo 1.0\\Parametric") << text("F000") << 1
                                  << text("C:\\PTC\\Creo 1.0\\Common Files/F000/text/protk.dat");
        QTest::newRow("Creo 2.0") << text("C:\\PTC\\Creo 2.0\\Parametric") << text("M010") << 2
                                  << text("C:\\PTC\\Creo 2.0\\Common Files/M010/text/protk.dat");
        QTest::newRow("Creo 3.0 has no ship code")
            << text("C:\\PTC\\Creo 3.0\\Parametric") << text("M010") << 3
            << text("C:\\PTC\\Creo 3.0\\Common Files/text/protk.dat");
        QTest::newRow("no ship code recorded") << text("C:\\PTC\\Creo 2.0\\Parametric") << QString() << 2
                                               << text("C:\\PTC\\Creo 2.0\\Common Files//text/protk.dat");
        QTest::newRow("every occurrence") << text("C:\\Parametric\\xParametricx") << text("M010") << 3
                                          << text("C:\\Common Files\\xCommon Filesx/text/protk.dat");
        QTest::newRow("with case") << text("C:\\PARAMETRIC\\parametric") << text("M010") << 3
                                   << text("C:\\PARAMETRIC\\parametric/text/protk.dat");
        QTest::newRow("a separator at the end is kept") << text("C:\\Creo\\Parametric\\") << text("M010") << 3
                                                        << text("C:\\Creo\\Common Files\\/text/protk.dat");
        QTest::newRow("other alphabets") << text("C:\\日本 größe\\Parametric") << text("M010") << 2
                                         << text("C:\\日本 größe\\Common Files/M010/text/protk.dat");
    }

    void protkLiesWhereTheReleaseKeepsIt()
    {
        QFETCH(const QString, installDir);
        QFETCH(const QString, shipCode);
        QFETCH(const int, release);
        QFETCH(const QString, path);
        QCOMPARE(protkPath(installDir, shipCode, release), QDir::toNativeSeparators(path));
    }

    void theLibraryIsNamedByItsRelease()
    {
        QCOMPARE(creoLauncherLibrary(1), text("NVX_2017_Creo10.dll"));
        QCOMPARE(creoLauncherLibrary(2), text("NVX_2017_Creo20.dll"));
        QCOMPARE(creoLauncherLibrary(3), text("NVX_2017_Creo30.dll"));
    }

    void theEntryHasSixLines()
    {
        QCOMPARE(creoEntry(text("C:\\bin"), text("C:\\Program Files\\NVX"), 3),
                 text("name NVX 2017\r\n"
                      "startup DLL\r\n"
                      "exec_file C:\\bin\\Launchers\\ProEngineer-Wildfire\\Creo3\\NVX_2017_Creo30.dll\r\n"
                      "text_dir C:\\Program Files\\NVX\\Text\r\n"
                      "revision 20\r\n"
                      "end\r\n"));
    }
};

NVX_GUILESS_TEST(tst_creo_names)
#include "tst_creo_names.moc"
