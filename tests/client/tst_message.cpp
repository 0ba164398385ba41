#include "clt_message.h"
#include "support/test_class.h"

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

using Clt::Message;
using Clt::MessageKey;

namespace {

/// Translates one text in one context, for the application's look-ups.
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
    message.setKey({u"TAG"_s, context, u"client"_s});
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
        Message message = messageIn(u"Clt"_s);
        message.setSeverity(Clt::Severity::Question);
        message.setState(Clt::MessageState::Obsolete);
        message.setTitle(u"title"_s);
        message.setText(u"text"_s);
        message.setAction(u"action"_s);
        message.setFile(u"a.cpp"_s);
        message.setLine(-7);
        message.setAnswers(Clt::Answer::Yes | Clt::Answer::No);
        message.setDefaultAnswer(Clt::Answer::No);
        message.setSolution(12);
        Message copy;
        copy = message;
        QCOMPARE(copy.severity(), Clt::Severity::Question);
        QCOMPARE(copy.state(), Clt::MessageState::Obsolete);
        QVERIFY(copy.key() == message.key());
        QCOMPARE(copy.title(), u"title"_s);
        QCOMPARE(copy.text(), u"text"_s);
        QCOMPARE(copy.action(), u"action"_s);
        QCOMPARE(copy.file(), u"a.cpp"_s);
        QCOMPARE(copy.line(), -7);
        QCOMPARE(copy.answers(), Clt::Answer::Yes | Clt::Answer::No);
        QCOMPARE(copy.defaultAnswer(), Clt::Answer::No);
        QCOMPARE(copy.solution(), 12);
    }

    void bothFormsOfATextAreEqualWithoutATranslation_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << u"No server"_s;
        QTest::newRow("empty") << QString();
        QTest::newRow("umlauts") << u"Kein Gerät für „%1“"_s;
        QTest::newRow("beyond Latin-1") << u"サーバーがありません"_s;
        QTest::newRow("beyond the basic plane") << u"clef 𝄞"_s;
        QTest::newRow("question marks") << u"?ä?"_s;
        QTest::newRow("a NUL") << u"a%1b"_s.arg(QChar(u'\0'));
        QTest::newRow("only a NUL") << QString(QChar(u'\0'));
        QTest::newRow("%n") << u"%n files"_s;
    }

    void bothFormsOfATextAreEqualWithoutATranslation()
    {
        QFETCH(const QString, text);
        Message message = messageIn(u"Clt"_s);
        message.setTitle(text);
        message.setText(text);
        message.setAction(text);
        for (const QString &form : {message.title(), message.sourceTitle(), message.text(),
                                    message.sourceText(), message.action(), message.sourceAction()})
            QCOMPARE(form, text);
    }

    void textsAreTranslatedInTheKeysContext()
    {
        const OneText translator("Clt::Session", "No server", u"Kein Server"_s);
        Message message = messageIn(u"Clt::Session"_s);
        message.setTitle(u"No server"_s);
        message.setText(u"No server"_s);
        message.setAction(u"No server"_s);
        for (const QString &translated : {message.title(), message.text(), message.action()})
            QCOMPARE(translated, u"Kein Server"_s);
        for (const QString &source : {message.sourceTitle(), message.sourceText(), message.sourceAction()})
            QCOMPARE(source, u"No server"_s);
    }

    void otherContextsAreNotTranslated()
    {
        const OneText translator("Clt::Session", "No server", u"Kein Server"_s);
        Message message = messageIn(u"Session"_s);
        message.setText(u"No server"_s);
        QCOMPARE(message.text(), u"No server"_s);
    }

    void settingTheKeyLaterDoesNotTranslateAgain()
    {
        const OneText translator("Old", "No server", u"Kein Server"_s);
        Message message = messageIn(u"Old"_s);
        message.setText(u"No server"_s);
        message.setKey({QString(), u"New"_s, QString()});
        QCOMPARE(message.text(), u"Kein Server"_s);
    }

    void lookUpUsesAscii_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("source");
        QTest::newRow("Latin-1") << u"Gerät"_s << QByteArray("Ger?t");
        QTest::newRow("Japanese") << u"保存 A"_s << QByteArray("?? A");
        QTest::newRow("two code units") << u"𝄞"_s << QByteArray("??");
        QTest::newRow("0x7f is ASCII, 0x80 is not")
            << QString(QChar(0x7f)) + QChar(0x80) << QByteArray("\x7f?");
    }

    void lookUpUsesAscii()
    {
        QFETCH(const QString, text);
        QFETCH(const QByteArray, source);
        const OneText translator("Ger?t", source, u"found: ü"_s);
        Message message = messageIn(u"Gerät"_s);
        message.setText(text);
        QCOMPARE(message.text(), u"found: ü"_s);
        QCOMPARE(message.sourceText(), text);
    }

    void argumentsFillBothFormsOfTextAndAction()
    {
        const OneText translator("Clt", "Port %1", u"Anschluss %1"_s);
        Message message = messageIn(u"Clt"_s);
        message.setText(u"Port %1"_s);
        message.setAction(u"Free %1"_s);
        message.applyArguments({u"80"_s});
        QCOMPARE(message.text(), u"Anschluss 80"_s);
        QCOMPARE(message.sourceText(), u"Port 80"_s);
        QCOMPARE(message.action(), u"Free 80"_s);
        QCOMPARE(message.sourceAction(), u"Free 80"_s);
    }

    void titlesAreNotFilled()
    {
        Message message;
        message.setTitle(u"Port %1"_s);
        message.applyArguments({u"80"_s});
        QCOMPARE(message.title(), u"Port %1"_s);
        QCOMPARE(message.sourceTitle(), u"Port %1"_s);
    }

    void logTextNamesSeverityFileAndLine()
    {
        Message message;
        message.setSeverity(Clt::Severity::Critical);
        message.setFile(u"session.cpp"_s);
        message.setLine(1234567);
        message.setText(u"No server"_s);
        QCOMPARE(message.logText(), u"### Critical: session.cpp 1234567\nNo server\n"_s);
    }

    void logTextAddsTheSourceTextWhenItDiffers()
    {
        const OneText translator("Clt", "No server", u"Kein Server"_s);
        Message message = messageIn(u"Clt"_s);
        message.setText(u"No server"_s);
        QCOMPARE(message.logText(), u"### Information:  0\nKein Server\n(No server)\n"_s);
    }

    void logTextLeavesPercentSignsUnchanged()
    {
        Message message;
        message.setFile(u"%3%2"_s);
        message.setText(u"%1"_s);
        QCOMPARE(message.logText(), u"### Information: %3%2 0\n%1\n"_s);
    }
};

NVX_GUILESS_TEST(tst_message)
#include "tst_message.moc"
