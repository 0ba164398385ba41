#include "message_table_check/exchange.h"
#include "support/file_bytes.h"
#include "support/program_run.h"
#include "support/random_text.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "translation/error_translation_table.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

using Translation::TranslationContext;
using Translation::TranslationTable;

namespace {

constexpr quint32 seeds = 12;

/// Random tables. Every source is used once in its context, because lconvert drops repeated ones.
class RandomTables
{
public:
    enum class Characters
    {
        All,     ///< with control characters
        ForXliff ///< without them and without carriage returns, which lconvert writes so that they are lost
    };

    RandomTables(quint32 seed, Characters characters)
        : m_random(seed)
        , m_characters(characters)
    {
    }

    TranslationTable table()
    {
        TranslationTable table;
        table.setVersion(u"2.1"_s);
        table.setLanguage(u"de_DE"_s);
        table.setDefaultCodec(u"UTF-8"_s);
        for (quint32 number = m_random.below(6); number > 0; --number) {
            // lconvert loses line ends and control characters in the names of contexts.
            TranslationContext context(u"%1%2"_s.arg(m_random.text().simplified()).arg(number));
            for (quint32 message = m_random.below(12); message > 0; --message)
                context.append({u"%1%2"_s.arg(text()).arg(message), text(), type(), text()});
            table.setContext(context);
        }
        return table;
    }

    /// The table with other translations, none of them empty, and other types.
    TranslationTable edited(const TranslationTable &table)
    {
        TranslationTable edited = table;
        for (const auto &[name, messages] : table.contexts()) {
            TranslationContext context(name);
            for (const Translation::TranslationMessage &message : messages.messages())
                context.append({message.source, text() + u'x', type(), message.comment});
            edited.setContext(context);
        }
        return edited;
    }

private:
    QString text()
    {
        QString text = m_random.text();
        if (m_characters == Characters::ForXliff)
            return text.remove(u'\r');
        return m_random.below(3) == 0 ? text + QChar(ushort(1 + m_random.below(0x1f))) : text;
    }

    QString type()
    {
        static const QStringList types{QString(), u"unfinished"_s, u"obsolete"_s};
        return types.at(m_random.below(3));
    }

    RandomText m_random;
    Characters m_characters;
};

/// Converts one file to the other with lconvert; the error, or an empty string.
QString convert(const QString &from, const QString &to)
{
    const ProgramRun converted = runToEnd(QStringLiteral(LCONVERT), {u"-i"_s, from, u"-o"_s, to});
    return converted.exitCode == 0 ? QString() : converted.output + converted.errors;
}

} // namespace

/// Round trips through the real tools of Qt 6.
class tst_exchange_tools : public QObject
{
    Q_OBJECT

private slots:
    void untouchedFileComesBackUnchanged_data() { addRoads(); }

    void untouchedFileComesBackUnchanged()
    {
        QFETCH(const QString, out);
        QFETCH(const QString, in);
        QFETCH(const quint32, seed);
        const TestFolder work;
        const QString ours = work.path(u"ours.ts"_s);
        RandomTables random(seed, charactersFor(out, in));
        QVERIFY(random.table().save(ours));
        const QByteArray before = readFile(ours);

        const auto sent = TableCheck::convertForQt6(ours, work.path(out));
        QVERIFY2(sent, qPrintable(sent.error()));
        QCOMPARE(convert(work.path(out), work.path(in)), QString());
        const auto taken = TableCheck::takeBack(work.path(in), ours);
        QVERIFY2(taken, qPrintable(taken.error()));
        QCOMPARE(taken->changed, 0);
        QCOMPARE(taken->added, 0);
        QCOMPARE(readFile(ours), before);
    }

    void everyEditedTranslationComesBack_data() { addRoads(); }

    void everyEditedTranslationComesBack()
    {
        QFETCH(const QString, out);
        QFETCH(const QString, in);
        QFETCH(const quint32, seed);
        const TestFolder work;
        const QString ours = work.path(u"ours.ts"_s);
        const QString edited = work.path(u"edited.ts"_s);
        RandomTables random(seed, charactersFor(out, in));
        TranslationTable table = random.table();
        QVERIFY(table.save(ours));
        QVERIFY(random.edited(table).save(edited));

        QVERIFY(TableCheck::convertForQt6(edited, work.path(out)));
        QCOMPARE(convert(work.path(out), work.path(in)), QString());
        const auto taken = TableCheck::takeBack(work.path(in), ours);
        QVERIFY2(taken, qPrintable(taken.error()));
        QCOMPARE(taken->added, 0);
        QCOMPARE(readFile(ours), readFile(edited));
    }

    void newFileHasEveryTranslationThatComesBack_data() { addRoads(); }

    void newFileHasEveryTranslationThatComesBack()
    {
        QFETCH(const QString, out);
        QFETCH(const QString, in);
        QFETCH(const quint32, seed);
        const TestFolder work;
        const QString ours = work.path(u"ours.ts"_s);
        const QString created = work.path(u"created.ts"_s);
        RandomTables random(seed, charactersFor(out, in));
        const TranslationTable table = random.edited(random.table());
        QVERIFY(TranslationTable(table).save(ours));

        QVERIFY(TableCheck::convertForQt6(ours, work.path(out)));
        QCOMPARE(convert(work.path(out), work.path(in)), QString());
        QVERIFY(TableCheck::takeBack(work.path(in), created));
        // What comes back must find all of its strings in the new file.
        const auto again = TableCheck::takeBack(ours, created);
        QVERIFY(again);
        QCOMPARE(again->changed, 0);
        QCOMPARE(again->added, 0);
    }

    void toolsAcceptTheConvertedFile()
    {
        const TestFolder work;
        const QString ours = work.path(u"ours.ts"_s);
        const QString converted = work.path(u"converted.ts"_s);
        const QString source = work.path(u"empty.cpp"_s);
        QVERIFY(writeBytes(source, "int nothing;\n"));
        for (quint32 seed = 1; seed <= seeds; ++seed) {
            RandomTables random(seed, RandomTables::Characters::All);
            QVERIFY(random.table().save(ours));
            QVERIFY(runToEnd(QStringLiteral(LRELEASE), {ours}).exitCode != 0);
            QVERIFY(TableCheck::convertForQt6(ours, converted));
            const ProgramRun released = runToEnd(QStringLiteral(LRELEASE), {converted});
            QVERIFY2(released.exitCode == 0, released.report().constData());
            const ProgramRun updated = runToEnd(QStringLiteral(LUPDATE), {source, u"-ts"_s, converted});
            QVERIFY2(updated.exitCode == 0, updated.report().constData());
        }
    }

private:
    /// Which files we write and lconvert returns.
    static void addRoads()
    {
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("in");
        QTest::addColumn<quint32>("seed");
        for (const char *out : {"ts", "xlf"}) {
            for (const char *in : {"ts", "xlf"}) {
                for (quint32 seed = 1; seed <= seeds; ++seed)
                    QTest::addRow("%s to %s, seed %u", out, in, seed)
                        << u"out."_s.append(QLatin1String(out)) << u"in."_s.append(QLatin1String(in)) << seed;
            }
        }
    }

    static RandomTables::Characters charactersFor(const QString &out, const QString &in)
    {
        return out.endsWith(u"ts"_s) && in.endsWith(u"ts"_s) ? RandomTables::Characters::All
                                                             : RandomTables::Characters::ForXliff;
    }
};

NVX_GUILESS_TEST(tst_exchange_tools)
#include "tst_exchange_tools.moc"
