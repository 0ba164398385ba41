#include "help/help_address.h"
#include "support/test_class.h"

#include <QTest>

namespace {

const HelpSettings settings{QStringLiteral("http://"), QStringLiteral("host/"), QStringLiteral("?id="),
                            QStringLiteral("?query="), QStringLiteral(".htm")};

} // namespace

class tst_help_address : public QObject
{
    Q_OBJECT

private slots:
    void theHelpSpeaksThreeLanguages_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("expected");
        QTest::newRow("German") << QStringLiteral("de-DE") << QStringLiteral("DEU");
        QTest::newRow("Japanese") << QStringLiteral("ja-JP") << QStringLiteral("JPN");
        QTest::newRow("English") << QStringLiteral("en-US") << QStringLiteral("ENU");
        QTest::newRow("French reads English") << QStringLiteral("fr-FR") << QStringLiteral("ENU");
        QTest::newRow("another German reads English") << QStringLiteral("de-AT") << QStringLiteral("ENU");
        QTest::newRow("none reads English") << QString() << QStringLiteral("ENU");
    }

    void theHelpSpeaksThreeLanguages()
    {
        QFETCH(QString, locale);
        QTEST(helpLanguage(locale), "expected");
    }

    void aTopicsAddressEndsWithTheSuffix()
    {
        QCOMPARE(topicAddress(settings, QStringLiteral("mesh")), QStringLiteral("http://host/?id=mesh.htm"));
    }

    void withoutSettingsATopicsAddressIsTheBareId()
    {
        QCOMPARE(topicAddress(HelpSettings(), QStringLiteral("mesh")), QStringLiteral("mesh"));
    }

    void onlyAnOnlineSearchEndsWithTheSuffix()
    {
        const QString text = QStringLiteral("heat sink");
        QCOMPARE(searchAddress(settings, HelpPlace::Online, text),
                 QStringLiteral("http://host/?query=heat sink.htm"));
        QCOMPARE(searchAddress(settings, HelpPlace::Installed, text),
                 QStringLiteral("http://host/?query=heat sink"));
    }

    void aSearchTextDoesNotPartTheAddress_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("plain") << QStringLiteral("heat sink") << QStringLiteral("heat sink");
        QTest::newRow("ampersand") << QStringLiteral("R&D") << QStringLiteral("R%26D");
        QTest::newRow("number sign") << QStringLiteral("#3") << QStringLiteral("%233");
        QTest::newRow("plus sign") << QStringLiteral("C++") << QStringLiteral("C%2B%2B");
        QTest::newRow("percent sign") << QStringLiteral("5%20") << QStringLiteral("5%2520");
        QTest::newRow("other alphabets") << QStringLiteral("Größe 保存") << QStringLiteral("Größe 保存");
    }

    void aSearchTextDoesNotPartTheAddress()
    {
        QFETCH(QString, text);
        QTEST(asSearchText(text), "expected");
    }
};

NVX_GUILESS_TEST(tst_help_address)
#include "tst_help_address.moc"
