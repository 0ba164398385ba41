#include "setup/product_values.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

namespace {

const QString machineKey = QStringLiteral("HKEY_LOCAL_MACHINE\\Software\\Velmora\\NVX");
const QString userKey = QStringLiteral("HKEY_CURRENT_USER\\Software\\Velmora\\NVX\\17.2");

// Each value as "KEY: NAME = TEXT" or "KEY: NAME = dword NUMBER".
QStringList shown(const QList<RegistryValue> &values)
{
    QStringList lines;
    for (const RegistryValue &value : values) {
        const auto *string = std::get_if<QString>(&value.content);
        lines << value.key + text(": ") + value.name + text(" = ") +
                     (string ? *string : text("dword ") + QString::number(std::get<quint32>(value.content)));
    }
    return lines;
}

ProductRecord record()
{
    return {text("C:\\Data\\Analyze"), text("C:\\NVX"), text("de-DE"), true};
}

} // namespace

class tst_product_values : public QObject
{
    Q_OBJECT

private slots:
    void theKeysAreThoseOfTheProduct()
    {
        QCOMPARE(machineProductKey(), machineKey);
        QCOMPARE(userProductKey(), userKey);
    }

    void theMachineIsToldInThisOrder()
    {
        const QString version = machineKey + text("\\17.2: ");
        QCOMPARE(shown(machineValues(record())),
                 QStringList({machineKey + text(": CurrentVersion = 17.2"),
                              version + text("AnalyzeDirectory = C:\\Data\\Analyze"),
                              version + text("InstallationDirectory = C:\\NVX"),
                              version + text("Locale = de-DE"), version + text("master = Win64"),
                              version + text("release = 2017"), version + text("productline = KORVA")}));
    }

    void aMachineWithoutA32BitPartIsWin32()
    {
        ProductRecord other = record();
        other.registry64 = false;
        QVERIFY(shown(machineValues(other)).contains(machineKey + text("\\17.2: master = Win32")));
    }

    void theUserGetsAQuietNotificationCentre()
    {
        const QString services = userKey + text("\\WebServices");
        const QString center = services + text("\\CommunicationCenter: ");
        QCOMPARE(shown(userValues(text("de-DE"))),
                 QStringList({services + text(": CountryCode = DE"),
                              center + text("PollingFrequency = dword 4294967295"),
                              center + text("LastUpdateTimeLoWord = dword 1329242409"),
                              center + text("LastUpdateTimeHiWord = dword 0"),
                              center + text("OutOfBoxWizardCompletedStep = dword 3"),
                              center + text("DataState = dword 0"),
                              center + text("EnableBubbleNotification = dword 0")}));
    }

    void theCountryIsTheSecondPartOfTheLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("country");
        QTest::newRow("American") << text("en-US") << text("US");
        QTest::newRow("German") << text("de-DE") << text("DE");
        QTest::newRow("in lower case") << text("zh-tw") << text("TW");
        QTest::newRow("no characters") << QString() << text("US");
        QTest::newRow("one character") << text("d") << text("US");
        QTest::newRow("two characters") << text("de") << text("US");
        QTest::newRow("three characters") << text("de-") << text("US");
        QTest::newRow("four characters") << text("de-d") << text("D");
        QTest::newRow("six characters") << text("de-DEX") << text("DE");
    }

    void theCountryIsTheSecondPartOfTheLocale()
    {
        QFETCH(QString, locale);
        QTEST(countryCodeOf(locale), "country");
    }
};

NVX_GUILESS_TEST(tst_product_values)
#include "tst_product_values.moc"
