#include "help/help_settings.h"
#include "support/test_class.h"

#include <QBuffer>
#include <QTest>

namespace {

std::optional<HelpSettings> read(QByteArray document, HelpPlace place)
{
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    return readHelpSettings(buffer, place, {QStringLiteral("C:\\Shared"), QStringLiteral("DEU")});
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
    void whatIsMissingHasADefault_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QStringList>("online");
        QTest::addColumn<QStringList>("installed");

        const QStringList online{QStringLiteral("http://"),
                                 QStringLiteral("help.velmora.example/wiki/KORVA/2017/DEU/"),
                                 QStringLiteral("?contextId="), QStringLiteral("?query="), QString()};
        const QStringList installed{QStringLiteral("file:///"), QStringLiteral("C:\\Shared/NVXHelp/"),
                                    QStringLiteral("contexthelp/"), QStringLiteral("index.html?query="),
                                    QStringLiteral(".htm")};
        QTest::newRow("no attributes")
            << QByteArray("<help_ids><help_url/></help_ids>") << online << installed;
        QTest::newRow("attributes nobody knows")
            << QByteArray("<a><help_url Online_Prefix='x' prefix='y'/></a>") << online << installed;
        QTest::newRow("the first element counts")
            << QByteArray("<a><help_url/><help_url online_prefix='x' offline_prefix='y'/></a>") << online
            << installed;
        QTest::newRow("one further down does not count")
            << QByteArray("<a><b><help_url online_prefix='x'/></b><help_url/></a>") << online << installed;
        QTest::newRow("all given")
            << QByteArray("<?xml version='1.0'?><a><b/>text<help_url"
                          " online_prefix='1' online_wiki='2' online_direct='3' online_search='4'"
                          " release='5' language='6' product='7' offline_prefix='8' offline_url='9'"
                          " offline_direct='10' offline_search='11' offline_suffix='12'/></a>")
            << QStringList{QStringLiteral("1"), QStringLiteral("2/7/5/6/"), QStringLiteral("3"),
                           QStringLiteral("4"), QString()}
            << QStringList{QStringLiteral("8"), QStringLiteral("9"), QStringLiteral("10"),
                           QStringLiteral("11"), QStringLiteral("12")};
        QTest::newRow("an empty attribute is given")
            << QByteArray("<a><help_url online_prefix='' offline_suffix=''/></a>")
            << QStringList{QString(), online.at(1), online.at(2), online.at(3), QString()}
            << QStringList{installed.at(0), installed.at(1), installed.at(2), installed.at(3), QString()};
        QTest::newRow("entities and prefixes of names")
            << QByteArray(
                   "<x:a><x:help_url online_prefix='no'/><help_url online_direct='?a=1&amp;b='/></x:a>")
            << QStringList{online.at(0), online.at(1), QStringLiteral("?a=1&b="), online.at(3), QString()}
            << installed;
    }

    void whatIsMissingHasADefault()
    {
        QFETCH(QByteArray, document);
        const std::optional<HelpSettings> online = read(document, HelpPlace::Online);
        const std::optional<HelpSettings> installed = read(document, HelpPlace::Installed);
        QVERIFY(online && installed);
        QTEST(asList(*online), "online");
        QTEST(asList(*installed), "installed");
    }

    void aDocumentThatIsBrokenOrSaysNothingOfHelpIsNotTaken_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("help_url");
        QTest::newRow("no element of help") << QByteArray("<help_ids/>");
        QTest::newRow("help as the document itself") << QByteArray("<help_url online_prefix='x'/>");
        QTest::newRow("another case") << QByteArray("<a><Help_Url/></a>");
        QTest::newRow("only further down") << QByteArray("<a><b><help_url/></b></a>");
        QTest::newRow("not closed") << QByteArray("<a><help_url/>");
        QTest::newRow("broken behind") << QByteArray("<a><help_url/></b>");
        QTest::newRow("more behind") << QByteArray("<a><help_url/></a><a/>");
        QTest::newRow("an attribute given twice")
            << QByteArray("<a><help_url online_prefix='1' online_prefix='2'/></a>");
        QTest::newRow("zero bytes") << QByteArray(100, '\0');
        QTest::newRow("bytes that are no UTF-8") << QByteArray("<a><help_url online_prefix='\xff\xfe'/></a>");
        QTest::newRow("an entity that grows without end")
            << QByteArray("<!DOCTYPE a [<!ENTITY a 'xxxxxxxxxxxxxxxx'>"
                          "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'>"
                          "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'>"
                          "<!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>]>"
                          "<a>&d;<help_url/></a>");
    }

    void aDocumentThatIsBrokenOrSaysNothingOfHelpIsNotTaken()
    {
        QFETCH(QByteArray, document);
        QVERIFY(!read(document, HelpPlace::Online));
        QVERIFY(!read(document, HelpPlace::Installed));
    }

    void theEmptyFileOfIdsHoldsOneElement()
    {
        QCOMPARE(emptyHelpIds(), QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<help_ids/>\n"));
        QVERIFY(!read(emptyHelpIds(), HelpPlace::Online));
    }
};

NVX_GUILESS_TEST(tst_help_settings)
#include "tst_help_settings.moc"
