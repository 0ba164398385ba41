#include "support/file_bytes.h"
#include "support/shown_progress.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "window/progress.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

using Window::Progress;
using Window::ProgressFile;

namespace {

// Reports until the progress is cancelled, which returns true, or the time is over.
bool isCancelledWithin(Progress &progress, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        if (!progress.report(timer.elapsed(), milliseconds))
            return true;
    }
    return false;
}

} // namespace

class tst_progress : public QObject
{
    Q_OBJECT

private slots:
    void shortOperationShowsNoDialog()
    {
        Progress progress(nullptr, u"Title"_s, u"Text"_s, 10'000);
        QVERIFY(!isCancelledWithin(progress, 200));
        QVERIFY(!shownProgress());
    }

    void longOperationShowsItsProgress()
    {
        {
            Progress progress(nullptr, u"Title"_s, u"Text"_s, 50);
            QTRY_VERIFY(progress.report(3, 4) && shownProgress());
            const QProgressDialog *dialog = shownProgress();
            QCOMPARE(dialog->windowTitle(), u"Title"_s);
            QCOMPARE(dialog->labelText(), u"Text"_s);
            QCOMPARE(dialog->value(), dialog->maximum() * 3 / 4);
        }
        QVERIFY(!shownProgress());
    }

    void cancelButtonEndsTheOperation()
    {
        Progress progress(nullptr, u"Title"_s, u"Text"_s, 0);
        QTimer::singleShot(100, this, [] {
            if (const QProgressDialog *dialog = shownProgress())
                dialog->findChild<QPushButton *>()->click();
        });
        QVERIFY(isCancelledWithin(progress, 20'000));
        QVERIFY(progress.isCancelled());
        QVERIFY(!progress.report(1, 2));
    }

    void sizesAboveTheDialogsRangeAreShown()
    {
        Progress progress(nullptr, u"Title"_s, u"Text"_s, 0);
        constexpr qint64 large = Q_INT64_C(1) << 40;
        QVERIFY(progress.report(large / 2, large));
        QCOMPARE(shownProgress()->value(), shownProgress()->maximum() / 2);
    }

    void operationOfUnknownSizeShowsNoProgress()
    {
        Progress progress(nullptr, u"Title"_s, u"Text"_s, 0);
        QVERIFY(progress.report(7, 0));
        QCOMPARE(shownProgress()->value(), 0);
    }

    void wholeFileIsRead()
    {
        const TestFolder folder;
        const QByteArray bytes(100'000, 'x');
        QVERIFY(writeBytes(folder.path(u"file"_s), bytes));
        Progress progress(nullptr, u"Title"_s, u"Text"_s);
        ProgressFile file(folder.path(u"file"_s), progress);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), bytes);
    }

    void readingStopsOnceCancelled()
    {
        const TestFolder folder;
        QVERIFY(writeBytes(folder.path(u"file"_s), QByteArray(1'000'000, 'x')));
        Progress progress(nullptr, u"Title"_s, u"Text"_s);
        ProgressFile file(folder.path(u"file"_s), progress);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.read(10).size(), 10);
        progress.cancel();
        QVERIFY(file.readAll().size() < 100'000); // the buffer
        QVERIFY(file.atEnd());
    }
};

NVX_TEST(tst_progress)
#include "tst_progress.moc"
