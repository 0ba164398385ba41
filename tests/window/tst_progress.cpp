#include "support/file_bytes.h"
#include "support/shown_progress.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "window/progress.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using Window::Progress;
using Window::ProgressFile;

namespace {

// Reports until that is refused or the time is over; whether it was refused.
bool reportFor(Progress &progress, int milliseconds)
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
    void shortWorkShowsNothing()
    {
        Progress progress(nullptr, QStringLiteral("Title"), QStringLiteral("Text"), 10'000);
        QVERIFY(!reportFor(progress, 200));
        QVERIFY(!shownProgress());
    }

    void longWorkShowsHowFarItIs()
    {
        {
            Progress progress(nullptr, QStringLiteral("Title"), QStringLiteral("Text"), 50);
            QTRY_VERIFY(progress.report(3, 4) && shownProgress());
            const QProgressDialog *dialog = shownProgress();
            QCOMPARE(dialog->windowTitle(), QStringLiteral("Title"));
            QCOMPARE(dialog->labelText(), QStringLiteral("Text"));
            QCOMPARE(dialog->value(), dialog->maximum() * 3 / 4);
        }
        QVERIFY(!shownProgress());
    }

    void cancelButtonEndsTheWork()
    {
        Progress progress(nullptr, QStringLiteral("Title"), QStringLiteral("Text"), 0);
        QTimer::singleShot(100, this, [] {
            if (const QProgressDialog *dialog = shownProgress())
                dialog->findChild<QPushButton *>()->click();
        });
        QVERIFY(reportFor(progress, 20'000));
        QVERIFY(progress.isCancelled());
        QVERIFY(!progress.report(1, 2));
    }

    void sizesOverTheDialogsRangeAreShown()
    {
        Progress progress(nullptr, QStringLiteral("Title"), QStringLiteral("Text"), 0);
        constexpr qint64 large = Q_INT64_C(1) << 40;
        QVERIFY(progress.report(large / 2, large));
        QCOMPARE(shownProgress()->value(), shownProgress()->maximum() / 2);
    }

    void workOfUnknownSizeIsAtItsBeginning()
    {
        Progress progress(nullptr, QStringLiteral("Title"), QStringLiteral("Text"), 0);
        QVERIFY(progress.report(7, 0));
        QCOMPARE(shownProgress()->value(), 0);
    }

    void fileIsReadToItsEnd()
    {
        const TestFolder folder;
        const QByteArray bytes(100'000, 'x');
        QVERIFY(writeBytes(folder.path(QStringLiteral("file")), bytes));
        Progress progress(nullptr, QStringLiteral("Title"), QStringLiteral("Text"));
        ProgressFile file(folder.path(QStringLiteral("file")), progress);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), bytes);
    }

    void cancelledFileIsNotReadOn()
    {
        const TestFolder folder;
        QVERIFY(writeBytes(folder.path(QStringLiteral("file")), QByteArray(1'000'000, 'x')));
        Progress progress(nullptr, QStringLiteral("Title"), QStringLiteral("Text"));
        ProgressFile file(folder.path(QStringLiteral("file")), progress);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.read(10).size(), 10);
        progress.cancel();
        QVERIFY(file.readAll().size() < 100'000); // what was read ahead
        QVERIFY(file.atEnd());
    }
};

NVX_TEST(tst_progress)
#include "tst_progress.moc"
