#include "cad/creo/protk_file.h"
#include "support/test_class.h"

#include <QDir>
#include <QTest>

using namespace Nvx::Cad;
using namespace Qt::Literals::StringLiterals;

class tst_creo_names : public QObject
{
    Q_OBJECT

private slots:
    void thePathOfProtkDependsOnTheRelease_data()
    {
        QTest::addColumn<QString>("installDir");
        QTest::addColumn<QString>("shipCode");
        QTest::addColumn<int>("release");
        QTest::addColumn<QString>("path");
        QTest::newRow("Creo 1.0") << u"C:\\PTC\\Creo 1.0\\Parametric"_s << u"F000"_s << 1
                                  << u"C:\\PTC\\Creo 1.0\\Common Files/F000/text/protk.dat"_s;
        QTest::newRow("Creo 2.0") << u"C:\\PTC\\Creo 2.0\\Parametric"_s << u"M010"_s << 2
                                  << u"C:\\PTC\\Creo 2.0\\Common Files/M010/text/protk.dat"_s;
        QTest::newRow("Creo 3.0 has no ship code") << u"C:\\PTC\\Creo 3.0\\Parametric"_s << u"M010"_s << 3
                                                   << u"C:\\PTC\\Creo 3.0\\Common Files/text/protk.dat"_s;
        QTest::newRow("Creo 2.0 without a ship code") << u"C:\\PTC\\Creo 2.0\\Parametric"_s << QString() << 2
                                                      << u"C:\\PTC\\Creo 2.0\\Common Files//text/protk.dat"_s;
        QTest::newRow("every occurrence is replaced") << u"C:\\Parametric\\xParametricx"_s << u"M010"_s << 3
                                                      << u"C:\\Common Files\\xCommon Filesx/text/protk.dat"_s;
        QTest::newRow("case matters") << u"C:\\PARAMETRIC\\parametric"_s << u"M010"_s << 3
                                      << u"C:\\PARAMETRIC\\parametric/text/protk.dat"_s;
        QTest::newRow("a trailing separator is preserved")
            << u"C:\\Creo\\Parametric\\"_s << u"M010"_s << 3 << u"C:\\Creo\\Common Files\\/text/protk.dat"_s;
        QTest::newRow("other scripts") << u"C:\\日本 größe\\Parametric"_s << u"M010"_s << 2
                                       << u"C:\\日本 größe\\Common Files/M010/text/protk.dat"_s;
    }

    void thePathOfProtkDependsOnTheRelease()
    {
        QFETCH(const QString, installDir);
        QFETCH(const QString, shipCode);
        QFETCH(const int, release);
        QFETCH(const QString, path);
        QCOMPARE(protkPath(installDir, shipCode, release), QDir::toNativeSeparators(path));
    }

    void theLibraryIsNamedByItsRelease()
    {
        QCOMPARE(creoLauncherLibrary(1), u"NVX_2017_Creo10.dll"_s);
        QCOMPARE(creoLauncherLibrary(2), u"NVX_2017_Creo20.dll"_s);
        QCOMPARE(creoLauncherLibrary(3), u"NVX_2017_Creo30.dll"_s);
    }

    void theEntryHasSixLines()
    {
        QCOMPARE(creoEntry(u"C:\\bin"_s, u"C:\\Program Files\\NVX"_s, 3),
                 u"name NVX 2017\r\n"
                 "startup DLL\r\n"
                 "exec_file C:\\bin\\Launchers\\ProEngineer-Wildfire\\Creo3\\NVX_2017_Creo30.dll\r\n"
                 "text_dir C:\\Program Files\\NVX\\Text\r\n"
                 "revision 20\r\n"
                 "end\r\n"_s);
    }
};

NVX_GUILESS_TEST(tst_creo_names)
#include "tst_creo_names.moc"
