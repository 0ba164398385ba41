#include "clt_message.h"
#include "support/test_class.h"

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

using Clt::Message;
using Clt::MessageKey;

namespace {

/// Translates one text in one context, as the application asks for them.
class OneText : public QTranslator
{
public:
    OneText(QByteArray context, QByteArray source, QString translation)
        : m_context(std::move(context))
        , m_source(std::move(source))
        , m_translation(std::move(translation))
    {
        QCoreApplication::installTranslator(this);
    }
    ~OneText() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *source, const char *comment, int) const override
    {
        return m_context == context && m_source == source && !comment ? m_translation : QString();
    }

private:
    QByteArray m_context;
    QByteArray m_source;
    QString m_translation;
};

Message messageIn(const QString &context)
{
    Message message;
    message.setKey({QStringLiteral("TAG"), context, QStringLiteral("client")});
    return message;
}

} // namespace

class tst_message : public QObject
{
    Q_OBJECT

private slots:
    void newMessageHasItsInitialValues()
    {
        const Message message;
        QCOMPARE(message.severity(), Clt::Severity::Information);
        QCOMPARE(message.state(), Clt::MessageState::InSync);
        QVERIFY(message.key() == MessageKey());
        QCOMPARE(message.title() + message.text() + message.action(), QString());
        QCOMPARE(message.sourceTitle() + message.sourceText() + message.sourceAction(), QString());
        QCOMPARE(message.file(), QString());
        QCOMPARE(message.line(), 0);
        QCOMPARE(message.answers().toInt(), 0x400u);
        QCOMPARE(message.defaultAnswer(), Clt::Answer::NoAnswer);
        QCOMPARE(message.solution(), 0);
    }

    void everyFieldIsSetAndCopied()
    {
        Message message = messageIn(QStringLiteral("Clt"));
        message.setSeverity(Clt::Severity::Question);
        message.setState(Clt::MessageState::Obsolete);
        message.setTitle(QStringLiteral("title"));
        message.setText(QStringLiteral("text"));
        message.setAction(QStringLiteral("action"));
        message.setFile(QStringLiteral("a.cpp"));
        message.setLine(-7);
        message.setAnswers(Clt::Answer::Yes | Clt::Answer::No);
        message.setDefaultAnswer(Clt::Answer::No);
        message.setSolution(12);
        Message copy;
        copy = message;
        QCOMPARE(copy.severity(), Clt::Severity::Question);
        QCOMPARE(copy.state(), Clt::MessageState::Obsolete);
        QVERIFY(copy.key() == message.key());
        QCOMPARE(copy.title(), QStringLiteral("title"));
        QCOMPARE(copy.text(), QStringLiteral("text"));
        QCOMPARE(copy.action(), QStringLiteral("action"));
        QCOMPARE(copy.file(), QStringLiteral("a.cpp"));
        QCOMPARE(copy.line(), -7);
        QCOMPARE(copy.answers(), Clt::Answer::Yes | Clt::Answer::No);
        QCOMPARE(copy.defaultAnswer(), Clt::Answer::No);
        QCOMPARE(copy.solution(), 12);
    }

    void bothFormsOfATextAreEqualWithoutATranslation_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << QStringLiteral("No server");
        QTest::newRow("empty") << QString();
        QTest::newRow("umlauts") << QStringLiteral("Kein Gerät für „%1“");
        QTest::newRow("beyond Latin-1") << QStringLiteral("サーバーがありません");
        QTest::newRow("beyond the basic plane") << QStringLiteral("clef 𝄞");
        QTest::newRow("question marks") << QStringLiteral("?ä?");
        QTest::newRow("a NUL") << QStringLiteral("a%1b").arg(QChar(u'\0'));
        QTest::newRow("only a NUL") << QString(QChar(u'\0'));
        QTest::newRow("%n") << QStringLiteral("%n files");
    }

    void bothFormsOfATextAreEqualWithoutATranslation()
    {
        QFETCH(const QString, text);
        Message message = messageIn(QStringLiteral("Clt"));
        message.setTitle(text);
        message.setText(text);
        message.setAction(text);
        for (const QString &form : {message.title(), message.sourceTitle(), message.text(),
                                    message.sourceText(), message.action(), message.sourceAction()})
            QCOMPARE(form, text);
    }

    void textsAreTranslatedInTheKeysContext()
    {
        const OneText translator("Clt::Session", "No server", QStringLiteral("Kein Server"));
        Message message = messageIn(QStringLiteral("Clt::Session"));
        message.setTitle(QStringLiteral("No server"));
        message.setText(QStringLiteral("No server"));
        message.setAction(QStringLiteral("No server"));
        for (const QString &translated : {message.title(), message.text(), message.action()})
            QCOMPARE(translated, QStringLiteral("Kein Server"));
        for (const QString &source : {message.sourceTitle(), message.sourceText(), message.sourceAction()})
            QCOMPARE(source, QStringLiteral("No server"));
    }

    void anotherContextTranslatesNothing()
    {
        const OneText translator("Clt::Session", "No server", QStringLiteral("Kein Server"));
        Message message = messageIn(QStringLiteral("Session"));
        message.setText(QStringLiteral("No server"));
        QCOMPARE(message.text(), QStringLiteral("No server"));
    }

    void aLaterKeyTranslatesNothingAnew()
    {
        const OneText translator("Old", "No server", QStringLiteral("Kein Server"));
        Message message = messageIn(QStringLiteral("Old"));
        message.setText(QStringLiteral("No server"));
        message.setKey({QString(), QStringLiteral("New"), QString()});
        QCOMPARE(message.text(), QStringLiteral("Kein Server"));
    }

    void lookUpIsMadeInAscii_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("source");
        QTest::newRow("Latin-1") << QStringLiteral("Gerät") << QByteArray("Ger?t");
        QTest::newRow("Japanese") << QStringLiteral("保存 A") << QByteArray("?? A");
        QTest::newRow("two code units") << QStringLiteral("𝄞") << QByteArray("??");
        QTest::newRow("0x7f is ASCII, 0x80 is not")
            << QString(QChar(0x7f)) + QChar(0x80) << QByteArray("\x7f?");
    }

    void lookUpIsMadeInAscii()
    {
        QFETCH(const QString, text);
        QFETCH(const QByteArray, source);
        const OneText translator("Ger?t", source, QStringLiteral("found: ü"));
        Message message = messageIn(QStringLiteral("Gerät"));
        message.setText(text);
        QCOMPARE(message.text(), QStringLiteral("found: ü"));
        QCOMPARE(message.sourceText(), text);
    }

    void argumentsFillBothFormsOfTextAndAction()
    {
        const OneText translator("Clt", "Port %1", QStringLiteral("Anschluss %1"));
        Message message = messageIn(QStringLiteral("Clt"));
        message.setText(QStringLiteral("Port %1"));
        message.setAction(QStringLiteral("Free %1"));
        message.applyArguments({QStringLiteral("80")});
        QCOMPARE(message.text(), QStringLiteral("Anschluss 80"));
        QCOMPARE(message.sourceText(), QStringLiteral("Port 80"));
        QCOMPARE(message.action(), QStringLiteral("Free 80"));
        QCOMPARE(message.sourceAction(), QStringLiteral("Free 80"));
    }

    void titlesAreNeverFilled()
    {
        Message message;
        message.setTitle(QStringLiteral("Port %1"));
        message.applyArguments({QStringLiteral("80")});
        QCOMPARE(message.title(), QStringLiteral("Port %1"));
        QCOMPARE(message.sourceTitle(), QStringLiteral("Port %1"));
    }

    void logTextNamesSeverityFileAndLine()
    {
        Message message;
        message.setSeverity(Clt::Severity::Critical);
        message.setFile(QStringLiteral("session.cpp"));
        message.setLine(1234567);
        message.setText(QStringLiteral("No server"));
        QCOMPARE(message.logText(), QStringLiteral("### Critical: session.cpp 1234567\nNo server\n"));
    }

    void logTextAddsTheSourceTextWhenItDiffers()
    {
        const OneText translator("Clt", "No server", QStringLiteral("Kein Server"));
        Message message = messageIn(QStringLiteral("Clt"));
        message.setText(QStringLiteral("No server"));
        QCOMPARE(message.logText(), QStringLiteral("### Information:  0\nKein Server\n(No server)\n"));
    }

    void logTextTakesPercentSignsAsTheyAre()
    {
        Message message;
        message.setFile(QStringLiteral("%3%2"));
        message.setText(QStringLiteral("%1"));
        QCOMPARE(message.logText(), QStringLiteral("### Information: %3%2 0\n%1\n"));
    }
};

NVX_GUILESS_TEST(tst_message)
#include "tst_message.moc"
