#include "nvx_util/assertion.h"
#include "support/test_class.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Nvx::Util::AssertionFailure;
using Nvx::Util::AssertionListener;

class tst_assertion : public QObject
{
    Q_OBJECT

private slots:
    void aConditionThatHoldsIsNotReported()
    {
        int reports = 0;
        const AssertionListener listener([&](const AssertionFailure &) { ++reports; });
        NVX_ASSERT(1 + 1 == 2, "tst_assertion");
        QCOMPARE(reports, 0);
    }

    void aFailureIsReportedAndExecutionContinues()
    {
        AssertionFailure received;
        const AssertionListener listener([&](const AssertionFailure &failure) { received = failure; });
        const int line = __LINE__ + 1;
        NVX_ASSERT(1 + 1 == 3, "tst_assertion");
        QCOMPARE(received.condition, u"1 + 1 == 3"_s);
        QCOMPARE(received.unit, u"tst_assertion"_s);
        QCOMPARE(received.line, line);
    }

    void theInnermostListenerReceivesTheFailure()
    {
        QStringList received;
        const AssertionListener outer([&](const AssertionFailure &) { received << u"outer"_s; });
        {
            const AssertionListener inner([&](const AssertionFailure &) { received << u"inner"_s; });
            NVX_ASSERT(false, "tst_assertion");
        }
        NVX_ASSERT(false, "tst_assertion");
        QCOMPARE(received, QStringList({u"inner"_s, u"outer"_s}));
    }

    void withoutAListenerTheFailureIsWrittenToTheMessageOutput()
    {
        QTest::ignoreMessage(QtCriticalMsg, "Assertion failed: a > b, here, line 7");
        Nvx::Util::reportAssertionFailure("a > b", "here", 7);
    }
};

NVX_GUILESS_TEST(tst_assertion)
#include "tst_assertion.moc"
