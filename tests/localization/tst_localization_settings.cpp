#include "localization/localization_settings.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Localization::firstExisting;
using Localization::readLocalizationSettings;

class tst_localization_settings : public QObject
{
    Q_OBJECT

private slots:
    void theThreeTextsAreReadAndTrimmed()
    {
        const auto settings = readLocalizationSettings("<localization><root> C:\\Übung\\nvx \n</root>"
                                                       "<share>\\\\host\\a b</share><qtTools>C:\\Qt\\bin"
                                                       "</qtTools></localization>");
        QVERIFY(settings);
        QCOMPARE(settings->root, u"C:\\Übung\\nvx"_s);
        QCOMPARE(settings->share, u"\\\\host\\a b"_s);
        QCOMPARE(settings->qtTools, u"C:\\Qt\\bin"_s);
    }

    void aMissingElementIsEmpty()
    {
        const auto settings = readLocalizationSettings("<localization><root>C:\\nvx</root></localization>");
        QVERIFY(settings);
        QCOMPARE(settings->share, QString());
        QCOMPARE(settings->qtTools, QString());
    }

    void unknownElementsAreSkippedWithTheirContents()
    {
        const auto settings = readLocalizationSettings(
            "<localization><note><root>C:\\other</root></note><root>C:\\nvx</root></localization>");
        QVERIFY(settings);
        QCOMPARE(settings->root, u"C:\\nvx"_s);
    }

    void aDamagedFileGivesNothing_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::newRow("no bytes") << QByteArray();
        QTest::newRow("not XML") << QByteArray("root=C:\\nvx");
        QTest::newRow("another document element") << QByteArray("<settings><root>C:\\a</root></settings>");
        QTest::newRow("cut off") << QByteArray("<localization><root>C:\\a</root>");
        QTest::newRow("cut off in a text") << QByteArray("<localization><root>C:\\a");
        QTest::newRow("text after the end") << QByteArray("<localization/>more");
    }

    void aDamagedFileGivesNothing()
    {
        QFETCH(const QByteArray, xml);
        QVERIFY(!readLocalizationSettings(xml));
    }

    void theFirstFolderThatExistsIsTaken_data()
    {
        QTest::addColumn<QStringList>("candidates");
        QTest::addColumn<QString>("taken");
        QTest::newRow("none") << QStringList() << QString();
        QTest::newRow("none exists") << QStringList{u"x"_s, u"y"_s} << QString();
        QTest::newRow("the first") << QStringList{u"here"_s, u"there"_s} << u"here"_s;
        QTest::newRow("the second") << QStringList{u"x"_s, u"there"_s} << u"there"_s;
        QTest::newRow("surrounded by blanks") << QStringList{u" here\r\n"_s} << u"here"_s;
        QTest::newRow("empty ones are skipped") << QStringList{u"  "_s, QString(), u"here"_s} << u"here"_s;
    }

    void theFirstFolderThatExistsIsTaken()
    {
        QFETCH(const QStringList, candidates);
        QFETCH(const QString, taken);
        const auto exists = [](const QString &path) {
            return path.isEmpty() || path == "here"_L1 || path == "there"_L1;
        };
        QCOMPARE(firstExisting(candidates, exists), taken);
    }
};

NVX_GUILESS_TEST(tst_localization_settings)
#include "tst_localization_settings.moc"
