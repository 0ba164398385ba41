#include "support/test_class.h"
#include "synchronisation/progress_log.h"

#include <QBuffer>
#include <QTest>
#include <QTextStream>

using Error::ProgressLog;

class tst_progress_log : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_text.clear();
        m_stream.seek(0);
    }

    void showsNoProgressInAFile()
    {
        {
            ProgressLog log(m_stream, ProgressLog::Progress::Hidden);
            log.writeLine(QStringLiteral("one"));
            log.showProgress(QStringLiteral("half"));
            log.writeLine(QStringLiteral("two"));
        }
        QCOMPARE(m_text, QStringLiteral("one\ntwo\n"));
    }

    void writesALineInPlaceOfTheProgress()
    {
        {
            ProgressLog log(m_stream, ProgressLog::Progress::Shown);
            log.showProgress(QStringLiteral("half"));
            log.writeLine(QStringLiteral("one"));
            log.writeLine(QStringLiteral("two"));
        }
        QCOMPARE(m_text, QStringLiteral("half\r    \rone\ntwo\n"));
    }

    void takesTheProgressAwayAtTheEnd()
    {
        {
            ProgressLog log(m_stream, ProgressLog::Progress::Shown);
            log.showProgress(QStringLiteral("half"));
        }
        QCOMPARE(m_text, QStringLiteral("half\r    \r"));
    }

    void takesTheProgressAwayBeforeSomebodyElseWrites()
    {
        {
            ProgressLog log(m_stream, ProgressLog::Progress::Shown);
            log.showProgress(QStringLiteral("half"));
            log.stream() << "other\n";
        }
        QCOMPARE(m_text, QStringLiteral("half\r    \rother\n"));
    }

    void updatesProgressNoMoreOftenThanTheEyeFollows()
    {
        {
            ProgressLog log(m_stream, ProgressLog::Progress::Shown);
            for (int i = 0; i < 1000; ++i)
                log.showProgress(QStringLiteral("p"));
        }
        QVERIFY2(m_text.count(u'p') < 100, qPrintable(m_text));
    }

    void updatesProgressInPlaceAfterAWhile()
    {
        {
            ProgressLog log(m_stream, ProgressLog::Progress::Shown);
            log.showProgress(QStringLiteral("first"));
            QTest::qSleep(150);
            log.showProgress(QStringLiteral("next"));
        }
        QCOMPARE(m_text, QStringLiteral("first\r     \rnext\r    \r"));
    }

    void progressReachesTheTerminalAtOnce()
    {
        QBuffer terminal;
        QVERIFY(terminal.open(QIODevice::WriteOnly));
        QTextStream stream(&terminal);
        ProgressLog log(stream, ProgressLog::Progress::Shown);
        log.showProgress(QStringLiteral("half"));
        QCOMPARE(terminal.data(), QByteArray("half"));
    }

    void everythingReachesTheTerminalAtTheEnd()
    {
        QBuffer terminal;
        QVERIFY(terminal.open(QIODevice::WriteOnly));
        QTextStream stream(&terminal);
        {
            ProgressLog log(stream, ProgressLog::Progress::Shown);
            log.writeLine(QStringLiteral("one"));
            log.showProgress(QStringLiteral("half"));
        }
        QCOMPARE(terminal.data(), QByteArray("one\nhalf\r    \r"));
    }

private:
    QString m_text;
    QTextStream m_stream{&m_text};
};

NVX_GUILESS_TEST(tst_progress_log)

#include "tst_progress_log.moc"
