#include "editing_fixture.h"
#include "message_table_utility/findings.h"
#include "support/test_class.h"
#include "translation/error_translation_table.h"

#include <QListWidget>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList textsOf(const MessageWindow::Findings &findings)
{
    QStringList texts;
    for (const MessageWindow::Finding &finding : findings.findings)
        texts.append(finding.text);
    return texts;
}

QStringList linesOf(const QListWidget &list)
{
    QStringList lines;
    for (int row = 0; row < list.count(); ++row)
        lines.append(list.item(row)->text());
    return lines;
}

QList<int> selectedRows(const QTableView &view)
{
    QList<int> rows;
    const QModelIndexList indexes = view.selectionModel()->selectedRows();
    for (const QModelIndex &index : indexes)
        rows.append(index.row());
    return rows;
}

void selectRows(const QTableView &view, const QList<int> &rows)
{
    view.selectionModel()->clearSelection();
    for (const int row : rows)
        view.selectionModel()->select(view.model()->index(row, 0),
                                      QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void clickRow(QListWidget &list, int row)
{
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                      list.visualItemRect(list.item(row)).center());
}

} // namespace

class tst_window_findings : public QObject
{
    Q_OBJECT

private slots:
    void messagesAreListedInKeyOrder()
    {
        UtilityFixture f;
        QVERIFY(f.window.openFile(f.tableFile));
        const MessageWindow::Findings findings = MessageWindow::tableFindings(f.window.messages());
        QCOMPARE(textsOf(findings), (QStringList{
                                        u"(client, A::run, Bravo): no longer found in the sources"_s,
                                        u"(client, B::run, Alpha): not reviewed yet"_s,
                                        u"(client, B::run, Alpha): Text: missing"_s,
                                        u"(solver, A::run, Zulu): Text: missing"_s,
                                    }));
        QCOMPARE(findings.summary, u"Findings: 4"_s);
        QCOMPARE(findings.findings.at(1).key->tag, u"Alpha"_s);
    }

    void stringsAreListedWithTheirMessages()
    {
        Clt::MessageTable table;
        Clt::Message message = messageOf("client", "A::run", "Tag");
        message.setText(u"Cells: %1"_s);
        table.insert(message);
        Translation::TranslationContext context(u"A::run"_s);
        context.append({u"Cells: %1"_s, u" Zellen: &%2"_s, QString(), QString()});
        context.append({u"Gone"_s, u"Weg"_s, u"obsolete"_s, QString()});
        context.append({u"Open"_s, u"Open"_s, u"unfinished"_s, QString()});
        context.append({u"Good"_s, u"Gut"_s, QString(), QString()});
        Translation::TranslationTable translation;
        translation.setContext(context);
        const MessageWindow::Findings findings =
            MessageWindow::translationFindings(translation, u"dir/client_de.ts"_s, table);
        const QString cells = u"A::run, \"Cells: %1\": "_s;
        QCOMPARE(
            textsOf(findings),
            (QStringList{cells + u"%1 is missing"_s, cells + u"the source has no %2"_s,
                         cells + u"the source has no accelerator"_s,
                         cells + u"begins with different blanks than the source"_s,
                         u"A::run, \"Gone\": no longer used"_s, u"A::run, \"Open\": not translated yet"_s}));
        QCOMPARE(findings.findings.front().key->tag, u"Tag"_s);
        QVERIFY(!findings.findings.back().key);
        QCOMPARE(findings.summary, u"client_de.ts: 2 finished, 1 unfinished, 1 obsolete, 1 with different "
                                   u"placeholders, 1 with "
                                   "different accelerators, 1 with different blanks"_s);
    }

    void chosenFindingShowsItsMessage()
    {
        EditingFixture f;
        QVERIFY(!f.isShown("findingsDock"));
        f.action("actionCheck")->trigger();
        QVERIFY(f.isShown("findingsDock"));
        auto *list = f.child<QListWidget>("findingsList");
        QCOMPARE(list->count(), 4);
        list->setCurrentRow(3);
        QCOMPARE(f.label("tagLabel"), u"Zulu"_s);
        list->setCurrentRow(1);
        QCOMPARE(f.label("tagLabel"), u"Alpha"_s);
        f.select(2);
        clickRow(*list, 1); // it is selected already
        QCOMPARE(f.label("tagLabel"), u"Alpha"_s);
    }

    void listingFindingsPreservesTheSelection_data()
    {
        QTest::addColumn<QList<int>>("rows");
        QTest::newRow("nothing selected") << QList<int>{};
        QTest::newRow("a message") << QList<int>{2};
        QTest::newRow("several messages") << QList<int>{1, 2};
    }

    void listingFindingsPreservesTheSelection()
    {
        QFETCH(const QList<int>, rows);
        EditingFixture f;
        auto *list = f.child<QListWidget>("findingsList");
        for (int time = 0; time < 2; ++time) {
            selectRows(*f.view(), rows);
            f.action("actionCheck")->trigger();
            QVERIFY(list->hasFocus());
            QCOMPARE(list->selectedItems().size(), 0);
            QCOMPARE(selectedRows(*f.view()), rows);
            list->setCurrentRow(0);
            QCOMPARE(f.label("tagLabel"), u"Bravo"_s);
        }
    }

    void returnOpensTheMessageOfAFinding()
    {
        EditingFixture f;
        f.action("actionPanel")->trigger();
        QVERIFY(!f.isShown("messageDock"));
        f.view()->clearSelection();
        f.action("actionCheck")->trigger();
        EditingFixture::press(Qt::Key_Return);
        QCOMPARE(f.label("tagLabel"), u"Bravo"_s);
        QTRY_VERIFY(f.field("textField")->hasFocus());
    }

    void escapeInTheListReturnsToTheTable()
    {
        EditingFixture f;
        QVERIFY(!f.isEnabled("actionFindings"));
        f.action("actionCheck")->trigger();
        EditingFixture::press(Qt::Key_Escape);
        QVERIFY(f.view()->hasFocus());
        QVERIFY(f.isShown("findingsDock"));
        f.action("actionFindings")->trigger();
        QVERIFY(!f.isShown("findingsDock"));
    }

    void findingOfAHiddenMessageClearsTheFilter()
    {
        EditingFixture f;
        f.action("actionCheck")->trigger();
        f.filter()->setText(u"Bravo"_s);
        auto *list = f.child<QListWidget>("findingsList");
        list->setCurrentRow(0);
        QCOMPARE(f.filter()->text(), u"Bravo"_s);
        list->setCurrentRow(3);
        QCOMPARE(f.filter()->text(), QString());
        QCOMPARE(f.label("tagLabel"), u"Zulu"_s);
    }

    void findingWhoseMessageIsGoneDoesNothing()
    {
        EditingFixture f;
        f.chooseProjectOf(oneMessageSource);
        f.window.synchronize();
        f.activate();
        f.action("actionCheck")->trigger();
        auto *list = f.child<QListWidget>("findingsList");
        const qsizetype one = linesOf(*list).indexOf(u"(client, f, One): not reviewed yet"_s);
        QVERIFY(one >= 0);
        f.action("actionUndo")->trigger();
        f.select(0);
        list->setCurrentRow(static_cast<int>(one));
        EditingFixture::press(Qt::Key_Return);
        QVERIFY(list->hasFocus());
        QCOMPARE(f.label("tagLabel"), u"Bravo"_s);
    }

    void findingsGoWithTheirTable()
    {
        EditingFixture f;
        f.action("actionCheck")->trigger();
        f.window.newTable();
        QVERIFY(!f.isShown("findingsDock") && !f.isEnabled("actionFindings"));
        QVERIFY(f.window.openFile(f.tableFile));
        f.action("actionCheck")->trigger();
        QVERIFY(f.window.openFile(f.tableFile));
        QVERIFY(!f.isShown("findingsDock") && !f.isEnabled("actionFindings"));
    }

    void updateOfATranslationListsItsFindings()
    {
        UtilityFixture f;
        Clt::MessageTable table;
        Clt::Message message = messageOf("client", "A::run", "Tag");
        message.setText(u"Text"_s);
        table.insert(message);
        QVERIFY(table.save(f.otherFile));
        QVERIFY(f.window.openFile(f.otherFile));
        f.window.show();
        QVERIFY(writeBytes(f.translationFile, "<TS/>"));
        f.dialogs.fileToChoose = f.translationFile;
        f.window.updateTranslation();
        auto *list = f.child<QListWidget>("findingsList");
        QCOMPARE(linesOf(*list), QStringList(u"A::run, \"Text\": not translated yet"_s));
        list->setCurrentRow(0);
        QCOMPARE(f.child<QLabel>("tagLabel")->text(), u"Tag"_s);
    }

    void longListIsCut()
    {
        UtilityFixture f;
        Clt::MessageTable table = tableOf(1001);
        for (const auto &[key, message] : Clt::MessageTable(table)) {
            Clt::Message isNew = message;
            isNew.setState(Clt::MessageState::New);
            isNew.setText(u"Text"_s);
            table.insert(isNew);
        }
        QVERIFY(table.save(f.otherFile));
        QVERIFY(f.window.openFile(f.otherFile));
        f.action("actionCheck")->trigger();
        auto *list = f.child<QListWidget>("findingsList");
        QCOMPARE(list->count(), 1001);
        QCOMPARE(list->item(1000)->text(), u"... and 1 more"_s);
        list->setCurrentRow(1000);
    }
};

NVX_TEST(tst_window_findings)
#include "tst_window_findings.moc"
