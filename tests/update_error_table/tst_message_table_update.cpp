#include "clt_message_table.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "synchronisation/message_table_update.h"
#include "synchronisation/progress_log.h"

#include <QDateTime>
#include <QFileInfo>
#include <QTest>
#include <QTextStream>

using namespace Error;

namespace {

Clt::MessageKey key(const QString &tag)
{
    return {tag, QStringLiteral("N::C::f"), QStringLiteral("client")};
}

/// Keys with those tags, each found in a line of its own.
Scan::FoundKeys foundKeys(const QStringList &tags)
{
    Scan::FoundKeys found;
    for (const QString &tag : tags)
        found.insert(key(tag), {QStringLiteral("solver.cpp"), 10 + static_cast<int>(found.size())});
    return found;
}

Clt::Message message(const QString &tag, Clt::MessageState state)
{
    Clt::Message made;
    made.setKey(key(tag));
    made.setText(QStringLiteral("text of ") + tag);
    made.setState(state);
    return made;
}

} // namespace

class tst_message_table_update : public QObject
{
    Q_OBJECT

private slots:
    void newKeyGetsAMessageWithItsInitialValuesAndStateNew()
    {
        Clt::MessageTable table;
        const KeyCounts counts = synchronizeKeys(table, foundKeys({QStringLiteral("A")}));
        QCOMPARE(table.size(), std::size_t(1));
        const Clt::Message made = table.message(key(QStringLiteral("A")));
        QVERIFY(made.key() == key(QStringLiteral("A")));
        QCOMPARE(made.state(), Clt::MessageState::New);
        QCOMPARE(made.severity(), Clt::Severity::Information);
        QCOMPARE(made.text(), QString());
        QCOMPARE(made.answers(), Clt::Answers(Clt::Answer::Ok));
        QCOMPARE(counts.text(), QStringLiteral("Found 1 keys (1 new, 0 existing, and 0 obsolete)"));
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
        table.insert(message(QStringLiteral("A"), before));
        synchronizeKeys(table, found ? foundKeys({QStringLiteral("A")}) : Scan::FoundKeys());
        const Clt::Message after = table.message(key(QStringLiteral("A")));
        QTEST(after.state(), "after");
        QCOMPARE(after.text(), QStringLiteral("text of A"));
    }

    void foundMessagesKnowTheirFileAndLine()
    {
        Clt::MessageTable table;
        for (const char *tag : {"A", "B", "C"})
            table.insert(message(QString::fromLatin1(tag), Clt::MessageState::InSync));
        synchronizeKeys(table, foundKeys({QStringLiteral("B"), QStringLiteral("D"), QStringLiteral("C")}));
        QStringList places;
        for (const auto &[messageKey, found] : table)
            places.append(
                QStringLiteral("%1 %2:%3").arg(messageKey.tag, found.file(), QString::number(found.line())));
        QCOMPARE(places, QStringList({QStringLiteral("A :0"), QStringLiteral("B solver.cpp:10"),
                                      QStringLiteral("C solver.cpp:12"), QStringLiteral("D solver.cpp:11")}));
        QCOMPARE(table.message(key(QStringLiteral("B"))).text(), QStringLiteral("text of B"));
    }

    void countsAreOfTheSets()
    {
        Clt::MessageTable table;
        for (const char *tag : {"A", "B", "C"})
            table.insert(message(QString::fromLatin1(tag), Clt::MessageState::InSync));
        const KeyCounts counts =
            synchronizeKeys(table, foundKeys({QStringLiteral("B"), QStringLiteral("D")}));
        QCOMPARE(counts.found, 2);
        QCOMPARE(counts.added, 1);
        QCOMPARE(counts.existing, 3);
        QCOMPARE(counts.obsolete, 2);
        QCOMPARE(counts.text(), QStringLiteral("Found 2 keys (1 new, 3 existing, and 2 obsolete)"));
    }

    void nothingFoundHasALineOfItsOwn()
    {
        Clt::MessageTable table;
        table.insert(message(QStringLiteral("A"), Clt::MessageState::InSync));
        QCOMPARE(synchronizeKeys(table, {}).text(), QStringLiteral("Found 0 keys"));
    }

    void tableThatStaysTheSameKeepsItsTimeStamp()
    {
        const TestFolder folder;
        const QString table = folder.path(QStringLiteral("t.xml"));
        const QString project = folder.path(QStringLiteral("p.vcxproj"));
        QVERIFY(
            writeBytes(project, "<Project><ItemGroup><ClCompile Include=\"a.cpp\"/></ItemGroup></Project>"));
        QVERIFY(writeBytes(folder.path(QStringLiteral("a.cpp")), "void f() { REPORT_ERROR(\"A\"); }"));
        QString text;
        QTextStream stream(&text);
        ProgressLog log(stream, ProgressLog::Progress::Hidden);
        QVERIFY(synchronizeMessageTable(table, project, log).succeeded);

        const QDateTime longAgo = QDateTime::fromSecsSinceEpoch(1'000'000'000);
        QFile file(table);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(longAgo, QFileDevice::FileModificationTime));
        file.close();
        QVERIFY(synchronizeMessageTable(table, project, log).succeeded);
        QCOMPARE(QFileInfo(table).lastModified(), longAgo);
    }
};

NVX_GUILESS_TEST(tst_message_table_update)

#include "tst_message_table_update.moc"
