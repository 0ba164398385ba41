#include "editing_fixture.h"
#include "message_table_utility/adoption.h"
#include "support/test_class.h"
#include "translation/error_translation_table.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

using namespace MessageWindow;

namespace {

Clt::Message messageWith(const char *context, const char *tag, const QString &text,
                         Clt::MessageState state = Clt::MessageState::Obsolete)
{
    Clt::Message message = messageOf("client", context, tag, state);
    message.setText(text);
    return message;
}

/// A renamed function: a new message, and what it may be.
Clt::MessageTable renamedTable()
{
    Clt::MessageTable table;
    table.insert(messageWith("Solver::begin", "MeshIsLarge", QString(), Clt::MessageState::New));
    Clt::Message old = messageWith("Solver::start", "MeshIsLarge", u"The mesh has %1 cells."_s);
    old.setSeverity(Clt::Severity::Critical);
    old.setTitle(u"Large mesh"_s);
    old.setAction(u"Make the elements larger."_s);
    old.setSolution(7);
    table.insert(old);
    table.insert(messageWith("Mesh::check", "MeshIsTooLarge", u"Too many cells"_s));
    table.insert(messageWith("Session::open", "NoServer", u"No server"_s));
    table.insert(messageWith("Solver::stop", "MeshIsLarge", u"Kept"_s, Clt::MessageState::InSync));
    return table;
}

Clt::MessageKey keyOf(const char *context, const char *tag)
{
    return messageOf("client", context, tag).key();
}

/// The messages of the table's contexts as "CONTEXT|SOURCE|TRANSLATION|TYPE".
QStringList shown(const Translation::TranslationTable &table)
{
    QStringList lines;
    for (const auto &[name, context] : table.contexts()) {
        for (const Translation::TranslationMessage &message : context.messages())
            lines.append(QStringList{name, message.source, message.translation, message.type}.join(u'|'));
    }
    return lines;
}

Translation::TranslationTable translatedTable()
{
    Translation::TranslationTable table;
    Translation::TranslationContext old(u"Solver::start"_s);
    old.append({u"Large mesh"_s, u"Gro\u00dfes Netz"_s, QString(), u"title"_s});
    old.append({u"Open"_s, u"Offen"_s, u"unfinished"_s, QString()});
    table.setContext(old);
    table.addString(u"Solver::begin"_s, u"Large mesh"_s);
    table.addString(u"Solver::begin"_s, u"Open"_s);
    return table;
}

} // namespace

class tst_adoption : public QObject
{
    Q_OBJECT

private slots:
    void similarStringsAreRecognised_data()
    {
        QTest::addColumn<QString>("one");
        QTest::addColumn<QString>("other");
        QTest::addColumn<bool>("areSimilar");
        QTest::newRow("equal except for the case") << u"MeshIsLarge"_s << u"MESHISLARGE"_s << true;
        QTest::newRow("a word added") << u"MeshIsLarge"_s << u"MeshIsTooLarge"_s << true;
        QTest::newRow("nothing in common") << u"MeshIsLarge"_s << u"NoServer"_s << false;
        QTest::newRow("both empty") << QString() << QString() << false;
        QTest::newRow("the same letter") << u"a"_s << u"A"_s << true;
    }

    void similarStringsAreRecognised()
    {
        QFETCH(const QString, one);
        QFETCH(const QString, other);
        QTEST(similarity(one, other) > 0.5, "areSimilar");
        QCOMPARE(similarity(one, other), similarity(other, one));
    }

    void similarityIsTheShareOfCommonPairsOfLetters_data()
    {
        QTest::addColumn<QString>("one");
        QTest::addColumn<QString>("other");
        QTest::addColumn<double>("value");
        QTest::newRow("equal") << u"ab"_s << u"ab"_s << 1.0;
        QTest::newRow("a letter each") << u"a"_s << u"A"_s << 1.0;
        QTest::newRow("first and last letter of the alphabet") << u"AZ"_s << u"az"_s << 1.0;
        QTest::newRow("same letters in another order") << u"abc"_s << u"acb"_s << 0.0;
        QTest::newRow("a pair of two") << u"abc"_s << u"abd"_s << 0.5;
        QTest::newRow("a pair that the other has twice") << u"aa"_s << u"aaa"_s << 2.0 / 3;
    }

    void similarityIsTheShareOfCommonPairsOfLetters()
    {
        QFETCH(const QString, one);
        QFETCH(const QString, other);
        QTEST(similarity(one, other), "value");
    }

    void tagStandsInForAMissingText()
    {
        Clt::MessageTable table = renamedTable();
        table.insert(messageWith("Net::open", "HostIsGone", QString(), Clt::MessageState::New));
        table.insert(messageWith("Net::close", "Lost", u"Host is gone"_s));
        QCOMPARE(adoptionCandidates(table, keyOf("Net::open", "HostIsGone")),
                 Keys{keyOf("Net::close", "Lost")});
    }

    void sameTagComesBeforeSimilarTags()
    {
        const Keys candidates = adoptionCandidates(renamedTable(), keyOf("Solver::begin", "MeshIsLarge"));
        QCOMPARE(candidates,
                 (Keys{keyOf("Solver::start", "MeshIsLarge"), keyOf("Mesh::check", "MeshIsTooLarge")}));
    }

    void similarTextIsACandidate()
    {
        Clt::MessageTable table = renamedTable();
        table.insert(messageWith("Net::open", "HostGone", u"No server!"_s, Clt::MessageState::New));
        QCOMPARE(adoptionCandidates(table, keyOf("Net::open", "HostGone")),
                 (Keys{keyOf("Session::open", "NoServer")}));
    }

    void adoptionTakesEverythingButTheKey()
    {
        Clt::MessageTable table = renamedTable();
        const std::optional<Adoption> adopted =
            adoption(table, keyOf("Solver::begin", "MeshIsLarge"), keyOf("Solver::start", "MeshIsLarge"));
        QVERIFY(adopted);
        QCOMPARE(adopted->before.state(), Clt::MessageState::New);
        const Clt::Message &after = adopted->after;
        QCOMPARE(after.key().context, u"Solver::begin"_s);
        QCOMPARE(after.severity(), Clt::Severity::Critical);
        QCOMPARE(after.state(), Clt::MessageState::InSync);
        QCOMPARE(after.sourceTitle(), u"Large mesh"_s);
        QCOMPARE(after.sourceText(), u"The mesh has %1 cells."_s);
        QCOMPARE(after.sourceAction(), u"Make the elements larger."_s);
        QCOMPARE(after.solution(), 7);
        QCOMPARE(adopted->removed.key().context, u"Solver::start"_s);
        QVERIFY(!adoption(table, after.key(), after.key()));
        QVERIFY(!adoption(table, after.key(), keyOf("Gone", "MeshIsLarge")));
    }

    void adoptedTranslationsStayUnfinished()
    {
        Translation::TranslationTable table = translatedTable();
        QCOMPARE(adoptableTranslations(table), 1);
        adoptTranslations(table);
        QCOMPARE(shown(table), (QStringList{u"Solver::begin|Large mesh|Gro\u00dfes Netz|unfinished"_s,
                                            u"Solver::begin|Open|Open|unfinished"_s,
                                            u"Solver::start|Large mesh|Gro\u00dfes Netz|"_s,
                                            u"Solver::start|Open|Offen|unfinished"_s}));
        QCOMPARE(table.contexts().at(u"Solver::start"_s).messages().front().comment, u"title"_s);
        QCOMPARE(adoptableTranslations(table), 0);
    }

    void chosenMessageIsAdoptedAndCanBeUndone()
    {
        UtilityFixture f;
        QVERIFY(renamedTable().save(f.otherFile));
        QVERIFY(f.window.openFile(f.otherFile));
        f.window.show();
        const QStringList before = f.shownRows();
        f.filter()->setText(u"new"_s);
        f.view()->selectRow(0);
        f.action("actionAdopt")->trigger();
        auto *list = f.child<QListWidget>("candidateList");
        QVERIFY(list);
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(0)->text(), u"(client, Solver::start, MeshIsLarge)"_s);
        QCOMPARE(list->window()->findChild<QLabel *>(u"previewTitle"_s)->text(), u"Large mesh"_s);
        f.child<QDialogButtonBox>("adoptionButtons")->button(QDialogButtonBox::Ok)->click();
        f.filter()->clear();
        QVERIFY(f.shownRows().contains(u"client|Solver::begin|MeshIsLarge|InSync"_s));
        QCOMPARE(f.rowCount(), before.size() - 1);
        f.action("actionUndo")->trigger();
        QCOMPARE(f.shownRows(), before);
    }

    // Everything but the choice of the files, whose dialogs are the system's.
    void renameNeedsOnlyTheKeyboard()
    {
        EditingFixture f;
        Clt::MessageTable table;
        Clt::Message old =
            messageWith("start", "MeshIsLarge", u"The mesh is large."_s, Clt::MessageState::InSync);
        table.insert(old);
        QVERIFY(table.save(f.otherFile));
        Translation::TranslationTable translation;
        Translation::TranslationContext context(u"start"_s);
        context.append({u"The mesh is large."_s, u"Gro\u00dfes Netz."_s, QString(), QString()});
        translation.setContext(context);
        QVERIFY(translation.save(f.translationFile));
        QVERIFY(f.window.openFile(f.otherFile));
        f.activate();

        f.chooseProjectOf("void begin() { REPORT_ERROR(\"MeshIsLarge\"); }");
        f.chooseInFileMenu("actionSynchronize");
        QCOMPARE(f.shownRows(),
                 (QStringList{u"client|begin|MeshIsLarge|New"_s, u"client|start|MeshIsLarge|Obsolete"_s}));
        EditingFixture::press(Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(f.label("contextLabel"), u"begin"_s);
        EditingFixture::press(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_VERIFY(f.child<QListWidget>("candidateList")->hasFocus());
        EditingFixture::press(Qt::Key_Return);
        f.activate();
        QCOMPARE(f.shownRows(), QStringList(u"client|begin|MeshIsLarge|InSync"_s));
        QCOMPARE(f.label("contextLabel"), u"begin"_s);
        EditingFixture::press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(readFile(f.otherFile).contains("<text>The mesh is large.</text>"));

        f.dialogs.fileToChoose = f.translationFile;
        f.dialogs.isConfirmed = true;
        f.chooseInFileMenu("actionTranslate");
        Translation::TranslationTable updated;
        QVERIFY(updated.load(f.translationFile));
        QCOMPARE(shown(updated), (QStringList{u"begin|The mesh is large.|Gro\u00dfes Netz.|unfinished"_s,
                                              u"start|The mesh is large.|Gro\u00dfes Netz.|"_s}));
        QVERIFY(f.child<QListWidget>("findingsList")->hasFocus());
    }

    void cancelledAdoptionChangesNothing()
    {
        UtilityFixture f;
        QVERIFY(renamedTable().save(f.otherFile));
        QVERIFY(f.window.openFile(f.otherFile));
        f.window.show();
        f.filter()->setText(u"new"_s);
        f.view()->selectRow(0);
        f.action("actionAdopt")->trigger();
        f.child<QDialogButtonBox>("adoptionButtons")->button(QDialogButtonBox::Cancel)->click();
        QVERIFY(!f.window.hasUnsavedChanges());
    }

    void onlyANewMessageWithACandidateAdopts()
    {
        UtilityFixture f;
        QVERIFY(f.window.openFile(f.tableFile));
        f.action("actionAdopt")->trigger();
        QCOMPARE(f.status(), u"Select a new message"_s);
        f.view()->selectRow(2);
        f.action("actionAdopt")->trigger();
        QCOMPARE(f.status(), u"Select a new message"_s);
        f.view()->selectRow(1);
        f.action("actionAdopt")->trigger();
        QCOMPARE(f.status(), u"No obsolete message has a similar tag or text"_s);
    }

    void updateOffersTranslationsOfOtherContexts_data()
    {
        QTest::addColumn<bool>("isConfirmed");
        QTest::newRow("taken over") << true;
        QTest::newRow("declined") << false;
    }

    void updateOffersTranslationsOfOtherContexts()
    {
        QFETCH(const bool, isConfirmed);
        UtilityFixture f;
        Translation::TranslationTable table;
        Translation::TranslationContext old(u"Old::run"_s);
        old.append({u"Text"_s, u"Wortlaut"_s, QString(), QString()});
        table.setContext(old);
        QVERIFY(table.save(f.translationFile));
        Clt::MessageTable messages;
        messages.insert(messageWith("New::run", "T", u"Text"_s, Clt::MessageState::InSync));
        QVERIFY(messages.save(f.otherFile));
        QVERIFY(f.window.openFile(f.otherFile));
        f.dialogs.fileToChoose = f.translationFile;
        f.dialogs.isConfirmed = isConfirmed;
        f.window.updateTranslation();
        QCOMPARE(f.dialogs.confirmations.size(), 1);
        QVERIFY(f.dialogs.confirmations.first().text.contains(u": 1\n"_s));
        Translation::TranslationTable updated;
        QVERIFY(updated.load(f.translationFile));
        QCOMPARE(shown(updated).first(),
                 isConfirmed ? u"New::run|Text|Wortlaut|unfinished"_s : u"New::run|Text|Text|unfinished"_s);
    }
};

NVX_TEST(tst_adoption)
#include "tst_adoption.moc"
