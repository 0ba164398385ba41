#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "window/dialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace Qt::Literals::StringLiterals;

using Window::NativeDialogs;
using Window::UnsavedChoice;

namespace {

/// Calls `act` with the next dialog, which it must close.
template<typename Dialog>
void withNextDialog(const std::function<void(Dialog &)> &act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        QVERIFY2(dialog, "the expected dialog was not shown");
        act(*dialog);
        if (dialog->isVisible())
            dialog->reject(); // otherwise the test would wait for it
    });
}

} // namespace

class tst_native_dialogs : public QObject
{
    Q_OBJECT

private slots:
    // The operating system's dialogs cannot be controlled from here.
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void messageBoxShowsPlainText_data()
    {
        QTest::addColumn<bool>("isWarning");
        QTest::newRow("warning") << true;
        QTest::newRow("information") << false;
    }

    void messageBoxShowsPlainText()
    {
        QFETCH(const bool, isWarning);
        const QString text = u"C:\\<b>bold</b>.xml"_s;
        bool wasShown = false;
        withNextDialog<QMessageBox>([&](QMessageBox &box) {
            wasShown = true;
            QCOMPARE(box.icon(), isWarning ? QMessageBox::Warning : QMessageBox::Information);
            QCOMPARE(box.windowTitle(), u"Title"_s);
            QCOMPARE(box.text(), text);
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QVERIFY(box.standardButtons() == QMessageBox::Ok);
            box.button(QMessageBox::Ok)->click();
        });
        if (isWarning)
            NativeDialogs().warn(nullptr, u"Title"_s, text);
        else
            NativeDialogs().inform(nullptr, u"Title"_s, text);
        QVERIFY(wasShown);
    }

    void buttonDecidesAboutUnsavedChanges_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("choice");
        QTest::newRow("Save") << int(QMessageBox::Save) << int(UnsavedChoice::Save);
        QTest::newRow("Discard") << int(QMessageBox::Discard) << int(UnsavedChoice::Discard);
        QTest::newRow("Cancel") << int(QMessageBox::Cancel) << int(UnsavedChoice::Cancel);
        QTest::newRow("closed") << int(QMessageBox::NoButton) << int(UnsavedChoice::Cancel);
    }

    void buttonDecidesAboutUnsavedChanges()
    {
        QFETCH(const int, button);
        withNextDialog<QMessageBox>([button](QMessageBox &box) {
            QCOMPARE(box.defaultButton(), box.button(QMessageBox::Save));
            QCOMPARE(box.textFormat(), Qt::PlainText);
            if (button == QMessageBox::NoButton)
                box.reject();
            else
                box.button(static_cast<QMessageBox::StandardButton>(button))->click();
        });
        const UnsavedChoice choice = NativeDialogs().askAboutUnsaved(nullptr, u"Title"_s, u"Save?"_s);
        QTEST(static_cast<int>(choice), "choice");
    }

    void questionIsAnsweredByItsButton_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<bool>("isConfirmed");
        QTest::newRow("Yes") << int(QMessageBox::Yes) << true;
        QTest::newRow("No") << int(QMessageBox::No) << false;
    }

    void questionIsAnsweredByItsButton()
    {
        QFETCH(const int, button);
        withNextDialog<QMessageBox>([button](QMessageBox &box) {
            QCOMPARE(box.defaultButton(), box.button(QMessageBox::No));
            QCOMPARE(box.textFormat(), Qt::PlainText);
            box.button(static_cast<QMessageBox::StandardButton>(button))->click();
        });
        QTEST(NativeDialogs().confirm(nullptr, u"Title"_s, u"Load?"_s), "isConfirmed");
    }

    void questionThatIsClosedIsNotConfirmed()
    {
        withNextDialog<QMessageBox>([](QMessageBox &box) { box.reject(); });
        QVERIFY(!NativeDialogs().confirm(nullptr, u"Title"_s, u"Load?"_s));
    }

    void chosenFileIsReturned()
    {
        const TestFolder folder;
        QVERIFY(writeBytes(folder.path(u"a.xml"_s), "x"));
        withNextDialog<QFileDialog>([&](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Open"_s);
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
            QCOMPARE(dialog.nameFilters(), QStringList(u"*.xml"_s));
            QCOMPARE(QDir(dialog.directory()).canonicalPath(), QDir(folder.path()).canonicalPath());
            dialog.selectFile(u"a.xml"_s);
            static_cast<QDialog &>(dialog).accept();
        });
        const QString file = NativeDialogs().fileToOpen(nullptr, question("Open", folder));
        QCOMPARE(QDir::toNativeSeparators(file), folder.path(u"a.xml"_s));
    }

    void nameWithoutASuffixGetsThatOfTheFilter_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("saved");
        QTest::newRow("without suffix") << u"new"_s << u"new.xml"_s;
        QTest::newRow("with suffix") << u"new.xml"_s << u"new.xml"_s;
        QTest::newRow("with another suffix") << u"new.txt"_s << u"new.txt"_s;
    }

    void nameWithoutASuffixGetsThatOfTheFilter()
    {
        QFETCH(const QString, typed);
        QFETCH(const QString, saved);
        const TestFolder folder;
        withNextDialog<QFileDialog>([&](QFileDialog &dialog) {
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
            dialog.selectFile(typed);
            static_cast<QDialog &>(dialog).accept();
        });
        const QString file = NativeDialogs().fileToSave(nullptr, question("Save", folder));
        QCOMPARE(QDir::toNativeSeparators(file), folder.path(saved));
    }

    void cancelledDialogReturnsNoFile()
    {
        const TestFolder folder;
        const auto cancel = [](QFileDialog &dialog) { dialog.reject(); };
        withNextDialog<QFileDialog>(cancel);
        QCOMPARE(NativeDialogs().fileToOpen(nullptr, question("Open", folder)), QString());
        withNextDialog<QFileDialog>(cancel);
        QCOMPARE(NativeDialogs().fileToSave(nullptr, question("Save", folder)), QString());
    }

private:
    static Window::FileQuestion question(const char *title, const TestFolder &folder)
    {
        return {QString::fromLatin1(title), folder.path(), u"*.xml"_s};
    }
};

NVX_TEST(tst_native_dialogs)
#include "tst_native_dialogs.moc"
