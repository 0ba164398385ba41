#include "editing_fixture.h"
#include "support/keyboard_walk.h"
#include "support/test_class.h"

#include <QListWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The window with everything that it can show: all fields of a message, and findings.
struct FullWindow : EditingFixture
{
    FullWindow()
    {
        choose("severityChoice", u"Critical"_s);
        action("actionCheck")->trigger();
        view()->setFocus();
    }
};

/// The window with an obsolete message whose texts the selected one can adopt.
struct AdoptingWindow : EditingFixture
{
    AdoptingWindow()
    {
        Clt::MessageTable table;
        table.insert(messageOf("client", "A::run", "Alpha", Clt::MessageState::Obsolete));
        table.insert(messageOf("client", "B::run", "Alpha", Clt::MessageState::New));
        if (!table.save(otherFile) || !window.openFile(otherFile))
            qFatal("cannot open the table");
        activate();
        select(1);
    }
};

} // namespace

class tst_keyboard_walk : public QObject
{
    Q_OBJECT

private slots:
    void everyControlOfTheWindowHasAName()
    {
        FullWindow f;
        QCOMPARE(namelessControls(f.window), QString());
        QVERIFY(controlsOf(f.window, Qt::StrongFocus).size() >= 10);
        for (const char *name :
             {"processLabel", "contextLabel", "tagLabel", "remarksLabel", "messagePreview"}) {
            QVERIFY2(f.isShown(name), name);
            QVERIFY2(!f.child<QWidget>(name)->accessibleName().isEmpty(), name);
        }
    }

    void tabKeyReachesEveryControlOfTheWindow()
    {
        FullWindow f;
        QCOMPARE(unreachableControls(f.window), QString());
    }

    void tabKeyFollowsTheOrderOfThePanel()
    {
        FullWindow f;
        QStringList reached;
        const QList<QWidget *> order = tabOrder();
        for (const QWidget *control : order)
            reached.append(control->objectName());
        const QStringList panel{u"severityChoice"_s, u"stateChoice"_s, u"titleField"_s, u"textField"_s,
                                u"actionField"_s};
        QCOMPARE(reached.mid(reached.indexOf(panel.front()), panel.size()), panel);
    }

    void tabKeyReachesTheChoicesOfSeveralMessages()
    {
        EditingFixture f;
        f.view()->selectAll();
        QCOMPARE(unreachableControls(f.window), QString());
    }

    void everyActionIsInAMenu()
    {
        EditingFixture f;
        QList<QAction *> inMenus;
        for (const char *name : {"menuFile", "menuEdit", "menuHelp", "menuRecentFiles"})
            inMenus += f.child<QMenu>(name)->actions();
        QStringList missing;
        const QList<QAction *> actions = f.window.findChildren<QAction *>(QRegularExpression(u"^action"_s));
        for (QAction *action : actions) {
            // Copy is in the context menu of the rows.
            if (!inMenus.contains(action) && action->objectName() != "actionCopy"_L1)
                missing.append(action->objectName());
        }
        QCOMPARE(missing, QStringList());
        QVERIFY(actions.size() >= 15);
    }

    void controlsOfTheFindDialogAreNamedAndReached()
    {
        EditingFixture f;
        f.action("actionFind")->trigger();
        auto *dialog = f.child<QWidget>("findDialog");
        QVERIFY(dialog);
        QTRY_VERIFY(f.child<QLineEdit>("findField")->hasFocus());
        EditingFixture::type(u"x"_s); // enables the buttons
        QCOMPARE(namelessControls(*dialog), QString());
        QCOMPARE(controlsOf(*dialog, Qt::TabFocus).size(), 7);
        QCOMPARE(unreachableControls(*dialog), QString());
        EditingFixture::press(Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
    }

    void controlsOfTheAdoptionDialogAreNamedAndReached()
    {
        AdoptingWindow f;
        f.action("actionAdopt")->trigger();
        auto *dialog = f.child<QWidget>("adoptionDialog");
        QVERIFY(dialog);
        QTRY_VERIFY(f.child<QListWidget>("candidateList")->hasFocus());
        QCOMPARE(namelessControls(*dialog), QString());
        QCOMPARE(controlsOf(*dialog, Qt::TabFocus).size(), 3);
        QCOMPARE(unreachableControls(*dialog), QString());
        EditingFixture::press(Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
        QVERIFY(!f.window.hasUnsavedChanges());
    }
};

NVX_TEST(tst_keyboard_walk)
#include "tst_keyboard_walk.moc"
