#include "materials/mat_translation_table.h"
#include "support/file_bytes.h"
#include "support/processor_time.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "translation/error_translation_table.h"

#include <QBuffer>
#include <QTest>

using Error::TranslationTable;
using mat::NameCounts;
using mat::NameSynchronization;
using Outcome = mat::TableUpdate::Outcome;

namespace {

const QString context = QStringLiteral("Clt::Material");

/// A table that holds the names, each finished, with "NAME!" for a translation.
TranslationTable tableOf(const QStringList &names)
{
    Error::TranslationContext held(context);
    for (const QString &name : names)
        held.append({name, name + u'!', QString(), QString()});
    TranslationTable table;
    table.setContext(held);
    return table;
}

/// The messages of the context: "SOURCE=TRANSLATION (TYPE)".
QStringList shown(const TranslationTable &table)
{
    QStringList texts;
    const auto found = table.contexts().find(context);
    if (found == table.contexts().end())
        return texts;
    for (const Error::TranslationMessage &message : found->second.messages())
        texts += QStringLiteral("%1=%2 (%3)").arg(message.source, message.translation, message.type);
    return texts;
}

/// "found new existing obsolete"
QString counted(const NameCounts &counts)
{
    return QStringLiteral("%1 %2 %3 %4")
        .arg(counts.found)
        .arg(counts.added)
        .arg(counts.existing())
        .arg(counts.obsolete);
}

QStringList names(const char *text)
{
    return QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
}

QStringList manyNames(int count)
{
    QStringList list;
    for (int number = 0; number < count; ++number)
        list += QStringLiteral("Stahl № %1").arg(number * 7919 % count);
    return list;
}

} // namespace

class tst_material_synchronization : public QObject
{
    Q_OBJECT

private slots:
    void differenceIsOfSets_data()
    {
        QTest::addColumn<QStringList>("database");
        QTest::addColumn<QStringList>("held");
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<QStringList>("obsolete");
        const auto row = [](const char *name, const char *database, const char *held, const char *added,
                            const char *obsolete) {
            QTest::newRow(name) << names(database) << names(held) << names(added) << names(obsolete);
        };
        row("nothing at all", "", "", "", "");
        row("an empty table", "B A", "", "A B", "");
        row("an empty database", "", "B A", "", "A B");
        row("the same", "A B", "B A", "", "");
        row("some of each", "A C E", "B C D", "A E", "B D");
        row("case matters", "a", "A", "a", "A");
        row("new ones by code units", "b Ä a B Z", "", "B Z a b Ä", "");
    }

    void differenceIsOfSets()
    {
        QFETCH(const QStringList, database);
        QFETCH(const QStringList, held);
        const mat::NameDifference difference = mat::differenceOf(
            QSet<QString>(database.begin(), database.end()), QSet<QString>(held.begin(), held.end()));
        QTEST(difference.added, "added");
        QStringList obsolete = difference.obsolete.values();
        obsolete.sort();
        QTEST(obsolete, "obsolete");
    }

    // What exists is counted as found - obsolete - new, which is too low when there are obsolete names.
    void countsAreAsTheyAreReported_data()
    {
        QTest::addColumn<QStringList>("database");
        QTest::addColumn<QStringList>("held");
        QTest::addColumn<QString>("counts");
        const auto row = [](const char *name, const char *database, const char *held, const char *counts) {
            QTest::newRow(name) << names(database) << names(held) << QString::fromLatin1(counts);
        };
        row("nothing at all", "", "", "0 0 0 0");
        row("all new", "A B", "", "2 2 0 0");
        row("all there", "A B", "A B", "2 0 2 0");
        row("one of each", "A B", "B C", "2 1 0 1");
        row("below zero", "", "A B C", "0 0 -3 3");
        row("equal ones of the database once", "A A B", "B", "2 1 1 0");
        row("equal ones of the table once", "A", "B B A", "1 0 0 1");
    }

    void countsAreAsTheyAreReported()
    {
        QFETCH(const QStringList, database);
        QFETCH(const QStringList, held);
        TranslationTable table = tableOf(held);
        QTEST(counted(mat::synchronizeNames(table, database).counts), "counts");
    }

    void newNamesAreAddedInTheirOrder()
    {
        TranslationTable table = tableOf({QStringLiteral("M")});
        const NameSynchronization result = mat::synchronizeNames(table, names("Z A M Z"));
        QCOMPARE(result.added, names("A Z"));
        QCOMPARE(shown(table), QStringList({QStringLiteral("M=M! ()"), QStringLiteral("A=A (unfinished)"),
                                            QStringLiteral("Z=Z (unfinished)")}));
    }

    void namesThatAreGoneBecomeObsoleteAndKeepTheirTranslation()
    {
        TranslationTable table = tableOf(names("A B B"));
        QVERIFY(mat::synchronizeNames(table, names("A")).isChanged);
        QCOMPARE(shown(table), QStringList({QStringLiteral("A=A! ()"), QStringLiteral("B=B! (obsolete)"),
                                            QStringLiteral("B=B! (obsolete)")}));
    }

    void unfinishedNameThatIsGoneBecomesObsolete()
    {
        TranslationTable table;
        table.addString(context, QStringLiteral("A"));
        mat::synchronizeNames(table, {});
        QCOMPARE(shown(table), QStringList(QStringLiteral("A=A (obsolete)")));
    }

    void nameThatComesBackStaysObsolete()
    {
        TranslationTable table = tableOf(names("A"));
        mat::synchronizeNames(table, {});
        const NameSynchronization back = mat::synchronizeNames(table, names("A"));
        QCOMPARE(counted(back.counts), QStringLiteral("1 0 1 0"));
        QVERIFY(!back.isChanged);
        QCOMPARE(shown(table), QStringList(QStringLiteral("A=A! (obsolete)")));
    }

    void sameDatabaseAgainBringsNothing()
    {
        TranslationTable table;
        QVERIFY(mat::synchronizeNames(table, names("A B")).isChanged);
        const NameSynchronization again = mat::synchronizeNames(table, names("A B"));
        QCOMPARE(counted(again.counts), QStringLiteral("2 0 2 0"));
        QVERIFY(!again.isChanged);
    }

    void obsoleteNamesAreCountedAgainButChangeNothing()
    {
        TranslationTable table = tableOf(names("A B"));
        QVERIFY(mat::synchronizeNames(table, names("A")).isChanged);
        const NameSynchronization again = mat::synchronizeNames(table, names("A"));
        QCOMPARE(counted(again.counts), QStringLiteral("1 0 0 1"));
        QVERIFY(!again.isChanged);
    }

    void otherContextsAreNotTouched()
    {
        const QString other = QStringLiteral("Clt::Session");
        TranslationTable table;
        table.addString(other, QStringLiteral("A"));
        QCOMPARE(mat::heldNames(table), QSet<QString>());
        QCOMPARE(counted(mat::synchronizeNames(table, names("A")).counts), QStringLiteral("1 1 0 0"));
        mat::synchronizeNames(table, {});
        QCOMPARE(table.contexts().at(other).messages().front().type, QStringLiteral("unfinished"));
    }

    void emptyNameIsANameLikeAnyOther()
    {
        TranslationTable table;
        QCOMPARE(counted(mat::synchronizeNames(table, {QString(), QStringLiteral("")}).counts),
                 QStringLiteral("1 1 0 0"));
        QCOMPARE(counted(mat::synchronizeNames(table, {QString()}).counts), QStringLiteral("1 0 1 0"));
    }

    void databaseWithoutNamesMakesNoContext()
    {
        TranslationTable table;
        QVERIFY(!mat::synchronizeNames(table, {}).isChanged);
        QVERIFY(table.contexts().empty());
    }

    void fileThatIsNoTranslationFileIsRefused()
    {
        QBuffer device;
        device.setData("<materials/>");
        QVERIFY(device.open(QIODevice::ReadOnly));
        TranslationTable table;
        QCOMPARE(mat::readTable(device, table), QStringLiteral("It is not a translation file"));
    }

    void timeGrowsWithTheNames()
    {
        const auto milliseconds = [](int count) {
            const QStringList database = manyNames(count);
            TranslationTable table = tableOf(manyNames(count / 2));
            const std::chrono::milliseconds before = processorTime();
            mat::synchronizeNames(table, database);
            mat::synchronizeNames(table, database);
            mat::synchronizeNames(table, {});
            return qint64((processorTime() - before).count());
        };
        milliseconds(10'000);
        const qint64 few = milliseconds(10'000);
        const qint64 many = milliseconds(100'000);
        // Squared it would be a hundred times.
        QVERIFY2(many < 40 * (few + 5), qPrintable(QStringLiteral("%1 ms, %2 ms").arg(few).arg(many)));
    }

    void unreadableDatabaseLeavesTheFile()
    {
        const TestFolder folder;
        const QString database = folder.path(QStringLiteral("matprop.mdb"));
        const QString translation = folder.path(QStringLiteral("matprop.ts"));
        QVERIFY(tableOf(names("A")).save(translation));
        const std::optional<QByteArray> before = fileBytes(translation);
        const mat::TableUpdate missing = mat::updateTranslationFile(database, translation);
        QCOMPARE(missing.outcome, Outcome::DatabaseNotRead);
        QVERIFY2(missing.error.startsWith(database + QStringLiteral(": ")), qPrintable(missing.error));
        QVERIFY(writeBytes(database, "<materials><material><name>B</name></material>"));
        QCOMPARE(mat::updateTranslationFile(database, translation).outcome, Outcome::DatabaseNotRead);
        QCOMPARE(fileBytes(translation), before);
    }

    void fileThatCannotBeWrittenIsTold()
    {
        const TestFolder folder;
        const QString database = folder.path(QStringLiteral("matprop.mdb"));
        QVERIFY(writeBytes(database, "<material><name>A</name></material>"));
        const QString translation = folder.path(QStringLiteral("missing/matprop.ts"));
        const mat::TableUpdate update = mat::updateTranslationFile(database, translation);
        QCOMPARE(update.outcome, Outcome::TableNotSaved);
        QCOMPARE(update.error, translation + QStringLiteral(": It cannot be written"));
    }

    void folderInPlaceOfTheFileIsTold()
    {
        const TestFolder folder;
        const QString database = folder.path(QStringLiteral("matprop.mdb"));
        QVERIFY(writeBytes(database, "<material><name>A</name></material>"));
        QCOMPARE(mat::updateTranslationFile(database, folder.path()).outcome, Outcome::TableNotRead);
    }

    void updatingAgainLeavesTheBytes()
    {
        const TestFolder folder;
        const QString database = folder.path(QStringLiteral("matprop.mdb"));
        const QString translation = folder.path(QStringLiteral("matprop.ts"));
        QVERIFY(writeBytes(database,
                           "<material><name>B</name><name>\xc3\x84 &lt;&#13;</name><name/></material>"));
        const mat::TableUpdate first = mat::updateTranslationFile(database, translation);
        QCOMPARE(first.outcome, Outcome::Updated);
        QCOMPARE(counted(first.counts), QStringLiteral("3 3 0 0"));
        const std::optional<QByteArray> before = fileBytes(translation);
        QCOMPARE(counted(mat::updateTranslationFile(database, translation).counts),
                 QStringLiteral("3 0 3 0"));
        QCOMPARE(fileBytes(translation), before);
    }
};

NVX_GUILESS_TEST(tst_material_synchronization)
#include "tst_material_synchronization.moc"
