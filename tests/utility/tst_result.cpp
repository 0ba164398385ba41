#include "nvx_util/result.h"
#include "support/test_class.h"

#include <memory>

using namespace Qt::Literals::StringLiterals;
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

    void aFailureIsFalseEvenWithAnEmptyText()
    {
        const Result<int> named = Failure{u"cannot be read"_s};
        QVERIFY(!named);
        QCOMPARE(named.error(), u"cannot be read"_s);
        const Result<int> unnamed = Failure{};
        QVERIFY(!unnamed);
    }

    void aStringValueIsNotAnError()
    {
        const Result<QString> result = u"a name"_s;
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
        const Outcome failed = Failure{u"disk full"_s};
        QVERIFY(!failed);
        QCOMPARE(failed.error(), u"disk full"_s);
    }
};

NVX_GUILESS_TEST(tst_result)
#include "tst_result.moc"
