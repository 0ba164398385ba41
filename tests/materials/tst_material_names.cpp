#include "materials/mat_material_name.h"
#include "support/broken_device.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using MaterialNames = Nvx::Util::Result<QStringList>;

namespace {

MaterialNames namesIn(const QByteArray &database)
{
    QBuffer device;
    device.setData(database);
    device.open(QIODevice::ReadOnly);
    return Materials::readMaterialNames(device);
}

} // namespace

class tst_material_names : public QObject
{
    Q_OBJECT

private slots:
    void namesOfTheMaterialsAreRead_data()
    {
        QTest::addColumn<QByteArray>("database");
        QTest::addColumn<QStringList>("names");
        const auto row = [](const char *name, const char *database, const QStringList &names) {
            QTest::newRow(name) << QByteArray(database) << names;
        };
        const QString a = u"A"_s;
        const QString b = u"B"_s;
        const QString c = u"C"_s;
        row("one", "<m><material><name>A</name></material></m>", {a});
        row("order of the file",
            "<m><material><name>B</name></material><material><name>A</name></material></m>", {b, a});
        row("material as the root", "<material><name>A</name></material>", {a});
        row("several names in one material", "<material><name>A</name><x/><name>B</name></material>", {a, b});
        row("at any depth", "<material><x><y><name>A</name></y></x></material>", {a});
        row("duplicates", "<m><material><name>A</name></material><material><name>A</name></material></m>",
            {a, a});
        row("name outside a material", "<m><name>A</name><material/><name>B</name></m>", {});
        row("no materials", "<m/>", {});
        row("material without a name", "<m><material><density>1</density></material></m>", {});
        row("empty names", "<material><name/><name></name></material>", {QString(), QString()});
        row("white space", "<material><name> A\n\tB </name></material>", {u" A\n\tB "_s});
        row("line ends of Windows", "<material><name>A\r\nB</name></material>", {u"A\nB"_s});
        row("character references", "<material><name>&lt;A&#xe9;&amp;&#13;</name></material>", {u"<Aé&\r"_s});
        row("CDATA section", "<material><name><![CDATA[A<]]>B</name></material>", {u"A<B"_s});
        row("comment in a name", "<material><name>A<!-- x -->B</name></material>", {u"AB"_s});
        row("element in a name", "<material><name>CO<sub>2</sub>!</name></material>", {u"CO2!"_s});
        row("name in a name", "<material><name>A<name>B</name>C</name></material>", {u"ABC"_s});
        row("nested materials", "<material><material><name>A</name></material><name>B</name></material>",
            {a, b});
        row("nested materials, name first",
            "<material><name>A</name><material><name>B</name></material></material>", {a, b});
        row("nested and following materials",
            "<m><material><material/></material><name>A</name><material><name>C</name></material></m>", {c});
        row("namespace prefix", "<x:m xmlns:x='u'><x:material><x:name>A</x:name></x:material></x:m>", {a});
        row("different case", "<m><Material><name>A</name></Material><material><Name>B</Name></material></m>",
            {});
        row("name in an attribute", "<material name='A'/>", {});
        row("internal entity", "<!DOCTYPE m [<!ENTITY e 'A'>]><material><name>&e;</name></material>", {a});
        row("other scripts",
            "<?xml version='1.0' encoding='UTF-8'?><material><name>Öl</name><name>空気</name>"
            "<name>Вода</name><name>\xf0\x9f\x92\xa7</name></material>",
            {u"Öl"_s, u"空気"_s, u"Вода"_s, u"💧"_s});
        row("Latin-1", "<?xml version='1.0' encoding='ISO-8859-1'?><material><name>\xd6l</name></material>",
            {u"Öl"_s});
        row("byte order mark", "\xef\xbb\xbf<material><name>A</name></material>", {a});
    }

    void namesOfTheMaterialsAreRead()
    {
        QFETCH(const QByteArray, database);
        const MaterialNames read = namesIn(database);
        QCOMPARE(read.error(), QString());
        QTEST(*read, "names");
    }

    void databaseInUtf16IsRead()
    {
        const QString document = u"\ufeff<material><name>空\r\n気</name></material>"_s;
        const MaterialNames read =
            namesIn(QByteArray(reinterpret_cast<const char *>(document.utf16()), document.size() * 2));
        QCOMPARE(read.error(), QString());
        QCOMPARE(*read, QStringList(u"空\n気"_s));
    }

    void databaseThatIsNotWellFormedIsAnError_data()
    {
        QTest::addColumn<QByteArray>("database");
        QTest::addColumn<QString>("line");
        const auto row = [](const char *name, const QByteArray &database, const char *line) {
            QTest::newRow(name) << database << QString::fromLatin1(line);
        };
        row("empty", "", " at line 1");
        row("not XML", "Standard Jet DB", " at line 1");
        row("truncated in a material", "<m>\n<material>\n<name>A</name>\n", " at line 4");
        row("truncated in a name", "<m>\n<material><name>A</name></material>\n<material><name>B",
            " at line 3");
        row("truncated in the root", "<m>\n<material><name>A</name></material>", " at line 2");
        row("wrong nesting", "<m><material><name>A</material></name></m>", " at line 1");
        row("two roots", "<material><name>A</name></material>\n<material/>", " at line 2");
        row("undefined entity", "<material><name>&water;</name></material>", " at line 1");
        row("forbidden character", "<material><name>A\x01</name></material>", " at line 1");
        row("invalid UTF-8", "<material><name>A\xff</name></material>", " at line 1");
        row("unknown encoding", "<?xml version='1.0' encoding='x-none'?><m/>", " at line 1");
        row("entity that expands exponentially",
            "<!DOCTYPE m [<!ENTITY a 'AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA'>"
            "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'><!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'>"
            "<!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>]><material><name>&d;</name></material>",
            " at line 1");
        row("large entity, many times",
            "<!DOCTYPE m [<!ENTITY e '" + QByteArray(4000, 'A') + "'>]>\n<material><name>" +
                QByteArray("&e;").repeated(200'000) + "</name></material>",
            " at line 2");
    }

    void databaseThatIsNotWellFormedIsAnError()
    {
        QFETCH(const QByteArray, database);
        QFETCH(const QString, line);
        const MaterialNames read = namesIn(database);
        QVERIFY2(read.error().endsWith(line), qPrintable(read.error()));
        QVERIFY(read.error().size() > line.size());
    }

    void deviceThatFailsIsAnError_data()
    {
        QTest::addColumn<QByteArray>("read");
        QTest::newRow("immediately") << QByteArray();
        QTest::newRow("between materials") << QByteArray("<m><material><name>A</name></material>");
        QTest::newRow("within a name") << QByteArray("<m><material><name>A</name><name>B");
    }

    void deviceThatFailsIsAnError()
    {
        QFETCH(const QByteArray, read);
        BrokenDevice device(read);
        const MaterialNames names = Materials::readMaterialNames(device);
        QVERIFY(!names.error().isEmpty());
    }

    void deeplyNestedElementsAreRead_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::newRow("materials") << QByteArray("material");
        QTest::newRow("names") << QByteArray("name");
    }

    void deeplyNestedElementsAreRead()
    {
        QFETCH(const QByteArray, element);
        constexpr int depth = 200'000;
        const MaterialNames read =
            namesIn("<material>" + QByteArray("<" + element + ">").repeated(depth) + "<name>A</name>" +
                    QByteArray("</" + element + ">").repeated(depth) + "</material>");
        QCOMPARE(read.error(), QString());
        QCOMPARE(*read, QStringList(u"A"_s));
    }

    void fileIsRead()
    {
        const TestFolder folder;
        const QString fileName = folder.path(u"材料 Größe.mdb"_s);
        QVERIFY(writeBytes(fileName, "<material>\r\n<name>A</name>\r\n</material>\r\n"));
        const MaterialNames read = Materials::readMaterialNames(fileName);
        QCOMPARE(read.error(), QString());
        QCOMPARE(*read, QStringList(u"A"_s));
    }

    void fileThatCannotBeOpenedIsAnErrorWithAReason()
    {
        const TestFolder folder;
        const MaterialNames missing = Materials::readMaterialNames(folder.path(u"missing.mdb"_s));
        QVERIFY(!missing.error().isEmpty());
        QVERIFY2(!missing.error().contains(u"at line"_s), qPrintable(missing.error()));
        QVERIFY(!Materials::readMaterialNames(folder.path()).error().isEmpty());
    }
};

NVX_GUILESS_TEST(tst_material_names)
#include "tst_material_names.moc"
