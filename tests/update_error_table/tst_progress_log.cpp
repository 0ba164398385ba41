#include "support/test_class.h"
#include "synchronisation/progress_log.h"

#include <QBuffer>
#include <QTest>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

using Synchronisation::ProgressLog;

class tst_progress_log : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_text.clear();
        m_stream.seek(0);
    }

    void noProgressIsShownInAFile()
    {
        {
            ProgressLog log(m_stream, ProgressLog::Progress::Hidden);
            log.writeLine(u"one"_s);
            log.showProgress(u"half"_s);
            log.writeLine(u"two"_s);
        }
        QCOMPARE(m_text, u"one\ntwo\n"_s);
    }

    void lineReplacesTheProgress()
    {
        {
            ProgressLog log(m_stream, ProgressLog::Progress::Shown);
            log.showProgress(u"half"_s);
            log.writeLine(u"one"_s);
            log.writeLine(u"two"_s);
        }
        QCOMPARE(m_text, u"half\r    \rone\ntwo\n"_s);
    }

    void progressIsErasedAtTheEnd()
    {
        {
            ProgressLog log(m_stream, ProgressLog::Progress::Shown);
            log.showProgress(u"half"_s);
        }
        QCOMPARE(m_text, u"half\r    \r"_s);
    }

    void progressIsErasedBeforeOtherOutput()
    {
        {
            ProgressLog log(m_stream, ProgressLog::Progress::Shown);
            log.showProgress(u"half"_s);
            log.stream() << "other\n";
        }
        QCOMPARE(m_text, u"half\r    \rother\n"_s);
    }

    void progressIsUpdatedAtMostTenTimesASecond()
    {
        {
            ProgressLog log(m_stream, ProgressLog::Progress::Shown);
            for (int i = 0; i < 1000; ++i)
                log.showProgress(u"p"_s);
        }
        QVERIFY2(m_text.count(u'p') < 100, qPrintable(m_text));
    }

    void progressIsUpdatedInPlaceAfterAWhile()
    {
        {
            ProgressLog log(m_stream, ProgressLog::Progress::Shown);
            log.showProgress(u"first"_s);
            QTest::qSleep(150);
            log.showProgress(u"next"_s);
        }
        QCOMPARE(m_text, u"first\r     \rnext\r    \r"_s);
    }

    void progressReachesTheTerminalAtOnce()
    {
        QBuffer terminal;
        QVERIFY(terminal.open(QIODevice::WriteOnly));
        QTextStream stream(&terminal);
        ProgressLog log(stream, ProgressLog::Progress::Shown);
        log.showProgress(u"half"_s);
        QCOMPARE(terminal.data(), QByteArray("half"));
    }

    void everythingReachesTheTerminalAtTheEnd()
    {
        QBuffer terminal;
        QVERIFY(terminal.open(QIODevice::WriteOnly));
        QTextStream stream(&terminal);
        {
            ProgressLog log(stream, ProgressLog::Progress::Shown);
            log.writeLine(u"one"_s);
            log.showProgress(u"half"_s);
        }
        QCOMPARE(terminal.data(), QByteArray("one\nhalf\r    \r"));
    }

private:
    QString m_text;
    QTextStream m_stream{&m_text};
};

NVX_GUILESS_TEST(tst_progress_log)

#include "tst_progress_log.moc"
