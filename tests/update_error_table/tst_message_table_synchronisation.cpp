#include "clt_message_table.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "synchronisation/message_table_synchronisation.h"
#include "synchronisation/progress_log.h"

#include <QDateTime>
#include <QFileInfo>
#include <QTest>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;
using namespace Synchronisation;

namespace {

Clt::MessageKey key(const QString &tag)
{
    return {tag, u"N::C::f"_s, u"client"_s};
}

/// Keys with these tags, each found on a different line.
Scan::FoundKeys foundKeys(const QStringList &tags)
{
    Scan::FoundKeys found;
    for (const QString &tag : tags)
        found.insert(key(tag), {u"solver.cpp"_s, 10 + static_cast<int>(found.size())});
    return found;
}

Clt::Message message(const QString &tag, Clt::MessageState state)
{
    Clt::Message made;
    made.setKey(key(tag));
    made.setText(u"text of "_s + tag);
    made.setState(state);
    return made;
}

} // namespace

class tst_message_table_synchronisation : public QObject
{
    Q_OBJECT

private slots:
    void newKeyGetsAMessageWithItsInitialValuesAndStateNew()
    {
        Clt::MessageTable table;
        const KeyCounts counts = synchronizeKeys(table, foundKeys({u"A"_s}));
        QCOMPARE(table.size(), std::size_t(1));
        const Clt::Message made = table.message(key(u"A"_s));
        QVERIFY(made.key() == key(u"A"_s));
        QCOMPARE(made.state(), Clt::MessageState::New);
        QCOMPARE(made.severity(), Clt::Severity::Information);
        QCOMPARE(made.text(), QString());
        QCOMPARE(made.answers(), Clt::Answers(Clt::Answer::Ok));
        QCOMPARE(counts.text(), u"Found 1 keys (1 new, 0 existing, and 0 obsolete)"_s);
    }

    void stateOfAKnownKey_data()
    {
        QTest::addColumn<Clt::MessageState>("before");
        QTest::addColumn<bool>("found");
        QTest::addColumn<Clt::MessageState>("after");
        using Clt::MessageState;
        QTest::newRow("in sync, found") << MessageState::InSync << true << MessageState::InSync;
        QTest::newRow("new, found") << MessageState::New << true << MessageState::New;
        QTest::newRow("obsolete, found") << MessageState::Obsolete << true << MessageState::Obsolete;
        QTest::newRow("in sync, not found") << MessageState::InSync << false << MessageState::Obsolete;
        QTest::newRow("new, not found") << MessageState::New << false << MessageState::Obsolete;
        QTest::newRow("obsolete, not found") << MessageState::Obsolete << false << MessageState::Obsolete;
    }

    void stateOfAKnownKey()
    {
        QFETCH(const Clt::MessageState, before);
        QFETCH(const bool, found);
        Clt::MessageTable table;
        table.insert(message(u"A"_s, before));
        synchronizeKeys(table, found ? foundKeys({u"A"_s}) : Scan::FoundKeys());
        const Clt::Message after = table.message(key(u"A"_s));
        QTEST(after.state(), "after");
        QCOMPARE(after.text(), u"text of A"_s);
    }

    void foundMessagesHaveTheirFileAndLine()
    {
        Clt::MessageTable table;
        for (const char *tag : {"A", "B", "C"})
            table.insert(message(QString::fromLatin1(tag), Clt::MessageState::InSync));
        synchronizeKeys(table, foundKeys({u"B"_s, u"D"_s, u"C"_s}));
        QStringList places;
        for (const auto &[messageKey, found] : table)
            places.append(u"%1 %2:%3"_s.arg(messageKey.tag, found.file(), QString::number(found.line())));
        QCOMPARE(places,
                 QStringList({u"A :0"_s, u"B solver.cpp:10"_s, u"C solver.cpp:12"_s, u"D solver.cpp:11"_s}));
        QCOMPARE(table.message(key(u"B"_s)).text(), u"text of B"_s);
    }

    void countsAreTheSizesOfTheSets()
    {
        Clt::MessageTable table;
        for (const char *tag : {"A", "B", "C"})
            table.insert(message(QString::fromLatin1(tag), Clt::MessageState::InSync));
        const KeyCounts counts = synchronizeKeys(table, foundKeys({u"B"_s, u"D"_s}));
        QCOMPARE(counts.found, 2);
        QCOMPARE(counts.added, 1);
        QCOMPARE(counts.existing, 3);
        QCOMPARE(counts.obsolete, 2);
        QCOMPARE(counts.becameObsolete, 2);
        QCOMPARE(counts.text(), u"Found 2 keys (1 new, 3 existing, and 2 obsolete)"_s);
        QCOMPARE(synchronizeKeys(table, foundKeys({u"D"_s})).becameObsolete, 1);
        QCOMPARE(synchronizeKeys(table, foundKeys({u"A"_s})).becameObsolete, 1);
        QCOMPARE(synchronizeKeys(table, {}).becameObsolete, 0);
    }

    void noFoundKeysHaveTheirOwnText()
    {
        Clt::MessageTable table;
        table.insert(message(u"A"_s, Clt::MessageState::InSync));
        QCOMPARE(synchronizeKeys(table, {}).text(), u"Found 0 keys"_s);
    }

    void tableWithEntitiesThatBlowUpIsNotReplaced()
    {
        const TestFolder folder;
        const QString table = folder.path(u"t.xml"_s);
        const QString project = folder.path(u"p.vcxproj"_s);
        const QByteArray contents = "<!DOCTYPE messageTable [<!ENTITY e \"" + QByteArray(4000, 'A') +
                                    "\">]>\n<messageTable>\n<message severity=\"Status\"><text>" +
                                    QByteArray("&e;").repeated(200'000) +
                                    "</text></message>\n</messageTable>\n";
        QVERIFY(writeBytes(table, contents));
        QVERIFY(writeBytes(project, "<Project/>"));
        QString text;
        QString errorText;
        QTextStream stream(&text);
        QTextStream errors(&errorText);
        ProgressLog log(stream, ProgressLog::Progress::Hidden);
        QCOMPARE(synchronizeMessageTable(table, project, log, errors).outcome.error(),
                 u"Could not load message table"_s);
        QVERIFY2(errorText.endsWith(u" at line 3\n"_s), qPrintable(errorText));
        QVERIFY(fileBytes(table) == contents);
    }

    void tableThatStaysTheSameKeepsItsTimeStamp()
    {
        const TestFolder folder;
        const QString table = folder.path(u"t.xml"_s);
        const QString project = folder.path(u"p.vcxproj"_s);
        QVERIFY(
            writeBytes(project, "<Project><ItemGroup><ClCompile Include=\"a.cpp\"/></ItemGroup></Project>"));
        QVERIFY(writeBytes(folder.path(u"a.cpp"_s), "void f() { REPORT_ERROR(\"A\"); }"));
        QString text;
        QTextStream stream(&text);
        ProgressLog log(stream, ProgressLog::Progress::Hidden);
        QVERIFY(synchronizeMessageTable(table, project, log, stream).outcome);

        const QDateTime longAgo = QDateTime::fromSecsSinceEpoch(1'000'000'000);
        QVERIFY(setChangeTime(table, longAgo));
        QVERIFY(synchronizeMessageTable(table, project, log, stream).outcome);
        QCOMPARE(QFileInfo(table).lastModified(), longAgo);
    }
};

NVX_GUILESS_TEST(tst_message_table_synchronisation)

#include "tst_message_table_synchronisation.moc"
