#include "cad/eight_bit_text.h"
#include "nvx_util/code_page.h"
#include "support/test_class.h"

#include <QTest>

class tst_caseless_search : public QObject
{
    Q_OBJECT

private slots:
    void aTextIsFoundWithoutCase_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("found");
        const QString path = QStringLiteral("C:\\Prog\\NVX");
        QTest::newRow("the text alone") << QByteArray("C:\\Prog\\NVX") << path << true;
        QTest::newRow("other case") << QByteArray("in c:\\pROG\\nvx\\other") << path << true;
        QTest::newRow("at the end") << QByteArray("xC:\\PROG\\NVX") << path << true;
        QTest::newRow("the first letter") << QByteArray("in A") << QStringLiteral("a") << true;
        QTest::newRow("the last letter") << QByteArray("in Z") << QStringLiteral("z") << true;
        QTest::newRow("cut off") << QByteArray("C:\\Prog\\NV") << path << false;
        QTest::newRow("in two parts") << QByteArray("C:\\Prog\nC:\\NVX") << path << false;
        QTest::newRow("no bytes") << QByteArray() << path << false;
        QTest::newRow("behind a NUL") << QByteArray("\0\0C:\\prog\\nvx", 13) << path << true;
        QTest::newRow("behind a byte that begins a character")
            << QByteArray("\203C:\\prog\\nvx") << path << true;
        QTest::newRow("characters that differ in one bit from letters")
            << QByteArray("C:\\P[") << QStringLiteral("c:\\p{") << false;
        QTest::newRow("the empty text") << QByteArray("x") << QString() << true;
        QTest::newRow("the empty text in nothing") << QByteArray() << QString() << true;
    }

    void aTextIsFoundWithoutCase()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, text);
        QFETCH(const bool, found);
        QCOMPARE(CaselessSearch(text).isFoundIn(bytes), found);
    }

    void lettersOutsideAsciiAreComparedInTheCodePage()
    {
        const CaselessSearch search(QStringLiteral("C:\\Größe"));
        QVERIFY(search.isFoundIn(Nvx::Util::toAnsi(QStringLiteral("C:\\Größe")).value()));
        QVERIFY(search.isFoundIn(Nvx::Util::toAnsi(QStringLiteral("in c:\\grÖße\\x")).value()));
        QVERIFY(!search.isFoundIn(Nvx::Util::toAnsi(QStringLiteral("C:\\Große")).value()));
        QVERIFY(!search.isFoundIn("C:\\Gr\xff\xfe"));
    }

    void aTextThatTheCodePageCannotWriteIsFoundNowhere()
    {
        const QString brokenSurrogate(QChar(0xD800));
        QVERIFY(!CaselessSearch(brokenSurrogate).isFoundIn("?"));
        QVERIFY(!CaselessSearch(brokenSurrogate).isFoundIn(QString(QChar(0xFFFD)).toUtf8()));
    }
};

NVX_GUILESS_TEST(tst_caseless_search)
#include "tst_caseless_search.moc"
