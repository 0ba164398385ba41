#include "cad/foreign_file.h"
#include "nvx_util/code_page.h"
#include "support/test_class.h"

#include <QTest>

using namespace Nvx::Cad;
using namespace Qt::Literals::StringLiterals;

class tst_caseless_search : public QObject
{
    Q_OBJECT

private slots:
    void aStringIsFoundInAnyCase_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("found");
        const QString path = u"C:\\Prog\\NVX"_s;
        QTest::newRow("the string alone") << QByteArray("C:\\Prog\\NVX") << path << true;
        QTest::newRow("other case") << QByteArray("in c:\\pROG\\nvx\\other") << path << true;
        QTest::newRow("at the end") << QByteArray("xC:\\PROG\\NVX") << path << true;
        QTest::newRow("the first letter") << QByteArray("in A") << u"a"_s << true;
        QTest::newRow("the last letter") << QByteArray("in Z") << u"z"_s << true;
        QTest::newRow("truncated") << QByteArray("C:\\Prog\\NV") << path << false;
        QTest::newRow("split in two") << QByteArray("C:\\Prog\nC:\\NVX") << path << false;
        QTest::newRow("no bytes to search") << QByteArray() << path << false;
        QTest::newRow("after a null byte") << QByteArray("\0\0C:\\prog\\nvx", 13) << path << true;
        QTest::newRow("after the first byte of an incomplete character")
            << QByteArray("\203C:\\prog\\nvx") << path << true;
        QTest::newRow("characters that differ in one bit from letters")
            << QByteArray("C:\\P[") << u"c:\\p{"_s << false;
        QTest::newRow("an empty string") << QByteArray("x") << QString() << true;
        QTest::newRow("an empty string in no bytes") << QByteArray() << QString() << true;
    }

    void aStringIsFoundInAnyCase()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, text);
        QFETCH(const bool, found);
        QCOMPARE(CaselessSearch(text).isFoundIn(bytes), found);
    }

    void lettersOutsideAsciiAreFoundInTheCodePage()
    {
        const CaselessSearch search(u"C:\\Größe"_s);
        QVERIFY(search.isFoundIn(Nvx::Util::toAnsi(u"C:\\Größe"_s).value()));
        QVERIFY(search.isFoundIn(Nvx::Util::toAnsi(u"in c:\\grÖße\\x"_s).value()));
        QVERIFY(!search.isFoundIn(Nvx::Util::toAnsi(u"C:\\Große"_s).value()));
        QVERIFY(!search.isFoundIn("C:\\Gr\xff\xfe"));
    }

    void aStringThatTheCodePageCannotEncodeIsNeverFound()
    {
        const QString brokenSurrogate(QChar(0xD800));
        QVERIFY(!CaselessSearch(brokenSurrogate).isFoundIn("?"));
        QVERIFY(!CaselessSearch(brokenSurrogate).isFoundIn(QString(QChar(0xFFFD)).toUtf8()));
    }
};

NVX_GUILESS_TEST(tst_caseless_search)
#include "tst_caseless_search.moc"
