#include "help/help_settings.h"
#include "support/test_class.h"

#include <QBuffer>
#include <QTest>

using namespace Nvx::Help;
using namespace Qt::Literals::StringLiterals;

namespace {

Nvx::Util::Result<HelpSettings> read(QByteArray document, HelpPlace place)
{
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    return readHelpSettings(buffer, place, {u"C:\\Shared"_s, u"DEU"_s});
}

QStringList asList(const HelpSettings &settings)
{
    return {settings.prefix, settings.url, settings.direct, settings.search, settings.suffix};
}

} // namespace

class tst_help_settings : public QObject
{
    Q_OBJECT

private slots:
    void missingAttributesHaveDefaults_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QStringList>("online");
        QTest::addColumn<QStringList>("installed");

        const QStringList online{u"http://"_s, u"help.velmora.example/wiki/KORVA/2017/DEU/"_s,
                                 u"?contextId="_s, u"?query="_s, QString()};
        const QStringList installed{u"file:///"_s, u"C:\\Shared/NVXHelp/"_s, u"contexthelp/"_s,
                                    u"index.html?query="_s, u".htm"_s};
        QTest::newRow("no attributes")
            << QByteArray("<help_ids><help_url/></help_ids>") << online << installed;
        QTest::newRow("unknown attributes")
            << QByteArray("<a><help_url Online_Prefix='x' prefix='y'/></a>") << online << installed;
        QTest::newRow("the first element counts")
            << QByteArray("<a><help_url/><help_url online_prefix='x' offline_prefix='y'/></a>") << online
            << installed;
        QTest::newRow("a nested element does not count")
            << QByteArray("<a><b><help_url online_prefix='x'/></b><help_url/></a>") << online << installed;
        QTest::newRow("all attributes")
            << QByteArray("<?xml version='1.0'?><a><b/>text<help_url"
                          " online_prefix='1' online_wiki='2' online_direct='3' online_search='4'"
                          " release='5' language='6' product='7' offline_prefix='8' offline_url='9'"
                          " offline_direct='10' offline_search='11' offline_suffix='12'/></a>")
            << QStringList{u"1"_s, u"2/7/5/6/"_s, u"3"_s, u"4"_s, QString()}
            << QStringList{u"8"_s, u"9"_s, u"10"_s, u"11"_s, u"12"_s};
        QTest::newRow("empty attributes")
            << QByteArray("<a><help_url online_prefix='' offline_suffix=''/></a>")
            << QStringList{QString(), online.at(1), online.at(2), online.at(3), QString()}
            << QStringList{installed.at(0), installed.at(1), installed.at(2), installed.at(3), QString()};
        QTest::newRow("entities and namespace prefixes")
            << QByteArray(
                   "<x:a><x:help_url online_prefix='no'/><help_url online_direct='?a=1&amp;b='/></x:a>")
            << QStringList{online.at(0), online.at(1), u"?a=1&b="_s, online.at(3), QString()} << installed;
    }

    void missingAttributesHaveDefaults()
    {
        QFETCH(QByteArray, document);
        const Nvx::Util::Result<HelpSettings> online = read(document, HelpPlace::Online);
        const Nvx::Util::Result<HelpSettings> installed = read(document, HelpPlace::Installed);
        QVERIFY(online && installed);
        QTEST(asList(*online), "online");
        QTEST(asList(*installed), "installed");
    }

    void anInvalidDocumentIsRejected_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("help_url");
        QTest::newRow("no help_url element") << QByteArray("<help_ids/>");
        QTest::newRow("help_url as the document element") << QByteArray("<help_url online_prefix='x'/>");
        QTest::newRow("another case") << QByteArray("<a><Help_Url/></a>");
        QTest::newRow("a nested element only") << QByteArray("<a><b><help_url/></b></a>");
        QTest::newRow("not closed") << QByteArray("<a><help_url/>");
        QTest::newRow("an error after the element") << QByteArray("<a><help_url/></b>");
        QTest::newRow("a second document element") << QByteArray("<a><help_url/></a><a/>");
        QTest::newRow("an attribute given twice")
            << QByteArray("<a><help_url online_prefix='1' online_prefix='2'/></a>");
        QTest::newRow("zero bytes") << QByteArray(100, '\0');
        QTest::newRow("invalid UTF-8") << QByteArray("<a><help_url online_prefix='\xff\xfe'/></a>");
        QTest::newRow("an entity that grows without end")
            << QByteArray("<!DOCTYPE a [<!ENTITY a 'xxxxxxxxxxxxxxxx'>"
                          "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'>"
                          "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'>"
                          "<!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>]>"
                          "<a>&d;<help_url/></a>");
    }

    void anInvalidDocumentIsRejected()
    {
        QFETCH(QByteArray, document);
        QVERIFY(!read(document, HelpPlace::Online));
        QVERIFY(!read(document, HelpPlace::Installed));
    }

    void theEmptyHelpIdFileHasOneElement()
    {
        QCOMPARE(emptyHelpIds(), QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<help_ids/>\n"));
        QVERIFY(!read(emptyHelpIds(), HelpPlace::Online));
    }
};

NVX_GUILESS_TEST(tst_help_settings)
#include "tst_help_settings.moc"
