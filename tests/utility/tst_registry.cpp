#include "nvx_util/registry.h"
#include "nvx_util/registry_key.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>

#include <array>
#include <memory>

using Nvx::Util::Registry;
using Nvx::Util::RegistryKey;

namespace {

const QString scratch = QStringLiteral("HKEY_CURRENT_USER\\Software\\Velmora\\Test scratch");
const QString translators = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Kelvane\\Translators");
const QString folderValue = QStringLiteral("Folder");

} // namespace

class tst_registry : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_machine = std::make_unique<TestMachine>();
        for (const QString &value : RegistryKey(scratch).valueNames())
            RegistryKey(scratch).removeValue(value);
    }
    void cleanup() { m_machine.reset(); }

    void aTextComesBackAsItWasWritten_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << QStringLiteral("de-DE");
        QTest::newRow("empty") << QString::fromLatin1("");
        QTest::newRow("blanks and quotes") << QStringLiteral(" \"a\" b ");
        QTest::newRow("umlauts and Japanese") << QStringLiteral("C:\\Größe\\日本");
        QTest::newRow("10,000 characters") << QString(10000, QLatin1Char('x'));
    }

    void aTextComesBackAsItWasWritten()
    {
        QFETCH(QString, text);
        QVERIFY(RegistryKey(scratch).setText(QStringLiteral("a"), text));
        QCOMPARE(RegistryKey(scratch).text(QStringLiteral("a")), std::optional<QString>(text));
    }

    void keysAndValueNamesAreComparedWithoutCase()
    {
        QVERIFY(RegistryKey(scratch).setText(QStringLiteral("Locale"), QStringLiteral("de-DE")));
        const RegistryKey shouted(scratch.toUpper());
        QCOMPARE(shouted.text(QStringLiteral("LOCALE")), std::optional<QString>(QStringLiteral("de-DE")));
        QVERIFY(RegistryKey(scratch.toUpper()).setText(QStringLiteral("LOCALE"), QStringLiteral("fr-FR")));
        QCOMPARE(RegistryKey(scratch).valueNames(), QStringList(QStringLiteral("Locale")));
    }

    void aNameWithSlashesIsANameLikeAnyOther()
    {
        const QString name = QStringLiteral("a/b\\c");
        QVERIFY(RegistryKey(scratch).setText(name, QStringLiteral("x")));
        QCOMPARE(RegistryKey(scratch).valueNames(), QStringList(name));
        QCOMPARE(RegistryKey(scratch).text(name), std::optional<QString>(QStringLiteral("x")));
    }

    void aTextOrNumberThatIsATextIsThatText()
    {
        QVERIFY(RegistryKey(scratch).setText(QStringLiteral("a"), QStringLiteral("x")));
        QCOMPARE(RegistryKey(scratch).textOrNumber(QStringLiteral("A")),
                 std::optional<QString>(QStringLiteral("x")));
        QVERIFY(!RegistryKey(scratch).textOrNumber(QStringLiteral("missing")));
        QVERIFY(!RegistryKey(scratch + QStringLiteral("\\Missing")).textOrNumber(QStringLiteral("a")));
    }

    void aTextOrNumberThatIsANumberIsItsSignedDigits_data()
    {
        QTest::addColumn<quint32>("number");
        QTest::addColumn<QString>("digits");
        QTest::newRow("zero") << quint32{0} << QStringLiteral("0");
        QTest::newRow("the largest signed one") << quint32{0x7fffffff} << QStringLiteral("2147483647");
        QTest::newRow("the smallest signed one") << quint32{0x80000000} << QStringLiteral("-2147483648");
        QTest::newRow("all bits") << quint32{0xffffffff} << QStringLiteral("-1");
    }

    void aTextOrNumberThatIsANumberIsItsSignedDigits()
    {
        QFETCH(const quint32, number);
        QVERIFY(RegistryKey(scratch).setNumber(QStringLiteral("a"), number));
        QTEST(RegistryKey(scratch).textOrNumber(QStringLiteral("A")).value_or(QString()), "digits");
    }

    void theEmptyNameIsTheDefaultValue()
    {
        QVERIFY(RegistryKey(scratch).setText(QString(), QStringLiteral("default")));
        QCOMPARE(RegistryKey(scratch).text(QString()), std::optional<QString>(QStringLiteral("default")));
    }

    void listingAMissingKeyDoesNotCreateIt()
    {
        const QString missing = scratch + QStringLiteral("\\Missing");
        const RegistryKey key(missing);
        QVERIFY(!key.hasEntries());
        QVERIFY(key.valueNames().isEmpty());
        QVERIFY(key.subKeyNames().isEmpty());
        QVERIFY(!key.text(QStringLiteral("a")));
        QVERIFY(!RegistryKey(scratch).subKeyNames().contains(QStringLiteral("Missing")));
    }

    void aKeyWithOnlyASubKeyHasEntries()
    {
        const QString above = scratch + QStringLiteral("\\Above");
        QVERIFY(
            RegistryKey(above + QStringLiteral("\\Below")).setText(QStringLiteral("a"), QStringLiteral("b")));
        QVERIFY(RegistryKey(above).valueNames().isEmpty());
        QCOMPARE(RegistryKey(above).subKeyNames(), QStringList(QStringLiteral("Below")));
        QVERIFY(RegistryKey(above).hasEntries());
    }

    void aRemovedValueIsGoneAndItsNeighbourStays()
    {
        QVERIFY(RegistryKey(scratch).setText(QStringLiteral("a"), QStringLiteral("1")));
        QVERIFY(RegistryKey(scratch).setText(QStringLiteral("b"), QStringLiteral("2")));
        QVERIFY(RegistryKey(scratch).removeValue(QStringLiteral("A")));
        QCOMPARE(RegistryKey(scratch).valueNames(), QStringList(QStringLiteral("b")));
        QVERIFY(RegistryKey(scratch).removeValue(QStringLiteral("a")));
    }

    void aNumberComesBackAsItWasWritten_data()
    {
        QTest::addColumn<quint32>("number");
        QTest::newRow("zero") << quint32(0);
        QTest::newRow("three") << quint32(3);
        QTest::newRow("the largest signed one") << quint32(0x7fffffff);
        QTest::newRow("minus one") << static_cast<quint32>(-1);
    }

    void aNumberComesBackAsItWasWritten()
    {
        QFETCH(quint32, number);
        QVERIFY(RegistryKey(scratch).setNumber(QStringLiteral("a"), number));
        QCOMPARE(RegistryKey(scratch).number(QStringLiteral("a")), std::optional<quint32>(number));
    }

    void aTextIsNoNumberAndANumberNoText()
    {
        QVERIFY(RegistryKey(scratch).setText(QStringLiteral("text"), QStringLiteral("3")));
        QVERIFY(RegistryKey(scratch).setNumber(QStringLiteral("number"), 3));
        QVERIFY(!RegistryKey(scratch).number(QStringLiteral("text")));
        QVERIFY(!RegistryKey(scratch).text(QStringLiteral("number")));
        QVERIFY(!RegistryKey(scratch).number(QStringLiteral("missing")));
    }

    void aKeyIsRemovedWithAllBelowItAndNothingBesideIt()
    {
        const QStringList removed = {QStringLiteral("\\Group"), QStringLiteral("\\Group\\Deep\\Deeper")};
        const QString neighbour = scratch + QStringLiteral("\\Group 2");
        for (const QString &key : removed + QStringList{QStringLiteral("\\Group 2")})
            QVERIFY(RegistryKey(scratch + key).setText(QStringLiteral("a"), QStringLiteral("b")));
        QVERIFY(RegistryKey(scratch + QStringLiteral("\\GROUP")).removeWhole());
        for (const QString &key : removed)
            QVERIFY(!RegistryKey(scratch + key).hasEntries());
        QVERIFY(!RegistryKey(scratch).subKeyNames().contains(QStringLiteral("Group")));
        QCOMPARE(RegistryKey(neighbour).text(QStringLiteral("a")), std::optional(QStringLiteral("b")));
    }

    void aMissingKeyCountsAsRemoved_data()
    {
        QTest::addColumn<QString>("below");
        QTest::newRow("missing itself") << QStringLiteral("\\Missing");
        QTest::newRow("missing with the key above it") << QStringLiteral("\\Missing\\Too");
    }

    void aMissingKeyCountsAsRemoved()
    {
        QFETCH(QString, below);
        QVERIFY(RegistryKey(scratch + below).removeWhole());
        QVERIFY(!RegistryKey(scratch).subKeyNames().contains(QStringLiteral("Missing")));
    }

    void aRootIsNeverRemoved() { QVERIFY(!RegistryKey(QStringLiteral("HKEY_CURRENT_USER")).removeWhole()); }

    void aRootThatDoesNotExistRefusesEverything()
    {
        RegistryKey nowhere(QStringLiteral("HKEY_NOWHERE\\Software"));
        QVERIFY(!nowhere.text(QStringLiteral("a")));
        QVERIFY(!nowhere.hasEntries());
        QVERIFY(!nowhere.removeValue(QStringLiteral("a")));
    }

    void theTranslatorsFolderIsReadWhole()
    {
        const QString folder = QStringLiteral("C:\\Übersetzer\\日本 (x64)");
        QVERIFY(RegistryKey(translators).setText(folderValue, folder));
        std::array<wchar_t, 100> buffer;
        Registry::readKelvaneTranslatorsFolder(buffer.data(), buffer.size());
        QCOMPARE(QString::fromWCharArray(buffer.data()), folder);
    }

    void withoutATranslatorsFolderTheBufferIsEmpty()
    {
        std::array<wchar_t, 100> buffer;
        buffer.fill(L'?');
        Registry::readKelvaneTranslatorsFolder(buffer.data(), buffer.size());
        QCOMPARE(QString::fromWCharArray(buffer.data()), QString());
    }

    void aFolderThatDoesNotFitIsNotCutShort_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("expectedLength");
        QTest::newRow("as long as fits") << 9 << 9;
        QTest::newRow("one too many") << 10 << 0;
        QTest::newRow("far too long") << 10000 << 0;
    }

    void aFolderThatDoesNotFitIsNotCutShort()
    {
        QFETCH(int, length);
        QFETCH(int, expectedLength);
        QVERIFY(RegistryKey(translators).setText(folderValue, QString(length, QLatin1Char('x'))));
        std::array<wchar_t, 12> buffer;
        buffer.fill(L'?');
        Registry::readKelvaneTranslatorsFolder(buffer.data(), 10);
        QCOMPARE(QString::fromWCharArray(buffer.data()), QString(expectedLength, QLatin1Char('x')));
        QVERIFY(buffer[10] == L'?' && buffer[11] == L'?');
    }

    void aBufferWithoutRoomIsLeftAlone()
    {
        wchar_t buffer = L'?';
        Registry::readKelvaneTranslatorsFolder(&buffer, 0);
        QVERIFY(buffer == L'?');
    }

private:
    std::unique_ptr<TestMachine> m_machine;
};

NVX_GUILESS_TEST(tst_registry)
#include "tst_registry.moc"
