#include "message_table_utility/message_change.h"
#include "message_table_utility/message_preview.h"
#include "message_table_utility/message_store.h"
#include "support/test_class.h"

#include <QSignalSpy>
#include <QTest>

#include <numeric>

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

Clt::MessageTable manyMessages(int count)
{
    Clt::MessageTable table;
    for (int number = 0; number < count; ++number)
        table.insert(messageOf(QString::number(number), Clt::Severity::Warning, u"x"_s));
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
        const Places places = placesOf(table);
        const MessageEdits severity = severityEdits(places, {0, 1}, Clt::Severity::Warning);
        QCOMPARE(severity.size(), std::size_t(1));
        QCOMPARE(severity.front().number, 1);
        MessageValues expected = valuesOf(table.message(keyOf(u"Two"_s)));
        QCOMPARE(expected.severity, Clt::Severity::Critical);
        expected.severity = Clt::Severity::Warning;
        QVERIFY(severity.front().values == expected);
        const MessageEdits state = stateEdits(places, {0, 1}, Clt::MessageState::New);
        QCOMPARE(state.size(), std::size_t(1));
        QCOMPARE(state.front().number, 0);
        QVERIFY(fieldEdit(places, 0, Field::Text, u"First text"_s).empty());
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
        store.edit(u"Replace"_s, replacements(store.places(), {0, 1}, search, u"%"_s));
        const Clt::Message two = store.table().message(keyOf(u"Two"_s));
        QTEST((QStringList{textOf(store, u"One"_s), two.sourceTitle(), two.sourceText()}), "expected");
    }

    void typingIsOneStepForEachField()
    {
        MessageStore store;
        store.reset(twoMessages());
        for (const char *text : {"a", "ab", "abc"})
            store.type(u"Typing"_s, 0, Field::Text, QString::fromLatin1(text));
        store.type(u"Typing"_s, 1, Field::Text, u"x"_s);
        store.type(u"Typing"_s, 1, Field::Title, u"y"_s);
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
        store.type(u"Typing"_s, 0, Field::Text, u"x"_s);
        QVERIFY(!store.undoStack().isClean());
        store.type(u"Typing"_s, 0, Field::Text, u"First text"_s);
        QVERIFY(store.undoStack().isClean());
        QVERIFY(!store.undoStack().canUndo());
    }

    void replacementOfATextByItselfIsNoStep()
    {
        MessageStore store;
        store.reset(twoMessages());
        store.edit(u"Replace"_s, replacements(store.places(), {0, 1}, {u"text"_s}, u"text"_s));
        QCOMPARE(store.undoStack().count(), 1); // "A Text" has become "A text"
        store.edit(u"Replace"_s, replacements(store.places(), {0, 1}, {u"text"_s}, u"text"_s));
        QCOMPARE(store.undoStack().count(), 1);
    }

    void stoppedReplacementEndsThere()
    {
        const Clt::MessageTable table = manyMessages(3000);
        Numbers numbers(table.size());
        std::iota(numbers.begin(), numbers.end(), 0);
        const auto stop = [](qsizetype done) { return done < 2000; };
        const MessageEdits edits = replacements(placesOf(table), numbers, {u"x"_s}, u"y"_s, stop);
        QCOMPARE(edits.size(), std::size_t(2000));
    }

    void adoptionIsOneStep()
    {
        MessageStore store;
        store.reset(twoMessages());
        QSignalSpy tableChanged(&store, &MessageStore::tableChanged);
        const Clt::Message one = store.message(0);
        const Clt::Message two = store.message(1);
        Clt::Message after = two;
        after.setText(one.sourceText());
        store.adopt(u"Step"_s, {two, after, one});
        QCOMPARE(textOf(store, u"Two"_s), u"First text"_s);
        QVERIFY(!store.table().contains(one.key()));
        QCOMPARE(store.places().size(), std::size_t(1));
        QCOMPARE(shown(store.status()), shown(statusOf(store.table())));
        store.undoStack().undo();
        QCOMPARE(textOf(store, u"Two"_s), two.sourceText());
        QCOMPARE(store.message(0).key().tag, u"One"_s);
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
        store.edit(u"1"_s, severityEdits(store.places(), {0, 1}, Clt::Severity::Status));
        QCOMPARE(shown(store.status()), u"1 new, 0 obsolete, 0 incomplete, 1 unsaved"_s);
        store.edit(u"2"_s, stateEdits(store.places(), {0, 1}, Clt::MessageState::Obsolete));
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
