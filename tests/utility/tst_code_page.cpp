#include "nvx_util/code_page.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Nvx::Util;

class tst_code_page : public QObject
{
    Q_OBJECT

private slots:
    void plainTextIsTheSameInEveryCodePage()
    {
        const QString text = u"rmdir /s /q \"C:\\NVX 2017\""_s;
        QCOMPARE(toAnsi(text).value(), text.toLatin1());
        QCOMPARE(toOem(text).value(), text.toLatin1());
        QCOMPARE(fromOem(text.toLatin1()), text);
    }

    void anEmptyStringHasNoBytes()
    {
        QCOMPARE(toAnsi(QString()).value(), QByteArray());
        QCOMPARE(toOem(QString()).value(), QByteArray());
        QCOMPARE(fromOem(QByteArray()), QString());
    }

    void aGermanStringSurvivesTheOemCodePage()
    {
        const QString text = u"C:\\Größe"_s;
        QCOMPARE(fromOem(toOem(text).value()), text);
    }

    void aCharacterOutsideTheCodePageIsAnError()
    {
        const QString brokenSurrogate(QChar(0xD800));
        QVERIFY(!toAnsi(brokenSurrogate).has_value());
        QVERIFY(!toOem(brokenSurrogate).has_value());
    }

    void invalidBytesBecomeReplacementCharacters()
    {
        const QString text = fromOem(QByteArray("a\xFF\xFE\x80z"));
        QVERIFY(text.startsWith(u'a'));
        QVERIFY(text.endsWith(u'z'));
    }

    void standardStringsAreInTheAnsiCodePage()
    {
        const QString text = u"C:\\Größe"_s;
        QCOMPARE(QByteArray::fromStdString(toStdString(text)), toAnsi(text).value());
        QCOMPARE(toQString(toStdString(text)), text);
    }
};

NVX_GUILESS_TEST(tst_code_page)
#include "tst_code_page.moc"
