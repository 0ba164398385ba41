#include "localization/translatable_texts.h"
#include "support/test_class.h"

#include <QTest>

using Localization::countTranslatableCalls;
using Localization::countTranslatableStrings;

class tst_translatable_texts : public QObject
{
    Q_OBJECT

private slots:
    void callsOfASourceAreCounted_data()
    {
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<int>("count");
        QTest::newRow("nothing") << QByteArray() << 0;
        QTest::newRow("tr") << QByteArray("a = tr(\"Text\");") << 1;
        QTest::newRow("tr of a class") << QByteArray("a = Window::tr (\n  \"Text\");") << 1;
        QTest::newRow("translate") << QByteArray("qApp->translate(\"Context\", \"Text\")") << 1;
        QTest::newRow("marked in a table")
            << QByteArray("{QT_TR_NOOP(\"A\"), QT_TRANSLATE_NOOP(\"C\", \"B\")}") << 2;
        QTest::newRow("the older and the longer names")
            << QByteArray("trUtf8(\"A\") QT_TRANSLATE_NOOP3(\"C\", \"B\", \"note\")") << 2;
        QTest::newRow("by id") << QByteArray("qtTrId(\"id\") QT_TRID_NOOP(\"id\")") << 2;
        QTest::newRow("one inside another") << QByteArray("tr(\"%1\").arg(tr(\"b\"))") << 2;
        QTest::newRow("without a literal") << QByteArray("tr(text); QObject::tr(text + \"a\")") << 0;
        QTest::newRow("in a comment") << QByteArray("// tr(\"a\")\n/* tr(\"b\") */") << 0;
        QTest::newRow("in a literal") << QByteArray("\"tr(\\\"a\\\")\"") << 0;
        QTest::newRow("part of a word") << QByteArray("str(\"a\"); tr_(\"b\"); matr(\"c\")") << 0;
        QTest::newRow("not closed") << QByteArray("tr(\"a") << 1;
        QTest::newRow("invalid bytes") << QByteArray("\xff\0tr(\"a\")\xfe", 10) << 1;
    }

    void callsOfASourceAreCounted()
    {
        QFETCH(const QByteArray, source);
        QTEST(countTranslatableCalls(source), "count");
    }

    void stringsOfAFormAreCounted_data()
    {
        QTest::addColumn<QByteArray>("form");
        QTest::addColumn<int>("count");
        QTest::newRow("nothing") << QByteArray() << 0;
        QTest::newRow("two") << QByteArray("<ui><a><string>A</string></a><string>B</string></ui>") << 2;
        QTest::newRow("marked as not translatable")
            << QByteArray("<ui><string notr=\"true\">A</string><string notr=\"false\">B</string></ui>") << 1;
        QTest::newRow("empty") << QByteArray("<ui><string/><string></string></ui>") << 0;
        QTest::newRow("before an error") << QByteArray("<ui><string>A</string><b") << 1;
        QTest::newRow("cut off within a string") << QByteArray("<ui><string>A") << 0;
        QTest::newRow("not XML") << QByteArray("string") << 0;
    }

    void stringsOfAFormAreCounted()
    {
        QFETCH(const QByteArray, form);
        QTEST(countTranslatableStrings(form), "count");
    }
};

NVX_GUILESS_TEST(tst_translatable_texts)
#include "tst_translatable_texts.moc"
