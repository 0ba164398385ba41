#include "nvx_util/code_page.h"
#include "nvx_util/conversion.h"
#include "support/test_class.h"

#include <QTest>

using namespace Nvx::Util;

class tst_code_page : public QObject
{
    Q_OBJECT

private slots:
    void plainTextIsTheSameInEveryCodePage()
    {
        const QString text = QStringLiteral("rmdir /s /q \"C:\\NVX 2017\"");
        QCOMPARE(toAnsi(text).value(), text.toLatin1());
        QCOMPARE(toOem(text).value(), text.toLatin1());
        QCOMPARE(fromOem(text.toLatin1()), text);
    }

    void anEmptyTextIsNoBytes()
    {
        QCOMPARE(toAnsi(QString()).value(), QByteArray());
        QCOMPARE(toOem(QString()).value(), QByteArray());
        QCOMPARE(fromOem(QByteArray()), QString());
    }

    void aGermanTextComesBackFromTheOemCodePage()
    {
        const QString text = QStringLiteral("C:\\Größe");
        QCOMPARE(fromOem(toOem(text).value()), text);
    }

    void aCharacterThatNoCodePageHasIsRefusedRatherThanReplaced()
    {
        const QString brokenSurrogate(QChar(0xD800));
        QVERIFY(!toAnsi(brokenSurrogate).has_value());
        QVERIFY(!toOem(brokenSurrogate).has_value());
    }

    void bytesThatAreNoTextStillGiveText()
    {
        const QString text = fromOem(QByteArray("a\xFF\xFE\x80z"));
        QVERIFY(text.startsWith(QLatin1Char('a')));
        QVERIFY(text.endsWith(QLatin1Char('z')));
    }

    void standardStringsHoldTheAnsiCodePage()
    {
        const QString text = QStringLiteral("C:\\Größe");
        QCOMPARE(QByteArray::fromStdString(toStdString(text)), toAnsi(text).value());
        QCOMPARE(toQString(toStdString(text)), text);
    }
};

NVX_GUILESS_TEST(tst_code_page)
#include "tst_code_page.moc"
