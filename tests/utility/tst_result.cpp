#include "nvx_util/result.h"
#include "support/test_class.h"
#include "support/text.h"

#include <memory>

using Nvx::Util::Done;
using Nvx::Util::Failure;
using Nvx::Util::Outcome;
using Nvx::Util::Result;

class tst_result : public QObject
{
    Q_OBJECT

private slots:
    void aResultWithAValueIsTrueAndHasNoError()
    {
        const Result<int> result = 0;
        QVERIFY(result);
        QCOMPARE(*result, 0);
        QCOMPARE(result.error(), QString());
    }

    void aFailureIsFalseEvenWithoutAText()
    {
        const Result<int> named = Failure{text("cannot be read")};
        QVERIFY(!named);
        QCOMPARE(named.error(), text("cannot be read"));
        const Result<int> unnamed = Failure{};
        QVERIFY(!unnamed);
    }

    void aTextIsAValueAndNoError()
    {
        const Result<QString> result = text("a name");
        QVERIFY(result);
        QCOMPARE(result->size(), 6);
    }

    void aValueCanBeMovedOut()
    {
        Result<std::unique_ptr<int>> result = std::make_unique<int>(7);
        const std::unique_ptr<int> value = *std::move(result);
        QCOMPARE(*value, 7);
    }

    void anOutcomeIsDoneOrAFailure()
    {
        const Outcome done = Done();
        QVERIFY(done);
        const Outcome failed = Failure{text("disk full")};
        QVERIFY(!failed);
        QCOMPARE(failed.error(), text("disk full"));
    }
};

NVX_GUILESS_TEST(tst_result)
#include "tst_result.moc"
