#include "many_names.h"
#include "materials/mat_translation_table.h"
#include "support/file_bytes.h"
#include "support/processor_time.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "translation/error_translation_table.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Materials::NameCounts;
using Materials::NameSynchronization;
using Translation::TranslationTable;

namespace {

const QString context = u"Clt::Material"_s;

/// A table with those names, all finished, each with the translation "NAME!".
TranslationTable tableOf(const QStringList &names)
{
    Translation::TranslationContext materials(context);
    for (const QString &name : names)
        materials.append({name, name + u'!', QString(), QString()});
    TranslationTable table;
    table.setContext(materials);
    return table;
}

/// The messages of the context as "SOURCE=TRANSLATION (TYPE)".
QStringList shown(const TranslationTable &table)
{
    QStringList texts;
    const auto found = table.contexts().find(context);
    if (found == table.contexts().end())
        return texts;
    for (const Translation::TranslationMessage &message : found->second.messages())
        texts += u"%1=%2 (%3)"_s.arg(message.source, message.translation, message.type);
    return texts;
}

/// "found new existing obsolete"
QString counted(const NameCounts &counts)
{
    return u"%1 %2 %3 %4"_s.arg(counts.found).arg(counts.added).arg(counts.existing()).arg(counts.obsolete);
}

QStringList names(const char *text)
{
    return QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

class tst_material_synchronization : public QObject
{
    Q_OBJECT

private slots:
    void differenceIgnoresOrder_data()
    {
        QTest::addColumn<QStringList>("database");
        QTest::addColumn<QStringList>("inTable");
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<QStringList>("obsolete");
        const auto row = [](const char *name, const char *database, const char *inTable, const char *added,
                            const char *obsolete) {
            QTest::newRow(name) << names(database) << names(inTable) << names(added) << names(obsolete);
        };
        row("both empty", "", "", "", "");
        row("empty table", "B A", "", "A B", "");
        row("empty database", "", "B A", "", "A B");
        row("same names", "A B", "B A", "", "");
        row("some new, some obsolete", "A C E", "B C D", "A E", "B D");
        row("case matters", "a", "A", "a", "A");
        row("new names sorted by code units", "b Ä a B Z", "", "B Z a b Ä", "");
    }

    void differenceIgnoresOrder()
    {
        QFETCH(const QStringList, database);
        QFETCH(const QStringList, inTable);
        const Materials::NameDifference difference = Materials::differenceOf(
            QSet<QString>(database.begin(), database.end()), QSet<QString>(inTable.begin(), inTable.end()));
        QTEST(difference.added, "added");
        QStringList obsolete = difference.obsolete.values();
        obsolete.sort();
        QTEST(obsolete, "obsolete");
    }

    // Existing names are counted as found - obsolete - new, which is too low if there are obsolete names.
    void namesAreCountedAsReported_data()
    {
        QTest::addColumn<QStringList>("database");
        QTest::addColumn<QStringList>("inTable");
        QTest::addColumn<QString>("counts");
        const auto row = [](const char *name, const char *database, const char *inTable, const char *counts) {
            QTest::newRow(name) << names(database) << names(inTable) << QString::fromLatin1(counts);
        };
        row("both empty", "", "", "0 0 0 0");
        row("all new", "A B", "", "2 2 0 0");
        row("all existing", "A B", "A B", "2 0 2 0");
        row("one new, one obsolete", "A B", "B C", "2 1 0 1");
        row("negative", "", "A B C", "0 0 -3 3");
        row("duplicates in the database", "A A B", "B", "2 1 1 0");
        row("duplicates in the table", "A", "B B A", "1 0 0 1");
    }

    void namesAreCountedAsReported()
    {
        QFETCH(const QStringList, database);
        QFETCH(const QStringList, inTable);
        TranslationTable table = tableOf(inTable);
        QTEST(counted(Materials::synchronizeNames(table, database).counts), "counts");
    }

    void newNamesAreAddedInOrder()
    {
        TranslationTable table = tableOf({u"M"_s});
        const NameSynchronization result = Materials::synchronizeNames(table, names("Z A M Z"));
        QCOMPARE(result.added, names("A Z"));
        QCOMPARE(shown(table), QStringList({u"M=M! ()"_s, u"A=A (unfinished)"_s, u"Z=Z (unfinished)"_s}));
    }

    void removedNamesBecomeObsoleteAndKeepTheirTranslation()
    {
        TranslationTable table = tableOf(names("A B B"));
        QVERIFY(Materials::synchronizeNames(table, names("A")).isChanged);
        QCOMPARE(shown(table), QStringList({u"A=A! ()"_s, u"B=B! (obsolete)"_s, u"B=B! (obsolete)"_s}));
    }

    void removedUnfinishedNameBecomesObsolete()
    {
        TranslationTable table;
        table.addString(context, u"A"_s);
        Materials::synchronizeNames(table, {});
        QCOMPARE(shown(table), QStringList(u"A=A (obsolete)"_s));
    }

    void obsoleteNameThatIsFoundAgainStaysObsolete()
    {
        TranslationTable table = tableOf(names("A"));
        Materials::synchronizeNames(table, {});
        const NameSynchronization back = Materials::synchronizeNames(table, names("A"));
        QCOMPARE(counted(back.counts), u"1 0 1 0"_s);
        QVERIFY(!back.isChanged);
        QCOMPARE(shown(table), QStringList(u"A=A! (obsolete)"_s));
    }

    void sameDatabaseAgainChangesNothing()
    {
        TranslationTable table;
        QVERIFY(Materials::synchronizeNames(table, names("A B")).isChanged);
        const NameSynchronization again = Materials::synchronizeNames(table, names("A B"));
        QCOMPARE(counted(again.counts), u"2 0 2 0"_s);
        QVERIFY(!again.isChanged);
    }

    void obsoleteNamesAreCountedAgainButChangeNothing()
    {
        TranslationTable table = tableOf(names("A B"));
        QVERIFY(Materials::synchronizeNames(table, names("A")).isChanged);
        const NameSynchronization again = Materials::synchronizeNames(table, names("A"));
        QCOMPARE(counted(again.counts), u"1 0 0 1"_s);
        QVERIFY(!again.isChanged);
    }

    void otherContextsAreNotChanged()
    {
        const QString other = u"Clt::Session"_s;
        TranslationTable table;
        table.addString(other, u"A"_s);
        QCOMPARE(Materials::namesIn(table), QSet<QString>());
        QCOMPARE(counted(Materials::synchronizeNames(table, names("A")).counts), u"1 1 0 0"_s);
        Materials::synchronizeNames(table, {});
        QCOMPARE(table.contexts().at(other).messages().front().type, u"unfinished"_s);
    }

    void emptyNameIsTreatedLikeAnyOther()
    {
        TranslationTable table;
        QCOMPARE(counted(Materials::synchronizeNames(table, {QString(), u""_s}).counts), u"1 1 0 0"_s);
        QCOMPARE(counted(Materials::synchronizeNames(table, {QString()}).counts), u"1 0 1 0"_s);
    }

    void databaseWithoutNamesCreatesNoContext()
    {
        TranslationTable table;
        QVERIFY(!Materials::synchronizeNames(table, {}).isChanged);
        QVERIFY(table.contexts().empty());
    }

    void documentThatIsNoTranslationFileIsAnError()
    {
        QBuffer device;
        device.setData("<materials/>");
        QVERIFY(device.open(QIODevice::ReadOnly));
        QCOMPARE(Materials::readTable(device).error(), u"It is not a translation file"_s);
    }

    void timeIsProportionalToTheNames()
    {
        const auto milliseconds = [](int count) {
            const QStringList database = manyNames(count);
            TranslationTable table = tableOf(manyNames(count / 2));
            const std::chrono::milliseconds before = processorTime();
            Materials::synchronizeNames(table, database);
            Materials::synchronizeNames(table, database);
            Materials::synchronizeNames(table, {});
            return qint64((processorTime() - before).count());
        };
        milliseconds(10'000);
        const qint64 few = milliseconds(10'000);
        const qint64 many = milliseconds(100'000);
        // With quadratic time it would be a hundred times as long.
        QVERIFY2(many < 40 * (few + 5), qPrintable(u"%1 ms, %2 ms"_s.arg(few).arg(many)));
    }

    void unreadableDatabaseDoesNotChangeTheFile()
    {
        const TestFolder folder;
        const QString database = folder.path(u"matprop.mdb"_s);
        const QString translation = folder.path(u"matprop.ts"_s);
        QVERIFY(tableOf(names("A")).save(translation));
        const std::optional<QByteArray> before = fileBytes(translation);
        const auto missing = Materials::updateTranslationFile(database, translation);
        QVERIFY2(missing.error().startsWith(database + u": "_s), qPrintable(missing.error()));
        QVERIFY(writeBytes(database, "<materials><material><name>B</name></material>"));
        const auto damaged = Materials::updateTranslationFile(database, translation);
        QVERIFY2(damaged.error().startsWith(database + u": "_s), qPrintable(damaged.error()));
        QCOMPARE(fileBytes(translation), before);
    }

    void fileThatCannotBeWrittenIsReported()
    {
        const TestFolder folder;
        const QString database = folder.path(u"matprop.mdb"_s);
        QVERIFY(writeBytes(database, "<material><name>A</name></material>"));
        const QString translation = folder.path(u"missing/matprop.ts"_s);
        const auto update = Materials::updateTranslationFile(database, translation);
        QCOMPARE(update.error(), translation + u": It cannot be written"_s);
    }

    void folderInsteadOfTheFileIsReported()
    {
        const TestFolder folder;
        const QString database = folder.path(u"matprop.mdb"_s);
        QVERIFY(writeBytes(database, "<material><name>A</name></material>"));
        const auto update = Materials::updateTranslationFile(database, folder.path());
        QVERIFY2(update.error().startsWith(folder.path() + u": "_s), qPrintable(update.error()));
        QVERIFY(!update.error().endsWith(u"It cannot be written"_s));
    }

    void updatingAgainDoesNotChangeTheFile()
    {
        const TestFolder folder;
        const QString database = folder.path(u"matprop.mdb"_s);
        const QString translation = folder.path(u"matprop.ts"_s);
        QVERIFY(writeBytes(database,
                           "<material><name>B</name><name>\xc3\x84 &lt;&#13;</name><name/></material>"));
        const auto first = Materials::updateTranslationFile(database, translation);
        QCOMPARE(first.error(), QString());
        QCOMPARE(counted(first->counts), u"3 3 0 0"_s);
        const std::optional<QByteArray> before = fileBytes(translation);
        QCOMPARE(counted(Materials::updateTranslationFile(database, translation)->counts), u"3 0 3 0"_s);
        QCOMPARE(fileBytes(translation), before);
    }
};

NVX_GUILESS_TEST(tst_material_synchronization)
#include "tst_material_synchronization.moc"
