#include "help/help_settings.h"
#include "support/test_class.h"

#include <QTest>

using namespace Nvx::Help;
using namespace Qt::Literals::StringLiterals;

namespace {

const HelpSettings settings{u"http://"_s, u"host/"_s, u"?id="_s, u"?query="_s, u".htm"_s};

} // namespace

class tst_help_address : public QObject
{
    Q_OBJECT

private slots:
    void theHelpHasThreeLanguages_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("expected");
        QTest::newRow("German") << u"de-DE"_s << u"DEU"_s;
        QTest::newRow("Japanese") << u"ja-JP"_s << u"JPN"_s;
        QTest::newRow("English") << u"en-US"_s << u"ENU"_s;
        QTest::newRow("French gets English") << u"fr-FR"_s << u"ENU"_s;
        QTest::newRow("Austrian German gets English") << u"de-AT"_s << u"ENU"_s;
        QTest::newRow("an empty locale gets English") << QString() << u"ENU"_s;
    }

    void theHelpHasThreeLanguages()
    {
        QFETCH(QString, locale);
        QTEST(helpLanguage(locale), "expected");
    }

    void aTopicsAddressEndsWithTheSuffix()
    {
        QCOMPARE(topicAddress(settings, u"mesh"_s), u"http://host/?id=mesh.htm"_s);
    }

    void withoutSettingsATopicsAddressIsTheId()
    {
        QCOMPARE(topicAddress(HelpSettings(), u"mesh"_s), u"mesh"_s);
    }

    void onlyAnOnlineSearchEndsWithTheSuffix()
    {
        const QString text = u"heat sink"_s;
        QCOMPARE(searchAddress(settings, HelpPlace::Online, text), u"http://host/?query=heat sink.htm"_s);
        QCOMPARE(searchAddress(settings, HelpPlace::Installed, text), u"http://host/?query=heat sink"_s);
    }
};

NVX_GUILESS_TEST(tst_help_address)
#include "tst_help_address.moc"
