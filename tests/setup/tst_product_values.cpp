#include "setup/product_values.h"
#include "support/test_class.h"

#include <QTest>

using namespace Nvx::Setup;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString machineKey = u"HKEY_LOCAL_MACHINE\\Software\\Velmora\\NVX"_s;
const QString userKey = u"HKEY_CURRENT_USER\\Software\\Velmora\\NVX\\17.2"_s;

// Each value as "KEY: NAME = TEXT" or "KEY: NAME = dword NUMBER".
QStringList shown(const QList<RegistryValue> &values)
{
    QStringList lines;
    for (const RegistryValue &value : values) {
        const auto *string = std::get_if<QString>(&value.content);
        lines << value.key + u": "_s + value.name + u" = "_s +
                     (string ? *string : u"dword "_s + QString::number(std::get<quint32>(value.content)));
    }
    return lines;
}

ProductRecord record()
{
    return {.analyzeDirectory = u"C:\\Data\\Analyze"_s,
            .installDir = u"C:\\NVX"_s,
            .locale = u"de-DE"_s,
            .registry64 = true};
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

    void theMachineValuesAreWrittenInThisOrder()
    {
        const QString version = machineKey + u"\\17.2: "_s;
        QCOMPARE(shown(machineValues(record())),
                 QStringList({machineKey + u": CurrentVersion = 17.2"_s,
                              version + u"AnalyzeDirectory = C:\\Data\\Analyze"_s,
                              version + u"InstallationDirectory = C:\\NVX"_s, version + u"Locale = de-DE"_s,
                              version + u"master = Win64"_s, version + u"release = 2017"_s,
                              version + u"productline = KORVA"_s}));
    }

    void aRegistryWithoutA32BitPartIsWin32()
    {
        ProductRecord other = record();
        other.registry64 = false;
        QVERIFY(shown(machineValues(other)).contains(machineKey + u"\\17.2: master = Win32"_s));
    }

    void theUserValuesSilenceTheNotificationCentre()
    {
        const QString services = userKey + u"\\WebServices"_s;
        const QString center = services + u"\\CommunicationCenter: "_s;
        QCOMPARE(shown(userValues(u"de-DE"_s)),
                 QStringList(
                     {services + u": CountryCode = DE"_s, center + u"PollingFrequency = dword 4294967295"_s,
                      center + u"LastUpdateTimeLoWord = dword 1329242409"_s,
                      center + u"LastUpdateTimeHiWord = dword 0"_s,
                      center + u"OutOfBoxWizardCompletedStep = dword 3"_s, center + u"DataState = dword 0"_s,
                      center + u"EnableBubbleNotification = dword 0"_s}));
    }

    void theCountryIsTheFourthAndFifthCharacterOfTheLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("country");
        QTest::newRow("American") << u"en-US"_s << u"US"_s;
        QTest::newRow("German") << u"de-DE"_s << u"DE"_s;
        QTest::newRow("a locale in lower case") << u"zh-tw"_s << u"TW"_s;
        QTest::newRow("no characters") << QString() << u"US"_s;
        QTest::newRow("one character") << u"d"_s << u"US"_s;
        QTest::newRow("two characters") << u"de"_s << u"US"_s;
        QTest::newRow("three characters") << u"de-"_s << u"US"_s;
        QTest::newRow("four characters") << u"de-d"_s << u"D"_s;
        QTest::newRow("six characters") << u"de-DEX"_s << u"DE"_s;
    }

    void theCountryIsTheFourthAndFifthCharacterOfTheLocale()
    {
        QFETCH(QString, locale);
        QTEST(countryCodeOf(locale), "country");
    }
};

NVX_GUILESS_TEST(tst_product_values)
#include "tst_product_values.moc"
