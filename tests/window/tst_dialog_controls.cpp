#include "support/keyboard_walk.h"
#include "support/shown_progress.h"
#include "support/test_class.h"
#include "window/dialogs.h"
#include "window/progress.h"

#include <QMessageBox>

#include <functional>

using namespace Qt::Literals::StringLiterals;

using Window::NativeDialogs;

Q_DECLARE_METATYPE(std::function<void()>)

class tst_dialog_controls : public QObject
{
    Q_OBJECT

private slots:
    void controlsOfAMessageBoxAreNamedAndReached_data()
    {
        QTest::addColumn<std::function<void()>>("show");
        QTest::addColumn<int>("buttons");
        const auto add = [](const char *name, const std::function<void()> &show, int buttons) {
            QTest::newRow(name) << show << buttons;
        };
        add(
            "warning", [] { NativeDialogs().warn(nullptr, u"Title"_s, u"Text"_s); }, 1);
        add(
            "information", [] { NativeDialogs().inform(nullptr, u"Title"_s, u"Text"_s); }, 1);
        add(
            "unsaved changes", [] { NativeDialogs().askAboutUnsaved(nullptr, u"Title"_s, u"Save?"_s); }, 3);
        add(
            "question", [] { NativeDialogs().confirm(nullptr, u"Title"_s, u"Load?"_s); }, 2);
    }

    void controlsOfAMessageBoxAreNamedAndReached()
    {
        QFETCH(const std::function<void()>, show);
        QFETCH(const int, buttons);
        bool wasShown = false;
        QTimer::singleShot(0, this, [&] {
            QWidget *box = QApplication::activeModalWidget();
            QVERIFY(box && QTest::qWaitForWindowActive(box));
            wasShown = true;
            const QString nameless = namelessControls(*box);
            const QString unreachable = unreachableControls(*box);
            const auto controls = controlsOf(*box, Qt::TabFocus).size();
            QTest::keyClick(box, Qt::Key_Escape);
            QCOMPARE(nameless, QString());
            QCOMPARE(unreachable, QString());
            QCOMPARE(controls, buttons);
        });
        show();
        QVERIFY(wasShown);
    }

    void escapeCancelsTheProgress()
    {
        Window::Progress progress(nullptr, u"Title"_s, u"Text"_s, 0);
        QVERIFY(progress.report(1, 10));
        QProgressDialog *dialog = shownProgress();
        QVERIFY(dialog && QTest::qWaitForWindowActive(dialog));
        QCOMPARE(namelessControls(*dialog), QString());
        QCOMPARE(controlsOf(*dialog, Qt::TabFocus).size(), 1);
        QCOMPARE(unreachableControls(*dialog), QString());
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(progress.isCancelled());
    }
};

NVX_TEST(tst_dialog_controls)
#include "tst_dialog_controls.moc"
