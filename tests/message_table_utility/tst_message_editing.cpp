#include "editing_fixture.h"
#include "support/test_class.h"

#include <QCheckBox>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

class tst_message_editing : public QObject
{
    Q_OBJECT

private slots:
    void selectedMessageIsShown();
    void fieldsAreThoseOfTheSeverity();
    void typingChangesTheMessageAndIsUndone();
    void typingInAnotherFieldOrMessageIsAnotherStep();
    void undoReturnsToTheMessageThatChanged();
    void severalMessagesAreChangedAtOnce();
    void remarksAndPreviewFollowTheTyping();
    void nextNewMessageIsFoundFromAnywhere();
    void textsAreFoundAndReplaced();
    void findNextWorksWithoutItsDialog();
    void savingAsksBeforeTextsAreDropped();
    void synchronisationIsUndone();
    void filterSearchesTheTexts();
};

void tst_message_editing::selectedMessageIsShown()
{
    EditingFixture f;
    QCOMPARE(f.label("processLabel"), u"client"_s);
    QCOMPARE(f.label("contextLabel"), u"B::run"_s);
    QCOMPARE(f.label("tagLabel"), u"Alpha"_s);
    QCOMPARE(f.child<QComboBox>("severityChoice")->currentText(), u"Information"_s);
    QCOMPARE(f.child<QComboBox>("stateChoice")->currentText(), u"New"_s);
    QVERIFY(!f.isShown("selectionLabel"));
    f.view()->clearSelection();
    QVERIFY(f.isShown("selectionLabel"));
    QVERIFY(!f.isShown("textField"));
}

void tst_message_editing::fieldsAreThoseOfTheSeverity()
{
    EditingFixture f;
    QVERIFY(!f.isShown("titleField") && f.isShown("textField") && !f.isShown("actionField"));
    f.choose("severityChoice", u"Critical"_s);
    QCOMPARE(f.alpha().severity(), Clt::Severity::Critical);
    QVERIFY(f.isShown("titleField") && f.isShown("textField") && f.isShown("actionField"));
    f.choose("severityChoice", u"Question"_s);
    QVERIFY(f.isShown("titleField") && !f.isShown("actionField"));

    // A text that is not saved any more stays in sight.
    f.field("titleField")->setPlainText(u"Title"_s);
    f.choose("severityChoice", u"Status"_s);
    QVERIFY(f.isShown("titleField"));
    QVERIFY(f.label("remarksLabel").contains(u"Title: not saved with this severity"_s));
}

void tst_message_editing::typingChangesTheMessageAndIsUndone()
{
    EditingFixture f;
    f.field("textField")->setFocus();
    EditingFixture::type(u"New text"_s);
    QCOMPARE(f.alpha().sourceText(), u"New text"_s);
    QVERIFY(f.window.hasUnsavedChanges());
    QCOMPARE(f.window.windowTitle(), u"Message Table Utility[*]"_s);
    EditingFixture::press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(f.alpha().sourceText(), QString());
    QCOMPARE(f.field("textField")->toPlainText(), QString());
    QVERIFY(!f.window.hasUnsavedChanges());
    QCOMPARE(f.window.windowTitle(), u"Message Table Utility"_s);
    f.action("actionRedo")->trigger();
    QCOMPARE(f.alpha().sourceText(), u"New text"_s);
    QCOMPARE(f.field("textField")->toPlainText(), u"New text"_s);
    QVERIFY(f.window.save());
    QVERIFY(!f.window.hasUnsavedChanges());
    f.action("actionUndo")->trigger();
    QVERIFY(f.window.hasUnsavedChanges());
}

void tst_message_editing::typingInAnotherFieldOrMessageIsAnotherStep()
{
    EditingFixture f;
    f.choose("severityChoice", u"Question"_s);
    f.field("titleField")->setPlainText(u"Title"_s);
    f.field("textField")->setPlainText(u"Text"_s);
    f.select(2);
    f.field("textField")->setPlainText(u"Other"_s);
    f.action("actionUndo")->trigger();
    QCOMPARE(f.alpha().sourceText(), u"Text"_s);
    f.action("actionUndo")->trigger();
    QCOMPARE(f.alpha().sourceText(), QString());
    QCOMPARE(f.alpha().sourceTitle(), u"Title"_s);
}

void tst_message_editing::undoReturnsToTheMessageThatChanged()
{
    EditingFixture f;
    f.field("textField")->setPlainText(u"One"_s);
    f.select(0);
    f.action("actionUndo")->trigger();
    QCOMPARE(f.label("tagLabel"), u"Alpha"_s);
    QCOMPARE(f.view()->currentIndex().row(), 1);
}

void tst_message_editing::severalMessagesAreChangedAtOnce()
{
    EditingFixture f;
    f.view()->selectAll();
    QCOMPARE(f.label("selectionLabel"), u"Selected messages: 3"_s);
    QVERIFY(f.isShown("severityChoice") && f.isShown("stateChoice") && !f.isShown("textField"));
    f.choose("severityChoice", u"Warning"_s);
    f.action("actionReviewed")->trigger();
    for (const auto &[key, message] : f.window.messages()) {
        QCOMPARE(message.severity(), Clt::Severity::Warning);
        QCOMPARE(message.state(), Clt::MessageState::InSync);
    }
    QCOMPARE(f.shownRows().filter(u"InSync"_s).size(), 3);
    QCOMPARE(f.label("selectionLabel"), u"Selected messages: 3"_s);
    f.action("actionUndo")->trigger();
    f.action("actionUndo")->trigger();
    QCOMPARE(f.shownRows(), UtilityFixture::tableRows());
    QVERIFY(!f.window.hasUnsavedChanges());
}

void tst_message_editing::remarksAndPreviewFollowTheTyping()
{
    EditingFixture f;
    QVERIFY(f.label("remarksLabel").contains(u"Text: missing"_s));
    QCOMPARE(f.label("statusLabel"), u"New: 1, obsolete: 1, incomplete: 2"_s);
    f.field("textField")->setPlainText(u"Cells: %2 "_s);
    QCOMPARE(f.label("remarksLabel"),
             u"\u2022 Text: ends with a blank\n\u2022 Text: %2 is used, but %1 is not"_s);
    f.field("textField")->setPlainText(u"Cells: %1"_s);
    QVERIFY(!f.isShown("remarksLabel"));
    QCOMPARE(f.label("previewText"), u"Cells: <1>"_s);
    QVERIFY(!f.isShown("previewTitle") && !f.isShown("previewAction"));
    QVERIFY(f.isShown("previewButtons"));
    QCOMPARE(f.label("statusLabel"), u"New: 1, obsolete: 1, incomplete: 1"_s);
    f.choose("severityChoice", u"Status"_s);
    QVERIFY(!f.isShown("previewButtons"));
}

void tst_message_editing::nextNewMessageIsFoundFromAnywhere()
{
    EditingFixture f;
    f.select(2);
    f.view()->setFocus();
    EditingFixture::press(Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(f.view()->currentIndex().row(), 1);
    QCOMPARE(f.view()->selectionModel()->selectedRows().size(), 1);
    f.select(0);
    f.field("textField")->setFocus();
    EditingFixture::press(Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(f.label("tagLabel"), u"Alpha"_s);
    QVERIFY(f.field("textField")->hasFocus());
    f.action("actionReviewed")->trigger();
    f.action("actionNextNew")->trigger();
    QCOMPARE(f.status(), u"There are no new messages"_s);
}

void tst_message_editing::textsAreFoundAndReplaced()
{
    EditingFixture f;
    f.field("textField")->setPlainText(u"The grid and the Grid"_s);
    f.select(2);
    f.field("textField")->setPlainText(u"No grid"_s);
    f.select(0);
    f.action("actionFind")->trigger();
    auto *find = f.child<QLineEdit>("findField");
    auto *findNext = f.child<QPushButton>("findNextButton");
    QVERIFY(find->isVisible());
    QVERIFY(!findNext->isEnabled());
    QTest::keyClicks(find, u"GRID"_s);
    findNext->click();
    QCOMPARE(f.label("tagLabel"), u"Alpha"_s);
    findNext->click();
    QCOMPARE(f.label("tagLabel"), u"Zulu"_s);

    f.child<QLineEdit>("replacementField")->setText(u"mesh"_s);
    f.child<QPushButton>("replaceButton")->click();
    QCOMPARE(f.window.messages().message(messageOf("solver", "A::run", "Zulu").key()).sourceText(),
             u"No mesh"_s);
    QCOMPARE(f.label("tagLabel"), u"Alpha"_s);
    f.child<QPushButton>("replaceAllButton")->click();
    QCOMPARE(f.alpha().sourceText(), u"The mesh and the mesh"_s);
    QCOMPARE(f.label("findResult"), u"Messages changed: 1"_s);
    findNext->click();
    QCOMPARE(f.label("findResult"), u"Not found"_s);
    f.action("actionUndo")->trigger();
    QCOMPARE(f.alpha().sourceText(), u"The grid and the Grid"_s);
    f.child<QCheckBox>("matchCaseBox")->setChecked(true);
    findNext->click();
    QCOMPARE(f.label("findResult"), u"Not found"_s);
}

void tst_message_editing::findNextWorksWithoutItsDialog()
{
    EditingFixture f;
    f.field("textField")->setPlainText(u"Grid"_s);
    f.select(0);
    f.view()->setFocus();
    EditingFixture::press(Qt::Key_F3); // there is nothing to find yet
    auto *find = f.child<QLineEdit>("findField");
    QTRY_VERIFY(find->hasFocus());
    EditingFixture::type(u"grid"_s);
    EditingFixture::press(Qt::Key_Escape);
    f.activate();
    EditingFixture::press(Qt::Key_F3);
    QCOMPARE(f.label("tagLabel"), u"Alpha"_s);
    find->setText(u"gone"_s);
    EditingFixture::press(Qt::Key_F3);
    QVERIFY(!find->isVisible());
    QCOMPARE(f.status(), u"Not found"_s);
}

void tst_message_editing::savingAsksBeforeTextsAreDropped()
{
    EditingFixture f;
    const QByteArray before = readFile(f.tableFile);
    f.choose("severityChoice", u"Question"_s);
    f.field("titleField")->setPlainText(u"Title"_s);
    f.choose("severityChoice", u"Warning"_s);
    QVERIFY(!f.window.save());
    QCOMPARE(f.dialogs.confirmations.size(), 1);
    QVERIFY(f.dialogs.confirmations.first().text.contains(u": 1\n"_s));
    QCOMPARE(readFile(f.tableFile), before);
    QVERIFY(f.window.hasUnsavedChanges());
    f.dialogs.isConfirmed = true;
    QVERIFY(f.window.save());
    QVERIFY(!readFile(f.tableFile).contains("Title"));
}

void tst_message_editing::synchronisationIsUndone()
{
    EditingFixture f;
    f.chooseProjectOf(oneMessageSource);
    f.window.synchronize();
    QCOMPARE(f.rowCount(), 4);
    QCOMPARE(f.label("statusLabel"), u"New: 1, obsolete: 3, incomplete: 1"_s);
    f.action("actionUndo")->trigger();
    QCOMPARE(f.shownRows(), UtilityFixture::tableRows());
    QVERIFY(!f.window.hasUnsavedChanges());
}

void tst_message_editing::filterSearchesTheTexts()
{
    EditingFixture f;
    f.field("textField")->setPlainText(u"Only here"_s);
    f.filter()->setText(u"ONLY h"_s);
    QCOMPARE(f.shownRows(), QStringList(UtilityFixture::tableRows().at(1)));
}

NVX_TEST(tst_message_editing)
#include "tst_message_editing.moc"
