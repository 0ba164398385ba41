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
};

NVX_GUILESS_TEST(tst_help_address)
#include "tst_help_address.moc"
