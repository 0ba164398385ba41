#include "scanner/source_text.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Scan::decodeEightBit;
using Scan::toSourceText;

class tst_source_text : public QObject
{
    Q_OBJECT

private slots:
    // Every byte in a word that is not UTF-8.
    void bytesThatAreNotUtf8AreReadAsWindows1252_data()
    {
        QTest::addColumn<int>("byte");
        QTest::addColumn<QString>("character");
        const QString characters = u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F"
                                   "\u0090‘’“”•–—˜™š›œ\u009DžŸ"_s;
        QCOMPARE(characters.size(), qsizetype(32));
        for (int byte = 0x20; byte <= 0xFF; ++byte) {
            const bool special = byte >= 0x80 && byte < 0xA0;
            QTest::addRow("%x", unsigned(byte))
                << byte << QString(special ? characters.at(byte - 0x80) : QChar(char16_t(byte)));
        }
    }

    void bytesThatAreNotUtf8AreReadAsWindows1252()
    {
        QFETCH(const int, byte);
        QFETCH(const QString, character);
        const QByteArray word = QByteArray("\xFC") + char(byte) + '.';
        const QString text = u"ü"_s + character + u'.';
        QCOMPARE(decodeEightBit(word), text);
        QCOMPARE(toSourceText(word), text.toUtf8());
    }

    void sourceTextIsUtf8WithoutAByteOrderMark_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray() << QByteArray();
        QTest::newRow("letters") << QByteArray("abc") << QByteArray("abc");
        QTest::newRow("UTF-8") << QByteArray("a\xC3\xBC") << QByteArray("a\xC3\xBC");
        QTest::newRow("only a byte order mark") << QByteArray("\xEF\xBB\xBF") << QByteArray();
        QTest::newRow("UTF-8 after a byte order mark") << QByteArray("\xEF\xBB\xBF"
                                                                     "a\xC3\xBC")
                                                       << QByteArray("a\xC3\xBC");
        QTest::newRow("a second byte order mark is text") << QByteArray("\xEF\xBB\xBF\xEF\xBB\xBF"
                                                                        "a")
                                                          << QByteArray("\xEF\xBB\xBF"
                                                                        "a");
        QTest::newRow("an invalid byte after a byte order mark") << QByteArray("\xEF\xBB\xBF"
                                                                               "a\xFC"
                                                                               "b")
                                                                 << QByteArray("a\xEF\xBF\xBD"
                                                                               "b");
        QTest::newRow("a replacement character in the file")
            << QByteArray("a\xEF\xBF\xBD") << QByteArray("a\xEF\xBF\xBD");
        QTest::newRow("half a byte order mark") << QByteArray("\xEF\xBB"
                                                              "a")
                                                << QByteArray("\xC3\xAF\xC2\xBB"
                                                              "a");
        QTest::newRow("UTF-8 and an invalid byte")
            << QByteArray("\xC3\xBC\xFC") << QByteArray("\xC3\x83\xC2\xBC\xC3\xBC");
        QTest::newRow("an incomplete character") << QByteArray("a\xC3") << QByteArray("a\xC3\x83");
    }

    void sourceTextIsUtf8WithoutAByteOrderMark()
    {
        QFETCH(const QByteArray, contents);
        QTEST(toSourceText(contents), "text");
    }
};

NVX_GUILESS_TEST(tst_source_text)
#include "tst_source_text.moc"
