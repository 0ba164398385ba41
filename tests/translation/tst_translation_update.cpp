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

using namespace Qt::Literals::StringLiterals;

namespace {

/// Translates every string to upper case.
class UpperCase : public QTranslator
{
public:
    UpperCase() { QCoreApplication::installTranslator(this); }
    ~UpperCase() override { QCoreApplication::removeTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QString::fromUtf8(source).toUpper();
    }
};

Clt::MessageTable oneMessage()
{
    Clt::Message message;
    message.setKey({u"TAG"_s, u"Clt"_s, u"client"_s});
    message.setText(u"text"_s);
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
    result.done = Translation::synchronizeTranslationTable(messagesName, translationName, log, errors);
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
        const UpperCase translator;
        const Clt::MessageTable messages = oneMessage();
        QCOMPARE(messages.begin()->second.text(), u"TEXT"_s);
        Translation::TranslationTable table;
        QCOMPARE(Translation::addMessageTexts(table, messages), 1);
        QVERIFY(table.contains(u"Clt"_s, u"text"_s));
    }

    void addingAgainAddsNothing()
    {
        Translation::TranslationTable table;
        QCOMPARE(Translation::addMessageTexts(table, oneMessage()), 1);
        QCOMPARE(Translation::addMessageTexts(table, oneMessage()), 0);
    }

    void missingMessageTableIsAFailure()
    {
        const TestFolder folder;
        const QString messages = folder.path(u"messages %1.xml"_s);
        const QString translation = folder.path(u"table.ts"_s);
        const Update result = update(messages, translation);
        QVERIFY(!result.done);
        QCOMPARE(result.log,
                 u"Loading message table \""_s + messages + u"\"...\nCould not load message table\n"_s);
        QVERIFY(!QFile::exists(translation));
    }

    void fileThatCannotBeWrittenIsAFailure()
    {
        const TestFolder folder;
        const QString messages = folder.path(u"messages.xml"_s);
        QVERIFY(oneMessage().save(messages));
        const QString translation = folder.path(u"missing/table.ts"_s);
        const Update result = update(messages, translation);
        QVERIFY(!result.done);
        QCOMPARE(result.log, u"Loading message table \""_s + messages +
                                 u"\"...\nAdded 1 new strings to the translation table\n"
                                 "Could not save translation table\n"_s);
    }

    void damagedFileThatCannotBeCopiedIsUnchanged()
    {
        const TestFolder folder;
        const QString messages = folder.path(u"messages.xml"_s);
        const QString translation = folder.path(u"table.ts"_s);
        QVERIFY(oneMessage().save(messages));
        QVERIFY(writeBytes(translation, "<TS><context>"));
        QVERIFY(QDir().mkdir(translation + u".damaged"_s));
        const Update result = update(messages, translation);
        QVERIFY(!result.done);
        QVERIFY(result.log.endsWith(u"Could not save translation table\n"_s));
        QCOMPARE(fileBytes(translation), QByteArray("<TS><context>"));
    }

    void messageTableIsNotChanged()
    {
        const TestFolder folder;
        const QString messages = folder.path(u"messages.xml"_s);
        QVERIFY(oneMessage().save(messages));
        const std::optional<QByteArray> before = fileBytes(messages);
        QVERIFY(update(messages, folder.path(u"table.ts"_s)).done);
        QCOMPARE(fileBytes(messages), before);
    }
};

NVX_GUILESS_TEST(tst_translation_update)
#include "tst_translation_update.moc"
