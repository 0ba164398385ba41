#include "localization/localization_settings.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

using util::firstExisting;
using util::readLocalizationSettings;

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
        QCOMPARE(settings->root, text("C:\\Übung\\nvx"));
        QCOMPARE(settings->share, text("\\\\host\\a b"));
        QCOMPARE(settings->qtTools, text("C:\\Qt\\bin"));
    }

    void whatIsNotNamedIsEmpty()
    {
        const auto settings = readLocalizationSettings("<localization><root>C:\\nvx</root></localization>");
        QVERIFY(settings);
        QCOMPARE(settings->share, QString());
        QCOMPARE(settings->qtTools, QString());
    }

    void elementsOfNoMeaningAreSkippedWithAllThatTheyHold()
    {
        const auto settings = readLocalizationSettings(
            "<localization><note><root>C:\\other</root></note><root>C:\\nvx</root></localization>");
        QVERIFY(settings);
        QCOMPARE(settings->root, text("C:\\nvx"));
    }

    void aDamagedFileGivesNothing_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::newRow("no bytes") << QByteArray();
        QTest::newRow("no XML") << QByteArray("root=C:\\nvx");
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
        QTest::newRow("none exists") << QStringList{text("x"), text("y")} << QString();
        QTest::newRow("the first") << QStringList{text("here"), text("there")} << text("here");
        QTest::newRow("the second") << QStringList{text("x"), text("there")} << text("there");
        QTest::newRow("with blanks around it") << QStringList{text(" here\r\n")} << text("here");
        QTest::newRow("empty ones are passed over")
            << QStringList{text("  "), QString(), text("here")} << text("here");
    }

    void theFirstFolderThatExistsIsTaken()
    {
        QFETCH(const QStringList, candidates);
        QFETCH(const QString, taken);
        const auto exists = [](const QString &path) {
            return path.isEmpty() || path == QLatin1String("here") || path == QLatin1String("there");
        };
        QCOMPARE(firstExisting(candidates, exists), taken);
    }
};

NVX_GUILESS_TEST(tst_localization_settings)
#include "tst_localization_settings.moc"
