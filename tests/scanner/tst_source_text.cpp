#include "scanner/source_text.h"
#include "support/test_class.h"

#include <QTest>

using Scan::decodeEightBit;
using Scan::toSourceText;

class tst_source_text : public QObject
{
    Q_OBJECT

private slots:
    // Within a word that is no UTF-8, whatever the byte is.
    void bytesThatAreNoUtf8AreOfWindows1252_data()
    {
        QTest::addColumn<int>("byte");
        QTest::addColumn<QString>("character");
        const QString characters = QStringLiteral("€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F"
                                                  "\u0090‘’“”•–—˜™š›œ\u009DžŸ");
        QCOMPARE(characters.size(), qsizetype(32));
        for (int byte = 0x20; byte <= 0xFF; ++byte) {
            const bool special = byte >= 0x80 && byte < 0xA0;
            QTest::addRow("%x", unsigned(byte))
                << byte << QString(special ? characters.at(byte - 0x80) : QChar(char16_t(byte)));
        }
    }

    void bytesThatAreNoUtf8AreOfWindows1252()
    {
        QFETCH(const int, byte);
        QFETCH(const QString, character);
        const QByteArray word = QByteArray("\xFC") + char(byte) + '.';
        const QString text = QStringLiteral("ü") + character + u'.';
        QCOMPARE(decodeEightBit(word), text);
        QCOMPARE(toSourceText(word), text.toUtf8());
    }

    void sourceTextIsUtf8WithoutAByteOrderMark_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("nothing") << QByteArray() << QByteArray();
        QTest::newRow("letters") << QByteArray("abc") << QByteArray("abc");
        QTest::newRow("UTF-8") << QByteArray("a\xC3\xBC") << QByteArray("a\xC3\xBC");
        QTest::newRow("a byte order mark alone") << QByteArray("\xEF\xBB\xBF") << QByteArray();
        QTest::newRow("UTF-8 behind a byte order mark") << QByteArray("\xEF\xBB\xBF"
                                                                      "a\xC3\xBC")
                                                        << QByteArray("a\xC3\xBC");
        QTest::newRow("a second byte order mark is text") << QByteArray("\xEF\xBB\xBF\xEF\xBB\xBF"
                                                                        "a")
                                                          << QByteArray("\xEF\xBB\xBF"
                                                                        "a");
        QTest::newRow("a wrong byte behind a byte order mark") << QByteArray("\xEF\xBB\xBF"
                                                                             "a\xFC"
                                                                             "b")
                                                               << QByteArray("a\xEF\xBF\xBD"
                                                                             "b");
        QTest::newRow("a replacement character of the file's own")
            << QByteArray("a\xEF\xBF\xBD") << QByteArray("a\xEF\xBF\xBD");
        QTest::newRow("half a byte order mark") << QByteArray("\xEF\xBB"
                                                              "a")
                                                << QByteArray("\xC3\xAF\xC2\xBB"
                                                              "a");
        QTest::newRow("UTF-8 and a wrong byte")
            << QByteArray("\xC3\xBC\xFC") << QByteArray("\xC3\x83\xC2\xBC\xC3\xBC");
        QTest::newRow("a character cut off") << QByteArray("a\xC3") << QByteArray("a\xC3\x83");
    }

    void sourceTextIsUtf8WithoutAByteOrderMark()
    {
        QFETCH(const QByteArray, contents);
        QTEST(toSourceText(contents), "text");
    }
};

NVX_GUILESS_TEST(tst_source_text)
#include "tst_source_text.moc"
