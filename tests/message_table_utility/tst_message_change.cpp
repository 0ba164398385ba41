#include "message_table_utility/message_change.h"
#include "message_table_utility/message_preview.h"
#include "message_table_utility/message_store.h"
#include "support/test_class.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using namespace MessageWindow;

namespace {

Clt::MessageKey keyOf(const QString &tag)
{
    return {tag, u"A::run"_s, u"p"_s};
}

Clt::Message messageOf(const QString &tag, Clt::Severity severity, const QString &text)
{
    Clt::Message message;
    message.setKey(keyOf(tag));
    message.setSeverity(severity);
    message.setText(text);
    return message;
}

/// The messages One and Two; Two is new.
Clt::MessageTable twoMessages()
{
    Clt::MessageTable table;
    table.insert(messageOf(u"One"_s, Clt::Severity::Warning, u"First text"_s));
    Clt::Message two = messageOf(u"Two"_s, Clt::Severity::Critical, u"second text, text"_s);
    two.setTitle(u"A Text"_s);
    two.setState(Clt::MessageState::New);
    table.insert(two);
    return table;
}

QString textOf(const MessageStore &store, const QString &tag)
{
    return store.table().message(keyOf(tag)).sourceText();
}

QString shown(const TableStatus &status)
{
    return u"%1 new, %2 obsolete, %3 incomplete, %4 unsaved"_s.arg(status.newMessages)
        .arg(status.obsolete)
        .arg(status.incomplete)
        .arg(status.unsaved);
}

} // namespace

class tst_message_change : public QObject
{
    Q_OBJECT

private slots:
    void onlyMessagesThatDifferAreChanged()
    {
        const Clt::MessageTable table = twoMessages();
        const Keys keys{keyOf(u"One"_s), keyOf(u"Two"_s), keyOf(u"None"_s)};
        const MessageChanges severity = severityChanges(table, keys, Clt::Severity::Warning);
        QCOMPARE(severity.size(), std::size_t(1));
        QCOMPARE(severity.front().before->severity(), Clt::Severity::Critical);
        QCOMPARE(severity.front().after->severity(), Clt::Severity::Warning);
        QCOMPARE(severity.front().after->key().tag, u"Two"_s);
        const MessageChanges state = stateChanges(table, keys, Clt::MessageState::New);
        QCOMPARE(state.size(), std::size_t(1));
        QCOMPARE(state.front().after->key().tag, u"One"_s);
        QVERIFY(fieldChange(table, keyOf(u"One"_s), Field::Text, u"First text"_s).empty());
    }

    void everyOccurrenceIsReplaced_data()
    {
        QTest::addColumn<QString>("searched");
        QTest::addColumn<bool>("matchesCase");
        QTest::addColumn<QStringList>("expected"); // text of One; title and text of Two
        QTest::newRow("ignoring case")
            << u"TEXT"_s << false << QStringList{u"First %"_s, u"A %"_s, u"second %, %"_s};
        QTest::newRow("matching case")
            << u"text"_s << true << QStringList{u"First %"_s, u"A Text"_s, u"second %, %"_s};
        QTest::newRow("not found") << u"none"_s << false
                                   << QStringList{u"First text"_s, u"A Text"_s, u"second text, text"_s};
        QTest::newRow("nothing to find")
            << QString() << false << QStringList{u"First text"_s, u"A Text"_s, u"second text, text"_s};
    }

    void everyOccurrenceIsReplaced()
    {
        QFETCH(const QString, searched);
        QFETCH(const bool, matchesCase);
        MessageStore store;
        store.reset(twoMessages());
        const Search search{searched, matchesCase ? Qt::CaseSensitive : Qt::CaseInsensitive};
        store.change(u"Replace"_s,
                     replacements(store.table(), {keyOf(u"One"_s), keyOf(u"Two"_s)}, search, u"%"_s));
        const Clt::Message two = store.table().message(keyOf(u"Two"_s));
        QTEST((QStringList{textOf(store, u"One"_s), two.sourceTitle(), two.sourceText()}), "expected");
    }

    void typingIsOneStepForEachField()
    {
        MessageStore store;
        store.reset(twoMessages());
        for (const char *text : {"a", "ab", "abc"})
            store.type(u"Typing"_s, keyOf(u"One"_s), Field::Text, QString::fromLatin1(text));
        store.type(u"Typing"_s, keyOf(u"Two"_s), Field::Text, u"x"_s);
        store.type(u"Typing"_s, keyOf(u"Two"_s), Field::Title, u"y"_s);
        QCOMPARE(store.undoStack().count(), 3);
        store.undoStack().setIndex(0);
        QCOMPARE(textOf(store, u"One"_s), u"First text"_s);
        QCOMPARE(textOf(store, u"Two"_s), u"second text, text"_s);
        store.undoStack().setIndex(1);
        QCOMPARE(textOf(store, u"One"_s), u"abc"_s);
    }

    void textThatIsTypedBackLeavesNoStep()
    {
        MessageStore store;
        store.reset(twoMessages());
        store.type(u"Typing"_s, keyOf(u"One"_s), Field::Text, u"x"_s);
        QVERIFY(!store.undoStack().isClean());
        store.type(u"Typing"_s, keyOf(u"One"_s), Field::Text, u"First text"_s);
        QVERIFY(store.undoStack().isClean());
        QVERIFY(!store.undoStack().canUndo());
    }

    void addedAndRemovedMessagesAreOneStep()
    {
        MessageStore store;
        store.reset(twoMessages());
        QSignalSpy tableChanged(&store, &MessageStore::tableChanged);
        const Clt::Message two = store.table().message(keyOf(u"Two"_s));
        const Clt::Message three = messageOf(u"Three"_s, Clt::Severity::Status, u"3"_s);
        store.change(u"Step"_s, {{two, std::nullopt}, {std::nullopt, three}});
        QVERIFY(!store.table().contains(two.key()) && store.table().contains(three.key()));
        store.undoStack().undo();
        QVERIFY(store.table().contains(two.key()) && !store.table().contains(three.key()));
        QCOMPARE(tableChanged.size(), 2);
        QCOMPARE(shown(store.status()), shown(statusOf(store.table())));
    }

    void replacedTableComesBack()
    {
        MessageStore store;
        store.reset(twoMessages());
        store.replaceTable(u"Synchronize"_s, {});
        QVERIFY(store.table().isEmpty());
        QCOMPARE(shown(store.status()), u"0 new, 0 obsolete, 0 incomplete, 0 unsaved"_s);
        store.undoStack().undo();
        QCOMPARE(store.table().size(), std::size_t(2));
        store.undoStack().redo();
        QVERIFY(store.table().isEmpty());
    }

    void statusFollowsEveryStep()
    {
        MessageStore store;
        store.reset(twoMessages());
        QCOMPARE(shown(store.status()), u"1 new, 0 obsolete, 1 incomplete, 0 unsaved"_s);
        const Keys keys{keyOf(u"One"_s), keyOf(u"Two"_s)};
        store.change(u"1"_s, severityChanges(store.table(), keys, Clt::Severity::Status));
        QCOMPARE(shown(store.status()), u"1 new, 0 obsolete, 0 incomplete, 1 unsaved"_s);
        store.change(u"2"_s, stateChanges(store.table(), keys, Clt::MessageState::Obsolete));
        QCOMPARE(shown(store.status()), u"0 new, 2 obsolete, 0 incomplete, 1 unsaved"_s);
        store.undoStack().setIndex(0);
        QCOMPARE(shown(store.status()), u"1 new, 0 obsolete, 1 incomplete, 0 unsaved"_s);
    }

    void previewIsWhatTheUserSees_data()
    {
        QTest::addColumn<Clt::Severity>("severity");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("expected"); // title, text, action, buttons
        QTest::newRow("critical") << Clt::Severity::Critical << u"T"_s << u"Title %1|<1> of <9>|Act <2>|Ok"_s;
        QTest::newRow("warning") << Clt::Severity::Warning << u"T"_s << u"|<1> of <9>||Ok"_s;
        QTest::newRow("status") << Clt::Severity::Status << u"T"_s << u"|<1> of <9>||"_s;
        QTest::newRow("question with answers")
            << Clt::Severity::Question << u"Is it? Save? Yes, No; No"_s << u"Title %1|<1> of <9>||Yes, No"_s;
        QTest::newRow("question without answers")
            << Clt::Severity::Question << u"OVERWRITE"_s << u"Title %1|<1> of <9>||Ok"_s;
        QTest::newRow("question with unknown answers")
            << Clt::Severity::Question << u"Save? Perhaps; No"_s << u"Title %1|<1> of <9>||Ok"_s;
    }

    void previewIsWhatTheUserSees()
    {
        QFETCH(const Clt::Severity, severity);
        QFETCH(const QString, tag);
        Clt::Message message = messageOf(tag, severity, u"%1 of %9"_s);
        message.setTitle(u"Title %1"_s);
        message.setAction(u"Act %2"_s);
        const PreviewTexts texts = previewOf(message);
        QTEST((QStringList{texts.title, texts.text, texts.action, Clt::answersToText(texts.buttons)}.join(
                  u'|')),
              "expected");
    }
};

NVX_GUILESS_TEST(tst_message_change)
#include "tst_message_change.moc"
