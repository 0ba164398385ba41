#include "cad/creo/protk_file.h"
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

const QByteArray foreign = "name Other\r\nstartup DLL\r\nexec_file C:\\other.dll\r\nend\r\n";

QByteArray ours()
{
    return Nvx::Util::toAnsi(creoEntry(u"C:\\NVX"_s, u"C:\\NVX"_s, 2)).value();
}

// The file after an install.
QByteArray installed(const QByteArray &contents)
{
    const QByteArray cleared = withoutLauncherEntries(contents);
    return withLauncherEntry(cleared, ours()).value_or(cleared);
}

// The expected result of a removal, computed the simple way: the pieces are split as Latin-1, and measured in
// the system's code page.
QByteArray expectedRemoval(const QByteArray &contents)
{
    QByteArray preserved;
    const QStringList pieces = QString::fromLatin1(contents).split(u"end\r\n"_s, Qt::SkipEmptyParts);
    for (const QString &piece : pieces) {
        const QByteArray bytes = piece.toLatin1();
        const qsizetype length = QString::fromLocal8Bit(bytes).trimmed().size();
        if (length >= 5 && !bytes.toLower().contains("nvx_2017_creo"))
            preserved += bytes + "end\r\n";
    }
    return preserved;
}

const QList<QByteArray> pieces{
    "end\r\n",
    "end\n",
    "end",
    "e",
    "nd\r\n",
    "\r\n",
    "\n",
    " ",
    "\t\v\f",
    "abcd",
    "abcde",
    "name x\r\n",
    QByteArray("\0", 1),
    "\xff\xfe",
    "\x83",
    "\203end\r\n",
    "NVX_2017_Creo",
    "nvx_2017_cREO20.dll",
    "NVX_2017_Cre",
    "$OSTRADE2017",
    "$ostrade2017",
    foreign,
    "name \x93\xfa\x96\x7b\r\nend\r\n",
    QByteArray("n\0a\0m\0e\0", 8),
    ours(),
};

} // namespace

class tst_protk_file : public QObject
{
    Q_OBJECT

private slots:
    void removalDropsTheProductsEntries_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QByteArray>("left");
        QTest::newRow("an empty file") << QByteArray() << QByteArray();
        QTest::newRow("only our entry") << ours() << QByteArray();
        QTest::newRow("ours first") << ours() + foreign << foreign;
        QTest::newRow("ours last") << foreign + ours() << foreign;
        QTest::newRow("ours between others") << foreign + ours() + foreign << foreign + foreign;
        QTest::newRow("ours twice") << ours() + ours() + foreign << foreign;
        QTest::newRow("ours of another release and folder")
            << "name x\r\nexec_file D:\\NVX_2017_Creo30.dll\r\nend\r\n" + foreign << foreign;
        QTest::newRow("ours in upper case") << ours().toUpper().replace("END\r\n", "end\r\n") << QByteArray();
        QTest::newRow("another launcher of the product")
            << QByteArray("name NVX_2016_Creo\r\nend\r\n") << QByteArray("name NVX_2016_Creo\r\nend\r\n");
        QTest::newRow("others only") << foreign + foreign << foreign + foreign;
        QTest::newRow("no end line: it gets one")
            << QByteArray("name x\r\n") << QByteArray("name x\r\nend\r\n");
        QTest::newRow("no end line, and ours") << QByteArray("name NVX_2017_Creo") << QByteArray();
        QTest::newRow("an end without a line end gets a second")
            << QByteArray("name x\r\nend") << QByteArray("name x\r\nendend\r\n");
        QTest::newRow("line ends of Unix: the file is one piece")
            << QByteArray("name x\nend\nname y\nend\n") << QByteArray("name x\nend\nname y\nend\nend\r\n");
        QTest::newRow("END in upper case does not close an entry")
            << QByteArray("name x\r\nEND\r\n") << QByteArray("name x\r\nEND\r\nend\r\n");
        QTest::newRow("a fragment of four characters") << "abcd" + QByteArray("end\r\n") + foreign << foreign;
        QTest::newRow("a fragment of five characters")
            << "abcde" + QByteArray("end\r\n") + foreign << "abcde" + QByteArray("end\r\n") + foreign;
        QTest::newRow("a fragment of four characters between blanks")
            << " \t\r\nabcd\r\n \v\fend\r\n" + foreign << foreign;
        QTest::newRow("blank lines between the entries are preserved") << foreign + "\r\n" + foreign + "\r\n"
                                                                       << foreign + "\r\n" + foreign;
        QTest::newRow("ends in a row") << QByteArray("end\r\nend\r\nend\r\n") << QByteArray();
        QTest::newRow("a word that ends in end does no harm")
            << QByteArray("text_dir C:\\legend\r\nrevision 20\r\nend\r\n")
            << QByteArray("text_dir C:\\legend\r\nrevision 20\r\nend\r\n");
    }

    void removalDropsTheProductsEntries()
    {
        QFETCH(const QByteArray, contents);
        QFETCH(const QByteArray, left);
        QCOMPARE(withoutLauncherEntries(contents), left);
    }

    // The system's code page may write a character in more than one byte.
    void aFragmentIsMeasuredInCharactersOfTheCodePage_data()
    {
        QTest::addColumn<QString>("fragment");
        QTest::addColumn<bool>("isPreserved");
        QTest::newRow("four characters") << u"äöüß"_s << false;
        QTest::newRow("five characters") << u"äöüßÄ"_s << true;
        QTest::newRow("four characters between no-break spaces") << u"\u00a0äöüß\u00a0"_s << false;
    }

    void aFragmentIsMeasuredInCharactersOfTheCodePage()
    {
        QFETCH(const QString, fragment);
        QFETCH(const bool, isPreserved);
        const std::optional<QByteArray> written = Nvx::Util::toAnsi(fragment);
        QVERIFY(written);
        const QByteArray piece = *written + "end\r\n";
        QCOMPARE(withoutLauncherEntries(piece + foreign), isPreserved ? piece + foreign : foreign);
    }

    void entriesOfOthersArePreservedByteForByte_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("UTF-8") << QByteArray("Gr\xc3\xb6\xc3\x9f"
                                             "e \xe6\x97\xa5\xe6\x9c\xac");
        QTest::newRow("Latin-1") << QByteArray("Gr\xf6\xdf"
                                               "e\xa0\x85");
        QTest::newRow("Shift-JIS with a backslash inside") << QByteArray("\x95\x5c\x8e\xa6\x83\x65");
        QTest::newRow("bytes that are not valid text") << QByteArray("\xff\xfe\x80\xc0\x00\x01\x1a\x7f", 8);
        QTest::newRow("UTF-16") << QByteArray("\xff\xfen\0a\0m\0e\0\r\0\n\0", 14);
        QTest::newRow("lone line ends") << QByteArray("a\rb\nc\n\rd");
    }

    void entriesOfOthersArePreservedByteForByte()
    {
        QFETCH(const QByteArray, name);
        const QByteArray other = "name " + name + "\r\nstartup DLL\r\nend\r\n";
        QCOMPARE(withoutLauncherEntries(other), other);
        QCOMPARE(withoutLauncherEntries(ours() + other + ours()), other);
        QCOMPARE(installed(other + ours()), ours() + other);
    }

    void theEntryIsPrependedUnlessTheMarkerIsInsideTheFile_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<bool>("added");
        QTest::newRow("an empty file") << QByteArray() << true;
        QTest::newRow("no marker") << foreign << true;
        QTest::newRow("the marker at the very start") << "$OSTRADE2017" + foreign << true;
        QTest::newRow("the marker at the second byte") << " $OSTRADE2017" + foreign << false;
        QTest::newRow("the marker in the middle") << foreign + "text_dir $OSTRADE2017\\Text\r\nend\r\n"
                                                  << false;
        QTest::newRow("the marker at the start and again later")
            << "$OSTRADE2017 $OSTRADE2017" + foreign << true;
        QTest::newRow("the marker of another release") << foreign + "$OSTRADE2016" << true;
        QTest::newRow("the marker in another case") << foreign + "$Ostrade2017" << true;
    }

    void theEntryIsPrependedUnlessTheMarkerIsInsideTheFile()
    {
        QFETCH(const QByteArray, contents);
        QFETCH(const bool, added);
        const std::optional<QByteArray> made = withLauncherEntry(contents, ours());
        QCOMPARE(made.has_value(), added);
        if (made)
            QCOMPARE(*made, ours() + contents);
    }

    // Each of our entries contains the launcher's name and is a piece of its own, and no "end" overlaps
    // another one. The following therefore holds for any bytes.
    void forAnyBytes_data() { addSeedRows(40); }

    void forAnyBytes()
    {
        QFETCH(const quint32, seed);
        RandomText random(seed);
        for (int i = 0; i < 500; ++i) {
            const QByteArray contents = randomBytes(random, pieces);
            const QByteArray removed = withoutLauncherEntries(contents);
            QCOMPARE(removed, expectedRemoval(contents));
            QCOMPARE(withoutLauncherEntries(removed), removed);
            const QByteArray once = installed(contents);
            QCOMPARE(installed(once), once);
            QCOMPARE(withoutLauncherEntries(once), removed);
        }
    }

    void fiftyMegabytesTakeLessThanAMinute()
    {
        QByteArray contents = foreign.repeated(muchText / static_cast<int>(foreign.size()));
        contents.insert(contents.size() / 2 / foreign.size() * foreign.size(), ours());
        QElapsedTimer timer;
        timer.start();
        const QByteArray made = installed(contents);
        const qint64 elapsed = timer.elapsed();
        qInfo("%lld bytes in %lld ms", contents.size(), elapsed);
        QVERIFY(made.startsWith(ours()));
        QCOMPARE(made.size(), contents.size());
        QVERIFY2(elapsed < 60000, qPrintable(QString::number(elapsed)));
    }

    void fiftyMegabytesWithoutAnEndTakeLessThanAMinute()
    {
        // The beginning of the launcher's name, repeated, is the worst case for the search.
        const QByteArray contents = QByteArray("NVX_2017_Cre").repeated(muchText / 12);
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(withoutLauncherEntries(contents), contents + "end\r\n");
        QVERIFY2(timer.elapsed() < 60000, qPrintable(QString::number(timer.elapsed())));
    }
};

NVX_GUILESS_TEST(tst_protk_file)
#include "tst_protk_file.moc"
