#include "nvx_util/registry_key.h"
#include "nvx_util/system.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>

#include <array>
#include <memory>

using namespace Qt::Literals::StringLiterals;
using Nvx::Util::Registry;
using Nvx::Util::RegistryKey;

namespace {

const QString scratch = u"HKEY_CURRENT_USER\\Software\\Velmora\\Test scratch"_s;
const QString translators = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Velmora\\Kelvane\\Translators"_s;
const QString folderValue = u"Folder"_s;

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

    void aStringIsReadAsItWasWritten_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << u"de-DE"_s;
        QTest::newRow("empty") << QString::fromLatin1("");
        QTest::newRow("blanks and quotes") << u" \"a\" b "_s;
        QTest::newRow("umlauts and Japanese") << u"C:\\Größe\\日本"_s;
        QTest::newRow("10,000 characters") << QString(10000, u'x');
    }

    void aStringIsReadAsItWasWritten()
    {
        QFETCH(QString, text);
        QVERIFY(RegistryKey(scratch).setText(u"a"_s, text));
        QCOMPARE(RegistryKey(scratch).text(u"a"_s), std::optional<QString>(text));
    }

    void keysAndValueNamesAreComparedWithoutCase()
    {
        QVERIFY(RegistryKey(scratch).setText(u"Locale"_s, u"de-DE"_s));
        const RegistryKey shouted(scratch.toUpper());
        QCOMPARE(shouted.text(u"LOCALE"_s), std::optional<QString>(u"de-DE"_s));
        QVERIFY(RegistryKey(scratch.toUpper()).setText(u"LOCALE"_s, u"fr-FR"_s));
        QCOMPARE(RegistryKey(scratch).valueNames(), QStringList(u"Locale"_s));
    }

    void slashesInANameDoNotSeparateKeys()
    {
        const QString name = u"a/b\\c"_s;
        QVERIFY(RegistryKey(scratch).setText(name, u"x"_s));
        QCOMPARE(RegistryKey(scratch).valueNames(), QStringList(name));
        QCOMPARE(RegistryKey(scratch).text(name), std::optional<QString>(u"x"_s));
    }

    void textOrNumberReturnsAString()
    {
        QVERIFY(RegistryKey(scratch).setText(u"a"_s, u"x"_s));
        QCOMPARE(RegistryKey(scratch).textOrNumber(u"A"_s), std::optional<QString>(u"x"_s));
        QVERIFY(!RegistryKey(scratch).textOrNumber(u"missing"_s));
        QVERIFY(!RegistryKey(scratch + u"\\Missing"_s).textOrNumber(u"a"_s));
    }

    void textOrNumberReturnsTheDigitsOfASignedNumber_data()
    {
        QTest::addColumn<quint32>("number");
        QTest::addColumn<QString>("digits");
        QTest::newRow("zero") << quint32{0} << u"0"_s;
        QTest::newRow("the largest signed one") << quint32{0x7fffffff} << u"2147483647"_s;
        QTest::newRow("the smallest signed one") << quint32{0x80000000} << u"-2147483648"_s;
        QTest::newRow("all bits") << quint32{0xffffffff} << u"-1"_s;
    }

    void textOrNumberReturnsTheDigitsOfASignedNumber()
    {
        QFETCH(const quint32, number);
        QVERIFY(RegistryKey(scratch).setNumber(u"a"_s, number));
        QTEST(RegistryKey(scratch).textOrNumber(u"A"_s).value_or(QString()), "digits");
    }

    void theEmptyNameIsTheDefaultValue()
    {
        QVERIFY(RegistryKey(scratch).setText(QString(), u"default"_s));
        QCOMPARE(RegistryKey(scratch).text(QString()), std::optional<QString>(u"default"_s));
    }

    void listingAMissingKeyDoesNotCreateIt()
    {
        const QString missing = scratch + u"\\Missing"_s;
        const RegistryKey key(missing);
        QVERIFY(!key.hasEntries());
        QVERIFY(key.valueNames().isEmpty());
        QVERIFY(key.subKeyNames().isEmpty());
        QVERIFY(!key.text(u"a"_s));
        QVERIFY(!RegistryKey(scratch).subKeyNames().contains(u"Missing"_s));
    }

    void aKeyWithOnlyASubKeyHasEntries()
    {
        const QString above = scratch + u"\\Above"_s;
        QVERIFY(RegistryKey(above + u"\\Below"_s).setText(u"a"_s, u"b"_s));
        QVERIFY(RegistryKey(above).valueNames().isEmpty());
        QCOMPARE(RegistryKey(above).subKeyNames(), QStringList(u"Below"_s));
        QVERIFY(RegistryKey(above).hasEntries());
    }

    void aRemovedValueIsGoneAndItsNeighbourStays()
    {
        QVERIFY(RegistryKey(scratch).setText(u"a"_s, u"1"_s));
        QVERIFY(RegistryKey(scratch).setText(u"b"_s, u"2"_s));
        QVERIFY(RegistryKey(scratch).removeValue(u"A"_s));
        QCOMPARE(RegistryKey(scratch).valueNames(), QStringList(u"b"_s));
        QVERIFY(RegistryKey(scratch).removeValue(u"a"_s));
    }

    void aNumberIsReadAsItWasWritten_data()
    {
        QTest::addColumn<quint32>("number");
        QTest::newRow("zero") << quint32(0);
        QTest::newRow("three") << quint32(3);
        QTest::newRow("the largest signed one") << quint32(0x7fffffff);
        QTest::newRow("minus one") << static_cast<quint32>(-1);
    }

    void aNumberIsReadAsItWasWritten()
    {
        QFETCH(quint32, number);
        QVERIFY(RegistryKey(scratch).setNumber(u"a"_s, number));
        QCOMPARE(RegistryKey(scratch).number(u"a"_s), std::optional<quint32>(number));
    }

    void aStringIsNotANumberNorANumberAString()
    {
        QVERIFY(RegistryKey(scratch).setText(u"text"_s, u"3"_s));
        QVERIFY(RegistryKey(scratch).setNumber(u"number"_s, 3));
        QVERIFY(!RegistryKey(scratch).number(u"text"_s));
        QVERIFY(!RegistryKey(scratch).text(u"number"_s));
        QVERIFY(!RegistryKey(scratch).number(u"missing"_s));
    }

    void aKeyIsRemovedWithItsSubKeysOnly()
    {
        const QStringList removed = {u"\\Group"_s, u"\\Group\\Deep\\Deeper"_s};
        const QString neighbour = scratch + u"\\Group 2"_s;
        for (const QString &key : removed + QStringList{u"\\Group 2"_s})
            QVERIFY(RegistryKey(scratch + key).setText(u"a"_s, u"b"_s));
        QVERIFY(RegistryKey(scratch + u"\\GROUP"_s).removeWhole());
        for (const QString &key : removed)
            QVERIFY(!RegistryKey(scratch + key).hasEntries());
        QVERIFY(!RegistryKey(scratch).subKeyNames().contains(u"Group"_s));
        QCOMPARE(RegistryKey(neighbour).text(u"a"_s), std::optional(u"b"_s));
    }

    void aMissingKeyCountsAsRemoved_data()
    {
        QTest::addColumn<QString>("below");
        QTest::newRow("missing") << u"\\Missing"_s;
        QTest::newRow("parent key missing") << u"\\Missing\\Too"_s;
    }

    void aMissingKeyCountsAsRemoved()
    {
        QFETCH(QString, below);
        QVERIFY(RegistryKey(scratch + below).removeWhole());
        QVERIFY(!RegistryKey(scratch).subKeyNames().contains(u"Missing"_s));
    }

    void aRootIsNeverRemoved() { QVERIFY(!RegistryKey(u"HKEY_CURRENT_USER"_s).removeWhole()); }

    void anUnknownRootRefusesEveryChange()
    {
        RegistryKey nowhere(u"HKEY_NOWHERE\\Software"_s);
        QVERIFY(!nowhere.text(u"a"_s));
        QVERIFY(!nowhere.hasEntries());
        QVERIFY(!nowhere.removeValue(u"a"_s));
    }

    void theTranslatorsFolderIsRead()
    {
        const QString folder = u"C:\\Übersetzer\\日本 (x64)"_s;
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

    void aFolderThatDoesNotFitIsReplacedByAnEmptyString_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("expectedLength");
        QTest::newRow("exactly fits") << 9 << 9;
        QTest::newRow("one character too long") << 10 << 0;
        QTest::newRow("far too long") << 10000 << 0;
    }

    void aFolderThatDoesNotFitIsReplacedByAnEmptyString()
    {
        QFETCH(int, length);
        QFETCH(int, expectedLength);
        QVERIFY(RegistryKey(translators).setText(folderValue, QString(length, u'x')));
        std::array<wchar_t, 12> buffer;
        buffer.fill(L'?');
        Registry::readKelvaneTranslatorsFolder(buffer.data(), 10);
        QCOMPARE(QString::fromWCharArray(buffer.data()), QString(expectedLength, u'x'));
        QVERIFY(buffer[10] == L'?' && buffer[11] == L'?');
    }

    void anEmptyBufferIsNotWrittenTo()
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
