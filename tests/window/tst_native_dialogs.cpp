#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "window/native_dialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

using Window::NativeDialogs;
using Window::UnsavedChoice;

namespace {

/// Does something with the dialog that comes up next, which is to end it.
template<typename Dialog>
void withNextDialog(const std::function<void(Dialog &)> &act)
{
    QTimer::singleShot(0, qApp, [act] {
        auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        QVERIFY2(dialog, "no such dialog has come up");
        act(*dialog);
        if (dialog->isVisible())
            dialog->reject(); // or it would be waited for
    });
}

} // namespace

class tst_native_dialogs : public QObject
{
    Q_OBJECT

private slots:
    // The dialogs of the operating system cannot be driven from here.
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void aBoxShowsItsTextAsItIs_data()
    {
        QTest::addColumn<bool>("isWarning");
        QTest::newRow("warning") << true;
        QTest::newRow("information") << false;
    }

    void aBoxShowsItsTextAsItIs()
    {
        QFETCH(const bool, isWarning);
        const QString text = QStringLiteral("C:\\<b>bold</b>.xml");
        bool wasShown = false;
        withNextDialog<QMessageBox>([&](QMessageBox &box) {
            wasShown = true;
            QCOMPARE(box.icon(), isWarning ? QMessageBox::Warning : QMessageBox::Information);
            QCOMPARE(box.windowTitle(), QStringLiteral("Title"));
            QCOMPARE(box.text(), text);
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QVERIFY(box.standardButtons() == QMessageBox::Ok);
            box.button(QMessageBox::Ok)->click();
        });
        if (isWarning)
            NativeDialogs().warn(nullptr, QStringLiteral("Title"), text);
        else
            NativeDialogs().tell(nullptr, QStringLiteral("Title"), text);
        QVERIFY(wasShown);
    }

    void theButtonDecidesOfUnsavedChanges_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("choice");
        QTest::newRow("Save") << int(QMessageBox::Save) << int(UnsavedChoice::Save);
        QTest::newRow("Discard") << int(QMessageBox::Discard) << int(UnsavedChoice::Discard);
        QTest::newRow("Cancel") << int(QMessageBox::Cancel) << int(UnsavedChoice::Cancel);
        QTest::newRow("closed") << int(QMessageBox::NoButton) << int(UnsavedChoice::Cancel);
    }

    void theButtonDecidesOfUnsavedChanges()
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
        const UnsavedChoice choice =
            NativeDialogs().askAboutUnsaved(nullptr, QStringLiteral("Title"), QStringLiteral("Save?"));
        QTEST(static_cast<int>(choice), "choice");
    }

    void theChosenFileIsOpened()
    {
        const TestFolder folder;
        QVERIFY(writeBytes(folder.path(QStringLiteral("a.xml")), "x"));
        withNextDialog<QFileDialog>([&](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), QStringLiteral("Open"));
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
            QCOMPARE(dialog.nameFilters(), QStringList(QStringLiteral("*.xml")));
            QCOMPARE(QDir(dialog.directory()).canonicalPath(), QDir(folder.path()).canonicalPath());
            dialog.selectFile(QStringLiteral("a.xml"));
            static_cast<QDialog &>(dialog).accept();
        });
        const QString file = NativeDialogs().fileToOpen(nullptr, question("Open", folder));
        QCOMPARE(QDir::toNativeSeparators(file), folder.path(QStringLiteral("a.xml")));
    }

    void aNameWithoutAnEndingIsSavedWithThatOfTheFilter_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("saved");
        QTest::newRow("without") << QStringLiteral("new") << QStringLiteral("new.xml");
        QTest::newRow("with") << QStringLiteral("new.xml") << QStringLiteral("new.xml");
        QTest::newRow("with another") << QStringLiteral("new.txt") << QStringLiteral("new.txt");
    }

    void aNameWithoutAnEndingIsSavedWithThatOfTheFilter()
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

    void aDialogThatIsCancelledNamesNoFile()
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
        return {QString::fromLatin1(title), folder.path(), QStringLiteral("*.xml")};
    }
};

NVX_TEST(tst_native_dialogs)
#include "tst_native_dialogs.moc"
