#include "editing_fixture.h"
#include "support/test_class.h"
#include "translation/error_translation_table.h"

#include <QListWidget>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

/// A day's work with the keyboard alone, except for the choice of files, whose dialogs are the system's.
class tst_day_of_work : public QObject
{
    Q_OBJECT

private slots:
    void dayOfWorkNeedsOnlyTheKeyboard();

private:
    void synchronize();
    void goToTheFirstNewMessage();
    void chooseItsSeverity();
    void writeItsTexts();
    void markItAsReviewed();
    void writeTheNextNewMessage();
    void replaceAWordEverywhere();
    void undoAndRedo();
    void listTheFindings();
    void correctAFinding();
    void saveTheTable();
    void updateTheTranslation();
    void leave();

    Clt::Message message(const char *tag) const
    {
        return f->window.messages().message(messageOf("client", "f", tag).key());
    }
    QListWidget &findings() const { return *f->child<QListWidget>("findingsList"); }

    EditingFixture *f = nullptr;
};

void tst_day_of_work::dayOfWorkNeedsOnlyTheKeyboard()
{
    using Step = void (tst_day_of_work::*)();
    static constexpr std::pair<const char *, Step> steps[] = {
        {"synchronize with the sources", &tst_day_of_work::synchronize},
        {"go to the first new message", &tst_day_of_work::goToTheFirstNewMessage},
        {"choose its severity", &tst_day_of_work::chooseItsSeverity},
        {"write its title, text and action", &tst_day_of_work::writeItsTexts},
        {"mark it as reviewed", &tst_day_of_work::markItAsReviewed},
        {"write the next new message", &tst_day_of_work::writeTheNextNewMessage},
        {"replace a word everywhere", &tst_day_of_work::replaceAWordEverywhere},
        {"undo and redo that", &tst_day_of_work::undoAndRedo},
        {"list the findings", &tst_day_of_work::listTheFindings},
        {"correct one of them", &tst_day_of_work::correctAFinding},
        {"save the table", &tst_day_of_work::saveTheTable},
        {"update the translation", &tst_day_of_work::updateTheTranslation},
        {"leave the program", &tst_day_of_work::leave},
    };

    EditingFixture fixture;
    f = &fixture;
    for (const auto &[name, step] : steps) {
        qInfo("%s", name);
        (this->*step)();
        if (QTest::currentTestFailed())
            return;
    }
}

void tst_day_of_work::synchronize()
{
    f->chooseProjectOf("void f() { REPORT_ERROR(\"One\"); REPORT_ERROR(\"Two\"); }");
    f->chooseInFileMenu("actionSynchronize");
    QCOMPARE(f->label("statusLabel"), u"New: 2, obsolete: 3, incomplete: 2"_s);
}

void tst_day_of_work::goToTheFirstNewMessage()
{
    EditingFixture::press(Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(f->label("tagLabel"), u"One"_s);
}

void tst_day_of_work::chooseItsSeverity()
{
    EditingFixture::press(Qt::Key_F2);
    QVERIFY(f->field("textField")->hasFocus());
    EditingFixture::press(Qt::Key_Backtab, Qt::ShiftModifier);
    EditingFixture::press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(f->child<QComboBox>("severityChoice")->hasFocus());
    EditingFixture::type(u"C"_s); // Critical
    QCOMPARE(message("One").severity(), Clt::Severity::Critical);
}

void tst_day_of_work::writeItsTexts()
{
    const std::pair<const char *, QString> texts[] = {{"titleField", u"Grid"_s},
                                                      {"textField", u"The grid is bad."_s},
                                                      {"actionField", u"Refine the grid."_s}};
    for (const auto &[name, text] : texts) {
        EditingFixture::press(Qt::Key_F2);
        QVERIFY2(f->field(name)->hasFocus(), name);
        EditingFixture::type(text);
    }
    QVERIFY(!f->isShown("remarksLabel"));
    QCOMPARE(f->label("previewAction"), u"Refine the grid."_s);
}

void tst_day_of_work::markItAsReviewed()
{
    EditingFixture::press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(message("One").state(), Clt::MessageState::InSync);
}

void tst_day_of_work::writeTheNextNewMessage()
{
    EditingFixture::press(Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(f->label("tagLabel"), u"Two"_s);
    EditingFixture::press(Qt::Key_F2);
    EditingFixture::type(u"No grid. "_s);
    EditingFixture::press(Qt::Key_Return, Qt::ControlModifier);
    EditingFixture::press(Qt::Key_Escape);
    QVERIFY(f->view()->hasFocus());
}

void tst_day_of_work::replaceAWordEverywhere()
{
    EditingFixture::press(Qt::Key_H, Qt::ControlModifier);
    QTRY_VERIFY(f->child<QLineEdit>("findField")->hasFocus());
    EditingFixture::type(u"grid"_s);
    EditingFixture::press(Qt::Key_Tab);
    EditingFixture::type(u"mesh"_s);
    const auto *replaceAll = f->child<QPushButton>("replaceAllButton");
    for (int key = 0; key < 10 && QApplication::focusWidget() != replaceAll; ++key)
        EditingFixture::press(Qt::Key_Tab);
    EditingFixture::press(Qt::Key_Space);
    QCOMPARE(f->label("findResult"), u"Messages changed: 2"_s);
    QTRY_COMPARE(QApplication::focusWidget(), replaceAll);
    EditingFixture::press(Qt::Key_Escape);
    f->activate();
    QCOMPARE(message("One").sourceText(), u"The mesh is bad."_s);
}

void tst_day_of_work::undoAndRedo()
{
    EditingFixture::press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(message("One").sourceText(), u"The grid is bad."_s);
    QCOMPARE(message("Two").sourceText(), u"No grid. "_s);
    EditingFixture::press(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(message("Two").sourceText(), u"No mesh. "_s);
}

void tst_day_of_work::listTheFindings()
{
    EditingFixture::press(Qt::Key_F7);
    QVERIFY(findings().hasFocus());
    QCOMPARE(f->label("findingsSummary"), u"Findings: 4"_s);
}

void tst_day_of_work::correctAFinding()
{
    EditingFixture::press(Qt::Key_Down);
    EditingFixture::press(Qt::Key_Down);
    QCOMPARE(findings().currentItem()->text(), u"(client, f, Two): Text: ends with a blank"_s);
    QCOMPARE(f->label("tagLabel"), u"Two"_s);
    EditingFixture::press(Qt::Key_Return);
    QVERIFY(f->field("textField")->hasFocus());
    EditingFixture::press(Qt::Key_End);
    EditingFixture::press(Qt::Key_Backspace);
    QCOMPARE(message("Two").sourceText(), u"No mesh."_s);
    EditingFixture::press(Qt::Key_F7);
    QCOMPARE(f->label("findingsSummary"), u"Findings: 3"_s);
    EditingFixture::press(Qt::Key_Escape);
    QVERIFY(f->view()->hasFocus());
}

void tst_day_of_work::saveTheTable()
{
    EditingFixture::press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(f->status(), u"Table saved"_s);
    const QByteArray saved = readFile(f->tableFile);
    QVERIFY2(saved.contains("<title>mesh</title>") && saved.contains("<text>The mesh is bad.</text>") &&
                 saved.contains("<action>Refine the mesh.</action>") &&
                 saved.contains("<text>No mesh.</text>") && !saved.contains("<state>New"),
             saved.constData());
}

void tst_day_of_work::updateTheTranslation()
{
    Translation::TranslationTable translation;
    translation.addString(u"f"_s, u"No mesh."_s);
    QVERIFY(translation.save(f->translationFile));
    f->dialogs.fileToChoose = f->translationFile;
    f->chooseInFileMenu("actionTranslate");
    QVERIFY(f->status().startsWith(u"Added 3 new strings to "_s));
    QVERIFY(findings().hasFocus());
    QCOMPARE(findings().count(), 4);
    EditingFixture::press(Qt::Key_Space);
    QCOMPARE(f->label("tagLabel"), u"Two"_s);
}

void tst_day_of_work::leave()
{
    f->chooseInFileMenu("actionExit");
    QVERIFY(!f->window.isVisible());
    QCOMPARE(f->dialogs.unsavedQuestions.size(), 0);
}

NVX_TEST(tst_day_of_work)
#include "tst_day_of_work.moc"
