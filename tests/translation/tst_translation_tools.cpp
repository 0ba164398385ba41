#include "random_translation_table.h"
#include "support/case_folders.h"
#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/program_run.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QTest>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

using Translation::TranslationTable;

namespace {

/// Copies a file that we wrote without its "defaultcodec" element, which Qt's tools refuse since version 6.
/// Nothing else is changed.
bool copyWithoutCodec(const QString &from, const QString &to)
{
    std::optional<QByteArray> bytes = fileBytes(from);
    if (!bytes)
        return false;
    const QByteArray end = "</defaultcodec>";
    const qsizetype first = bytes->indexOf("<defaultcodec>");
    const qsizetype last = bytes->indexOf(end);
    return first >= 0 && last > first && writeBytes(to, bytes->remove(first, last + end.size() - first));
}

} // namespace

class tst_translation_tools : public QObject
{
    Q_OBJECT

private slots:
    void lreleaseAcceptsTheFilesOfAllCases_data() { addCaseRows(inCheckout(CASES_FOLDER)); }

    void lreleaseAcceptsTheFilesOfAllCases()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        const QString table = work.path(u"table.ts"_s);
        QVERIFY(copyWithoutCodec(folder + u"/expected.ts"_s, table));
        const ProgramRun released = runToEnd(QStringLiteral(LRELEASE), {table});
        QVERIFY2(released.exitCode == 0, released.report().constData());
    }

    void lconvertAcceptsTheFilesOfAllCases_data() { addCaseRows(inCheckout(CASES_FOLDER)); }

    void lconvertAcceptsTheFilesOfAllCases()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        const QString table = work.path(u"table.ts"_s);
        QVERIFY(copyWithoutCodec(folder + u"/expected.ts"_s, table));
        const ProgramRun converted =
            runToEnd(QStringLiteral(LCONVERT), {u"-i"_s, table, u"-o"_s, work.path(u"converted.ts"_s)});
        QVERIFY2(converted.exitCode == 0, converted.report().constData());
    }

    void lupdateAcceptsTheFilesOfAllCases_data() { addCaseRows(inCheckout(CASES_FOLDER)); }

    void lupdateAcceptsTheFilesOfAllCases()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        const QString table = work.path(u"table.ts"_s);
        const QString source = work.path(u"empty.cpp"_s);
        QVERIFY(copyWithoutCodec(folder + u"/expected.ts"_s, table));
        QVERIFY(writeBytes(source, "int nothing;\n"));
        const ProgramRun updated = runToEnd(QStringLiteral(LUPDATE), {source, u"-ts"_s, table});
        QVERIFY2(updated.exitCode == 0, updated.report().constData());
    }

    void toolsAcceptRandomTables_data() { addSeedRows(12); }

    void toolsAcceptRandomTables()
    {
        QFETCH(const quint32, seed);
        const TestFolder work;
        const QString table = work.path(u"table.ts"_s);
        const QString converted = work.path(u"converted.ts"_s);
        const QString ours = work.path(u"ours.ts"_s);
        QVERIFY(randomTranslationTable(seed).save(ours));
        QVERIFY(copyWithoutCodec(ours, table));
        const ProgramRun released = runToEnd(QStringLiteral(LRELEASE), {table});
        QVERIFY2(released.exitCode == 0, released.report().constData());
        const ProgramRun conversion =
            runToEnd(QStringLiteral(LCONVERT), {u"-i"_s, table, u"-o"_s, converted});
        QVERIFY2(conversion.exitCode == 0, conversion.report().constData());
    }

    void programShowsFinishedTranslations()
    {
        const TestFolder work;
        const QString table = work.path(u"table.ts"_s);
        const QString binary = work.path(u"table.qm"_s);
        TranslationTable written;
        written.setVersion(u"2.1"_s);
        written.setLanguage(u"de_DE"_s);
        Translation::TranslationContext context(u"Clt::Session"_s);
        context.append({u"No server"_s, u"Kein Server 𝄞"_s, QString(), QString()});
        context.append({u"\033[1m"_s, u"\033[2m\r"_s, QString(), QString()});
        context.append({u"Gone"_s, u"Weg"_s, u"obsolete"_s, QString()});
        written.setContext(context);
        written.addString(u"Clt::Session"_s, u"New"_s);
        const QString ours = work.path(u"ours.ts"_s);
        QVERIFY(written.save(ours));
        QVERIFY(copyWithoutCodec(ours, table));
        const ProgramRun released = runToEnd(QStringLiteral(LRELEASE), {table, u"-qm"_s, binary});
        QVERIFY2(released.exitCode == 0, released.report().constData());

        QTranslator translator;
        QVERIFY(translator.load(binary));
        QCOMPARE(translator.translate("Clt::Session", "No server"), u"Kein Server 𝄞"_s);
        QCOMPARE(translator.translate("Clt::Session", "\033[1m"), u"\033[2m\r"_s);
        QCOMPARE(translator.translate("Clt::Session", "Gone"), QString());
        QCOMPARE(translator.translate("Clt::Session", "New"), u"New"_s);
    }
};

NVX_GUILESS_TEST(tst_translation_tools)
#include "tst_translation_tools.moc"
