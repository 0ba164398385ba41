#include "cfg_wizard/conclusion_page.h"
#include "support/test_class.h"
#include "wizard/wizard_fixture.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString complete = u"The installation or update is complete. Click finish to continue."_s;

} // namespace

class tst_conclusion_page : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_fixture = std::make_unique<WizardFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void theRunStartsOneSecondLater()
    {
        QElapsedTimer timer;
        timer.start();
        m_fixture->show(u"-U"_s);
        QTRY_COMPARE(m_fixture->runs(), 1);
        QVERIFY2(timer.elapsed() >= 1000, qPrintable(QString::number(timer.elapsed())));
    }

    // Checks the settings of the timer and that the run begins when it expires, without waiting for it.
    void theRunStartsWhenATimerOfOneSecondExpires()
    {
        const ClassWizard &wizard = m_fixture->show(u"-U"_s);
        auto *timer = wizard.currentPage()->findChild<QTimer *>(u"m_start"_s);
        QVERIFY(timer);
        QVERIFY(timer->isActive());
        QVERIFY(timer->isSingleShot());
        QCOMPARE(timer->timerType(), Qt::PreciseTimer);
        QCOMPARE(timer->interval(), 1000);
        QCOMPARE(m_fixture->runs(), 0);
        QTimerEvent expired(timer->timerId());
        QCoreApplication::sendEvent(timer, &expired);
        QCOMPARE(m_fixture->runs(), 1);
        QVERIFY(m_fixture->engine->state().runComplete);
        QVERIFY(!timer->isActive());
    }

    void finishIsDisabledUntilTheLastRow()
    {
        m_fixture->show(u"-U"_s);
        const QAbstractButton &finish = m_fixture->button(QWizard::FinishButton);
        QVERIFY(finish.isVisible());
        QVERIFY(!finish.isEnabled());
        bool greyMeanwhile = true;
        connect(m_fixture->progress().model(), &QAbstractItemModel::rowsInserted, this,
                [&] { greyMeanwhile = greyMeanwhile && !finish.isEnabled(); });
        QTRY_VERIFY(finish.isEnabled());
        QVERIFY(greyMeanwhile);
        QCOMPARE(m_fixture->rows().last(), complete);
        QVERIFY(m_fixture->rows().contains(u"UnInstall Tutorials"_s));
    }

    void aPageWithoutAWizardPerformsTheRun()
    {
        cfg_utilitys &engine = m_fixture->start(u"-U"_s);
        ConclusionPage page(engine);
        page.initializePage();
        QVERIFY(!page.isComplete());
        QTRY_VERIFY(page.isComplete());
        QCOMPARE(m_fixture->runs(), 1);
    }

    void everyRowIsScrolledTo()
    {
        ClassWizard &wizard = m_fixture->show(u"-U"_s);
        auto *page = qobject_cast<ConclusionPage *>(wizard.currentPage());
        for (int row = 0; row < 200; ++row) {
            page->appendRow(u"row %1"_s.arg(row));
            const QListWidget &list = m_fixture->progress();
            QVERIFY(list.viewport()->rect().contains(list.visualItemRect(list.item(row))));
        }
    }

    void theRunStartsOnlyWhenThePageIsShown()
    {
        ClassWizard &wizard = m_fixture->show(u"-I"_s);
        QTest::qWait(1200);
        QCOMPARE(m_fixture->runs(), 0);
        wizard.next();
        QTRY_COMPARE(m_fixture->runs(), 1);
    }

    void goingBackBeforeTheRunPreventsIt()
    {
        ClassWizard &wizard = m_fixture->show(u"-I"_s);
        wizard.next();
        QTest::qWait(300);
        m_fixture->button(QWizard::BackButton).click();
        QCOMPARE(wizard.currentPage()->title(), u"CAD Launchers "_s);
        QTest::qWait(1200);
        QCOMPARE(m_fixture->runs(), 0);

        wizard.next();
        QTRY_VERIFY(m_fixture->engine->state().runComplete);
        QTest::qWait(1200);
        QCOMPARE(m_fixture->runs(), 1);
    }

    void returningAfterARunStartsAnotherOne()
    {
        ClassWizard &wizard = m_fixture->show(u"-I"_s);
        wizard.next();
        QTRY_VERIFY(m_fixture->button(QWizard::FinishButton).isEnabled());
        m_fixture->button(QWizard::BackButton).click();
        wizard.next();
        QVERIFY(!m_fixture->button(QWizard::FinishButton).isEnabled());
        QTRY_COMPARE(m_fixture->runs(), 2);
        QTRY_VERIFY(m_fixture->button(QWizard::FinishButton).isEnabled());
        QCOMPARE(m_fixture->rows().filter(complete).size(), 1);
    }

    void noSecondRunStartsDuringARun()
    {
        ClassWizard &wizard = m_fixture->show(u"-I"_s);
        wizard.next();
        auto *page = qobject_cast<ConclusionPage *>(wizard.currentPage());
        bool backMeanwhile = true;
        bool tried = false;
        m_fixture->machine.whileRunning = [&](const auto &) {
            if (std::exchange(tried, true))
                return;
            backMeanwhile = m_fixture->button(QWizard::BackButton).isEnabled();
            wizard.back(); // the button is disabled
            wizard.next();
            page->handleFinalize();
        };
        QTRY_VERIFY(m_fixture->engine->state().runComplete);
        QVERIFY(tried);
        QTest::qWait(1200); // nor when the run is over
        QCOMPARE(m_fixture->runs(), 1);
        QVERIFY(!backMeanwhile);
        QTRY_VERIFY(m_fixture->button(QWizard::FinishButton).isEnabled());
        QVERIFY(m_fixture->button(QWizard::BackButton).isEnabled());
        QCOMPARE(m_fixture->rows().last(), complete);
    }

    void closingTheWindowBeforeTheRunPreventsIt()
    {
        ClassWizard &wizard = m_fixture->show(u"-U"_s);
        QTimer::singleShot(300, &wizard, &QWidget::close);
        QCOMPARE(QApplication::exec(), 0);
        QTest::qWait(1200);
        QCOMPARE(m_fixture->runs(), 0);
    }

    void aRunContinuesAfterItsWindowIsClosed()
    {
        ClassWizard &wizard = m_fixture->show(u"-I"_s);
        wizard.next();
        bool loopAlive = false;
        m_fixture->machine.whileRunning = [&](const auto &) {
            if (!wizard.isVisible())
                return;
            wizard.close();
            QTimer::singleShot(0, this, [&] { loopAlive = true; });
        };
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(loopAlive);
        QVERIFY(m_fixture->engine->state().runComplete);
        QCOMPARE(m_fixture->runs(), 1);
        QCOMPARE(m_fixture->lines().last(), u"   0 "_s + complete);
    }

    // A message box that the run shows after its window was closed must still wait for the user.
    void anEventLoopStillWaitsAfterTheWindowIsClosed()
    {
        ClassWizard &wizard = m_fixture->show(u"-U"_s);
        bool waited = false;
        m_fixture->machine.whileRunning = [&](const auto &) {
            if (!wizard.isVisible())
                return;
            wizard.close();
            QCoreApplication::processEvents();
            QEventLoop box;
            QTimer::singleShot(200, &box, [&] {
                waited = true;
                box.quit();
            });
            box.exec();
        };
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(waited);
    }

    void aRunContinuesAfterItsPagesAreDeleted()
    {
        m_fixture->show(u"-I"_s).next();
        m_fixture->machine.whileRunning = [&](const auto &) { m_fixture->wizard.reset(); };
        QTRY_VERIFY(m_fixture->engine->state().runComplete);
        QVERIFY(!m_fixture->wizard);
        QCOMPARE(m_fixture->lines().last(), u"   0 "_s + complete);
    }

    void pendingNotesAreTheFirstRows()
    {
        m_fixture->show(u"-U"_s);
        m_fixture->engine->addPendingNote(u"a note"_s);
        QTRY_VERIFY(m_fixture->engine->state().runComplete);
        QCOMPARE(m_fixture->rows().first(), u"a note"_s);
        QVERIFY(m_fixture->rows().at(1).startsWith(u"Processors: "_s));
    }

private:
    std::unique_ptr<WizardFixture> m_fixture;
};

NVX_TEST(tst_conclusion_page)
#include "tst_conclusion_page.moc"
