#include "materials/mat_material_name.h"
#include "support/broken_device.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QBuffer>
#include <QTest>

using mat::MaterialNames;

namespace {

MaterialNames namesIn(const QByteArray &database)
{
    QBuffer device;
    device.setData(database);
    device.open(QIODevice::ReadOnly);
    return mat::readMaterialNames(device);
}

} // namespace

class tst_material_names : public QObject
{
    Q_OBJECT

private slots:
    void namesAreThoseOfTheMaterials_data()
    {
        QTest::addColumn<QByteArray>("database");
        QTest::addColumn<QStringList>("names");
        const auto row = [](const char *name, const char *database, const QStringList &names) {
            QTest::newRow(name) << QByteArray(database) << names;
        };
        const QString a = QStringLiteral("A");
        const QString b = QStringLiteral("B");
        const QString c = QStringLiteral("C");
        row("one", "<m><material><name>A</name></material></m>", {a});
        row("in the order of the file",
            "<m><material><name>B</name></material><material><name>A</name></material></m>", {b, a});
        row("a material as the root", "<material><name>A</name></material>", {a});
        row("several of one material", "<material><name>A</name><x/><name>B</name></material>", {a, b});
        row("at any depth", "<material><x><y><name>A</name></y></x></material>", {a});
        row("equal ones stay",
            "<m><material><name>A</name></material><material><name>A</name></material></m>", {a, a});
        row("outside a material", "<m><name>A</name><material/><name>B</name></m>", {});
        row("no materials", "<m/>", {});
        row("a material without a name", "<m><material><density>1</density></material></m>", {});
        row("empty", "<material><name/><name></name></material>", {QString(), QString()});
        row("blanks are kept", "<material><name> A\n\tB </name></material>", {QStringLiteral(" A\n\tB ")});
        row("line ends of Windows", "<material><name>A\r\nB</name></material>", {QStringLiteral("A\nB")});
        row("references", "<material><name>&lt;A&#xe9;&amp;&#13;</name></material>",
            {QStringLiteral("<Aé&\r")});
        row("character data", "<material><name><![CDATA[A<]]>B</name></material>", {QStringLiteral("A<B")});
        row("a comment within", "<material><name>A<!-- x -->B</name></material>", {QStringLiteral("AB")});
        row("an element within", "<material><name>CO<sub>2</sub>!</name></material>",
            {QStringLiteral("CO2!")});
        row("a name within", "<material><name>A<name>B</name>C</name></material>", {QStringLiteral("ABC")});
        row("materials within", "<material><material><name>A</name></material><name>B</name></material>",
            {a, b});
        row("materials within, name first",
            "<material><name>A</name><material><name>B</name></material></material>", {a, b});
        row("materials within and after",
            "<m><material><material/></material><name>A</name><material><name>C</name></material></m>", {c});
        row("a prefix", "<x:m xmlns:x='u'><x:material><x:name>A</x:name></x:material></x:m>", {a});
        row("other cases", "<m><Material><name>A</name></Material><material><Name>B</Name></material></m>",
            {});
        row("names by attribute", "<material name='A'/>", {});
        row("an internal entity", "<!DOCTYPE m [<!ENTITY e 'A'>]><material><name>&e;</name></material>", {a});
        row("other scripts",
            "<?xml version='1.0' encoding='UTF-8'?><material><name>Öl</name><name>空気</name>"
            "<name>Вода</name><name>\xf0\x9f\x92\xa7</name></material>",
            {QStringLiteral("Öl"), QStringLiteral("空気"), QStringLiteral("Вода"), QStringLiteral("💧")});
        row("Latin-1", "<?xml version='1.0' encoding='ISO-8859-1'?><material><name>\xd6l</name></material>",
            {QStringLiteral("Öl")});
        row("a byte order mark", "\xef\xbb\xbf<material><name>A</name></material>", {a});
    }

    void namesAreThoseOfTheMaterials()
    {
        QFETCH(const QByteArray, database);
        const MaterialNames read = namesIn(database);
        QCOMPARE(read.error, QString());
        QTEST(read.names, "names");
    }

    void documentInUtf16IsRead()
    {
        const QString document = QStringLiteral("\ufeff<material><name>空\r\n気</name></material>");
        const MaterialNames read =
            namesIn(QByteArray(reinterpret_cast<const char *>(document.utf16()), document.size() * 2));
        QCOMPARE(read.error, QString());
        QCOMPARE(read.names, QStringList(QStringLiteral("空\n気")));
    }

    void whatCannotBeReadGivesNoNames_data()
    {
        QTest::addColumn<QByteArray>("database");
        QTest::addColumn<QString>("line");
        const auto row = [](const char *name, const char *database, const char *line) {
            QTest::newRow(name) << QByteArray(database) << QString::fromLatin1(line);
        };
        row("nothing", "", " at line 1");
        row("no XML", "Standard Jet DB", " at line 1");
        row("cut within a material", "<m>\n<material>\n<name>A</name>\n", " at line 4");
        row("cut within a name", "<m>\n<material><name>A</name></material>\n<material><name>B", " at line 3");
        row("cut within the root", "<m>\n<material><name>A</name></material>", " at line 2");
        row("tags that do not match", "<m><material><name>A</material></name></m>", " at line 1");
        row("two roots", "<material><name>A</name></material>\n<material/>", " at line 2");
        row("a reference to nothing", "<material><name>&water;</name></material>", " at line 1");
        row("a character that XML forbids", "<material><name>A\x01</name></material>", " at line 1");
        row("bytes that are no UTF-8", "<material><name>A\xff</name></material>", " at line 1");
        row("an encoding that nobody knows", "<?xml version='1.0' encoding='x-none'?><m/>", " at line 1");
        row("an entity of entities",
            "<!DOCTYPE m [<!ENTITY a 'AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA'>"
            "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'><!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'>"
            "<!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>]><material><name>&d;</name></material>",
            " at line 1");
    }

    void whatCannotBeReadGivesNoNames()
    {
        QFETCH(const QByteArray, database);
        QFETCH(const QString, line);
        const MaterialNames read = namesIn(database);
        QVERIFY2(read.error.endsWith(line), qPrintable(read.error));
        QVERIFY(read.error.size() > line.size());
        QCOMPARE(read.names, QStringList());
    }

    void deviceThatBreaksGivesNoNames_data()
    {
        QTest::addColumn<QByteArray>("read");
        QTest::newRow("at once") << QByteArray();
        QTest::newRow("between materials") << QByteArray("<m><material><name>A</name></material>");
        QTest::newRow("within a name") << QByteArray("<m><material><name>A</name><name>B");
    }

    void deviceThatBreaksGivesNoNames()
    {
        QFETCH(const QByteArray, read);
        BrokenDevice device(read);
        const MaterialNames names = mat::readMaterialNames(device);
        QVERIFY(!names.error.isEmpty());
        QCOMPARE(names.names, QStringList());
    }

    void elementsNestedDeeplyAreRead_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::newRow("materials") << QByteArray("material");
        QTest::newRow("names") << QByteArray("name");
    }

    void elementsNestedDeeplyAreRead()
    {
        QFETCH(const QByteArray, element);
        constexpr int depth = 200'000;
        const MaterialNames read =
            namesIn("<material>" + QByteArray("<" + element + ">").repeated(depth) + "<name>A</name>" +
                    QByteArray("</" + element + ">").repeated(depth) + "</material>");
        QCOMPARE(read.error, QString());
        QCOMPARE(read.names, QStringList(QStringLiteral("A")));
    }

    void fileIsRead()
    {
        const TestFolder folder;
        const QString fileName = folder.path(QStringLiteral("材料 Größe.mdb"));
        QVERIFY(writeBytes(fileName, "<material>\r\n<name>A</name>\r\n</material>\r\n"));
        const MaterialNames read = mat::readMaterialNames(fileName);
        QCOMPARE(read.error, QString());
        QCOMPARE(read.names, QStringList(QStringLiteral("A")));
    }

    void fileThatCannotBeOpenedTellsWhy()
    {
        const TestFolder folder;
        const MaterialNames missing = mat::readMaterialNames(folder.path(QStringLiteral("missing.mdb")));
        QVERIFY(!missing.error.isEmpty());
        QVERIFY2(!missing.error.contains(QStringLiteral("at line")), qPrintable(missing.error));
        QVERIFY(!mat::readMaterialNames(folder.path()).error.isEmpty());
    }
};

NVX_GUILESS_TEST(tst_material_names)
#include "tst_material_names.moc"
