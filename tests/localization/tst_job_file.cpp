#include "localization/job_file.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Localization::isWholeTranslationFile;
using Localization::jobFile;

class tst_job_file : public QObject
{
    Q_OBJECT

private slots:
    void theJobFileHasALineForEachSource()
    {
        QCOMPARE(jobFile({u"client.ts"_s, QString::fromUtf8("prüfung.ts")}),
                 QByteArray("enu\\client.ts\nenu\\pr\xc3\xbc"
                            "fung.ts\n"));
    }

    void aJobFileOfNoSourcesIsEmpty() { QCOMPARE(jobFile({}), QByteArray()); }

    void aTranslationFileIsCompleteIfItIsWellFormed_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("whole");
        QTest::newRow("whole") << QByteArray("<?xml version=\"1.0\"?><!DOCTYPE TS><TS version=\"2.1\"></TS>")
                               << true;
        QTest::newRow("with contexts") << QByteArray("<TS><context><name>A</name></context></TS>\n") << true;
        QTest::newRow("no bytes") << QByteArray() << false;
        QTest::newRow("cut off") << QByteArray("<TS><context><name>A</name>") << false;
        QTest::newRow("another document") << QByteArray("<html></html>") << false;
        QTest::newRow("elements crossed") << QByteArray("<TS><a><b></a></b></TS>") << false;
        QTest::newRow("text after the end") << QByteArray("<TS></TS>\nmore") << false;
        QTest::newRow("invalid UTF-8") << QByteArray("<TS>\xff\xfe</TS>") << false;
    }

    void aTranslationFileIsCompleteIfItIsWellFormed()
    {
        QFETCH(const QByteArray, bytes);
        QTEST(isWholeTranslationFile(bytes), "whole");
    }
};

NVX_GUILESS_TEST(tst_job_file)
#include "tst_job_file.moc"
