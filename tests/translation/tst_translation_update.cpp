#include "clt_message_table.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "translation/error_translation_table.h"
#include "translation/translation_update.h"

#include <QCoreApplication>
#include <QTest>
#include <QTextStream>
#include <QTranslator>

namespace {

/// Translates every text by writing it in capitals.
class Capitals : public QTranslator
{
public:
    Capitals() { QCoreApplication::installTranslator(this); }
    ~Capitals() override { QCoreApplication::removeTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QString::fromUtf8(source).toUpper();
    }
};

Clt::MessageTable oneMessage()
{
    Clt::Message message;
    message.setKey({QStringLiteral("TAG"), QStringLiteral("Clt"), QStringLiteral("client")});
    message.setText(QStringLiteral("text"));
    Clt::MessageTable table;
    table.insert(message);
    return table;
}

struct Update
{
    bool done = false;
    QString log;
    QString errors;
};

Update update(const QString &messagesName, const QString &translationName)
{
    Update result;
    QTextStream log(&result.log);
    QTextStream errors(&result.errors);
    result.done = Error::synchronizeTranslationTable(messagesName, translationName, log, errors);
    log.flush();
    errors.flush();
    return result;
}

} // namespace

class tst_translation_update : public QObject
{
    Q_OBJECT

private slots:
    void sourceTextsAreAddedNotTranslations()
    {
        const Capitals translator;
        const Clt::MessageTable messages = oneMessage();
        QCOMPARE(messages.begin()->second.text(), QStringLiteral("TEXT"));
        Error::TranslationTable table;
        QCOMPARE(Error::addMessageTexts(table, messages), 1);
        QVERIFY(table.contains(QStringLiteral("Clt"), QStringLiteral("text")));
    }

    void addingAgainAddsNothing()
    {
        Error::TranslationTable table;
        QCOMPARE(Error::addMessageTexts(table, oneMessage()), 1);
        QCOMPARE(Error::addMessageTexts(table, oneMessage()), 0);
    }

    void missingMessageTableStops()
    {
        const TestFolder folder;
        const QString messages = folder.path(QStringLiteral("messages %1.xml"));
        const QString translation = folder.path(QStringLiteral("table.ts"));
        const Update result = update(messages, translation);
        QVERIFY(!result.done);
        QCOMPARE(result.log, QStringLiteral("Loading message table \"") + messages +
                                 QStringLiteral("\"...\nCould not load message table\n"));
        QVERIFY(!QFile::exists(translation));
    }

    void fileThatCannotBeWrittenFails()
    {
        const TestFolder folder;
        const QString messages = folder.path(QStringLiteral("messages.xml"));
        QVERIFY(oneMessage().save(messages));
        const QString translation = folder.path(QStringLiteral("missing/table.ts"));
        const Update result = update(messages, translation);
        QVERIFY(!result.done);
        QCOMPARE(result.log, QStringLiteral("Loading message table \"") + messages +
                                 QStringLiteral("\"...\nAdded 1 new strings to the translation table\n"
                                                "Could not save translation table\n"));
    }

    void damagedFileThatCannotBeKeptIsLeft()
    {
        const TestFolder folder;
        const QString messages = folder.path(QStringLiteral("messages.xml"));
        const QString translation = folder.path(QStringLiteral("table.ts"));
        QVERIFY(oneMessage().save(messages));
        QVERIFY(writeBytes(translation, "<TS><context>"));
        QVERIFY(QDir().mkdir(translation + QStringLiteral(".damaged")));
        const Update result = update(messages, translation);
        QVERIFY(!result.done);
        QVERIFY(result.log.endsWith(QStringLiteral("Could not save translation table\n")));
        QCOMPARE(fileBytes(translation), QByteArray("<TS><context>"));
    }

    void messageTableIsOnlyRead()
    {
        const TestFolder folder;
        const QString messages = folder.path(QStringLiteral("messages.xml"));
        QVERIFY(oneMessage().save(messages));
        const std::optional<QByteArray> before = fileBytes(messages);
        QVERIFY(update(messages, folder.path(QStringLiteral("table.ts"))).done);
        QCOMPARE(fileBytes(messages), before);
    }
};

NVX_GUILESS_TEST(tst_translation_update)
#include "tst_translation_update.moc"
