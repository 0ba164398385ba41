#include "cad/nx/nx_custom_dirs.h"
#include "nvx_util/code_page.h"
#include "random_bytes.h"
#include "support/processor_time.h"
#include "support/test_class.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Nvx::Cad;
using namespace Qt::Literals::StringLiterals;

namespace {

// Less with sanitizers, where it is about the memory and not the time.
constexpr int muchText = 50 * 1024 * 1024 / sanitizerFactor;

const QString installDir = u"C:\\Prog\\NVX"_s;
const QString key = u"HKEY_LOCAL_MACHINE\\Software\\Unigraphics Solutions\\NX\\9.5"_s;

QByteArray ourLine()
{
    return Nvx::Util::toAnsi(customDirsLine(installDir, key)).value();
}

QByteArray installed(const QByteArray &contents)
{
    return holdsCustomDirsLine(contents, customDirsLine(installDir, key)) ? contents : contents + ourLine();
}

// An install adds an empty line, which a removal does not recognise as ours. It is left over, unless the last
// line of the file had no end and contained the install dir: then the two are one line, which is removed.
QByteArray expectedAfterBoth(const QByteArray &contents)
{
    const QByteArray removed = withoutCustomDirsLines(contents, installDir);
    const bool isLastLineOurs =
        !contents.endsWith('\n') &&
        contents.mid(contents.lastIndexOf('\n') + 1).toLower().contains("c:\\prog\\nvx");
    const bool isAdded = installed(contents) != contents;
    return isAdded && !isLastLineOurs ? removed + "\r\n" : removed;
}

QByteArray expectedRemoval(const QByteArray &contents)
{
    QByteArray preserved;
    QByteArray rest = contents;
    while (!rest.isEmpty()) {
        const qsizetype newLine = rest.indexOf('\n');
        const QByteArray line = newLine < 0 ? rest : rest.left(newLine + 1);
        rest.remove(0, line.size());
        if (!line.toLower().contains("c:\\prog\\nvx"))
            preserved += line;
    }
    return preserved;
}

const QList<QByteArray> pieces{
    "\r\n",
    "\n",
    "\r",
    " ",
    "# comment",
    "C:\\Siemens\\addins",
    "\x83",
    "\xff\xfe",
    QByteArray("\0", 1),
    "\203C:\\Prog\\NVX",
    "C:\\Prog\\NVX",
    "c:\\prog\\nvx\\other",
    "C:\\Prog\\NV",
    "\\Launchers\\UGNX",
    "\\NX9",
    "C:\\Prog\\NVX\\Launchers\\UGNX\\NX9",
    ourLine(),
    ourLine().toUpper(),
    ourLine().chopped(2),
};

} // namespace

class tst_nx_custom_dirs : public QObject
{
    Q_OBJECT

private slots:
    void theSubFolderIsThatOfTheVersionInTheKey_data()
    {
        QTest::addColumn<QString>("version");
        QTest::addColumn<QString>("subFolder");
        QTest::newRow("8.0") << u"8.0"_s << u"\\NX8"_s;
        QTest::newRow("8.5") << u"8.5"_s << u"\\NX8"_s;
        QTest::newRow("8.5.0") << u"8.5.0"_s << u"\\NX8"_s;
        QTest::newRow("9.0") << u"9.0"_s << u"\\NX9"_s;
        QTest::newRow("9.5") << u"9.5"_s << u"\\NX9"_s;
        QTest::newRow("9.5.0") << u"9.5.0"_s << u"\\NX9"_s;
        QTest::newRow("10.0") << u"10.0"_s << u"\\NX10"_s;
        QTest::newRow("10.5") << u"10.5"_s << u"\\NX10"_s;
        QTest::newRow("10.5.0") << u"10.5.0"_s << u"\\NX10"_s;
        QTest::newRow("11.0") << u"11.0"_s << QString();
        QTest::newRow("a later one overrides an earlier") << u"10.0\\8.5"_s << u"\\NX10"_s;
        QTest::newRow("none") << QString() << QString();
    }

    void theSubFolderIsThatOfTheVersionInTheKey()
    {
        QFETCH(const QString, version);
        QFETCH(const QString, subFolder);
        const QString registryKey = u"HKEY_LOCAL_MACHINE\\Software\\Unigraphics Solutions\\NX\\"_s + version;
        QCOMPARE(nxSubFolder(registryKey), subFolder);
        QCOMPARE(customDirsLine(installDir, registryKey),
                 u"\r\nC:\\Prog\\NVX\\Launchers\\UGNX"_s + subFolder + u"\r\n"_s);
    }

    void theLineIsFoundOnlyWithItsEnds_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<bool>("found");
        QTest::newRow("an empty file") << QByteArray() << false;
        QTest::newRow("the line alone") << ourLine() << true;
        QTest::newRow("after others") << "x\r\n" + ourLine() + "y" << true;
        QTest::newRow("in another case") << "x" + ourLine().toLower() << true;
        QTest::newRow("the first line of the file has no end before it") << ourLine().mid(2) << false;
        QTest::newRow("without an end") << ourLine().chopped(2) << false;
        QTest::newRow("with the line ends of Unix") << ourLine().replace('\r', QByteArray()) << false;
        QTest::newRow("of another version") << ourLine().replace("NX9", "NX10") << false;
    }

    void theLineIsFoundOnlyWithItsEnds()
    {
        QFETCH(const QByteArray, contents);
        QFETCH(const bool, found);
        QCOMPARE(holdsCustomDirsLine(contents, customDirsLine(installDir, key)), found);
    }

    void removalDropsTheLinesThatContainTheInstallDir_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QByteArray>("left");
        QTest::newRow("an empty file") << QByteArray() << QByteArray();
        QTest::newRow("our line: the empty line before it is preserved") << ourLine() << QByteArray("\r\n");
        QTest::newRow("between others") << "a\r\n" + ourLine() + "b\r\n" << QByteArray("a\r\n\r\nb\r\n");
        QTest::newRow("another line below the install dir in another case")
            << QByteArray("a\r\nc:\\prog\\nvx\\other\r\nb\r\n") << QByteArray("a\r\nb\r\n");
        QTest::newRow("a longer folder name") << QByteArray("C:\\Prog\\NVX2\r\nb\n") << QByteArray("b\n");
        QTest::newRow("its parent folder") << QByteArray("C:\\Prog\r\n") << QByteArray("C:\\Prog\r\n");
        QTest::newRow("within a line") << QByteArray("# C:\\Prog\\NVX\\x is ours\nb") << QByteArray("b");
        QTest::newRow("the last line without an end")
            << QByteArray("a\r\nC:\\Prog\\NVX") << QByteArray("a\r\n");
        QTest::newRow("no line end") << QByteArray("a") << QByteArray("a");
        QTest::newRow("only line ends") << QByteArray("\r\n\n\r\r\n") << QByteArray("\r\n\n\r\r\n");
    }

    void removalDropsTheLinesThatContainTheInstallDir()
    {
        QFETCH(const QByteArray, contents);
        QFETCH(const QByteArray, left);
        QCOMPARE(withoutCustomDirsLines(contents, installDir), left);
    }

    void linesOfOthersArePreservedByteForByte_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("UTF-8") << QByteArray("C:\\Gr\xc3\xb6\xc3\x9f"
                                             "e\\\xe6\x97\xa5\xe6\x9c\xac\r\n");
        QTest::newRow("Latin-1") << QByteArray("C:\\Gr\xf6\xdf"
                                               "e\r\n");
        QTest::newRow("Shift-JIS with a backslash inside") << QByteArray("C:\\\x95\x5c\x8e\xa6\r\n");
        QTest::newRow("bytes that are not valid text") << QByteArray("\xff\xfe\x80\xc0\x00\x01\x1a\x7f\n", 9);
        QTest::newRow("no line end") << QByteArray("C:\\\xe4");
    }

    void linesOfOthersArePreservedByteForByte()
    {
        QFETCH(const QByteArray, line);
        QCOMPARE(withoutCustomDirsLines(line, installDir), line);
        QCOMPARE(withoutCustomDirsLines(ourLine().mid(2) + line, installDir), line);
        QVERIFY(installed(line).startsWith(line));
    }

    void anInstallDirWithAnUmlautIsFoundInTheCodePage()
    {
        const QString folder = u"C:\\Größe"_s;
        const QByteArray line = Nvx::Util::toAnsi(customDirsLine(folder, key)).value();
        QVERIFY(holdsCustomDirsLine("a" + line, customDirsLine(u"C:\\GRÖße"_s, key)));
        QCOMPARE(withoutCustomDirsLines("a\r\n" + line.mid(2), u"c:\\grÖSSe"_s), "a\r\n" + line.mid(2));
        QCOMPARE(withoutCustomDirsLines("a\r\n" + line.mid(2), u"c:\\grÖße"_s), QByteArray("a\r\n"));
    }

    void anInstallDirThatTheCodePageCannotEncodeIsInNoLine()
    {
        const QByteArray contents("a\r\nC:\\?\r\nC:\\\xef\xbf\xbd\r\n");
        QCOMPARE(withoutCustomDirsLines(contents, u"C:\\"_s + QChar(0xD800)), contents);
    }

    void forAnyBytes_data() { addSeedRows(40); }

    void forAnyBytes()
    {
        QFETCH(const quint32, seed);
        RandomText random(seed);
        for (int i = 0; i < 500; ++i) {
            const QByteArray contents = randomBytes(random, pieces);
            const QByteArray removed = withoutCustomDirsLines(contents, installDir);
            QCOMPARE(removed, expectedRemoval(contents));
            QCOMPARE(withoutCustomDirsLines(removed, installDir), removed);
            const QByteArray once = installed(contents);
            QCOMPARE(installed(once), once);
            QCOMPARE(withoutCustomDirsLines(once, installDir), expectedAfterBoth(contents));
        }
    }

    void fiftyMegabytesTakeLessThanAMinute()
    {
        const QByteArray line("C:\\Siemens\\addins\r\n");
        const QByteArray contents = line.repeated(muchText / static_cast<int>(line.size()));
        QElapsedTimer timer;
        timer.start();
        const QByteArray left = withoutCustomDirsLines(installed(contents), installDir);
        const qint64 elapsed = timer.elapsed();
        qInfo("%lld bytes in %lld ms", contents.size(), elapsed);
        QCOMPARE(left, contents + "\r\n");
        QVERIFY2(elapsed < 60000, qPrintable(QString::number(elapsed)));
    }
};

NVX_GUILESS_TEST(tst_nx_custom_dirs)
#include "tst_nx_custom_dirs.moc"
