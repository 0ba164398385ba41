#include "random_translation_table.h"
#include "support/case_folders.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QProcess>
#include <QTest>
#include <QTranslator>

using Error::TranslationTable;

namespace {

struct Run
{
    int exitCode = -1;
    QByteArray output;
};

Run run(const char *program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QString::fromUtf8(program), arguments);
    const bool ended = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, process.readAll()};
}

/// Copies a file that we wrote without its "defaultcodec" element, which Qt's tools refuse since version 6,
/// when Qt gave the codecs up. All the rest is as it is.
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

void tableRows()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 12; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

} // namespace

class tst_translation_tools : public QObject
{
    Q_OBJECT

private slots:
    void lreleaseTakesEveryFileOfTheCases_data() { addCaseRows(QStringLiteral(CASES_FOLDER)); }

    void lreleaseTakesEveryFileOfTheCases()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        const QString table = work.path(QStringLiteral("table.ts"));
        QVERIFY(copyWithoutCodec(folder + QStringLiteral("/expected.ts"), table));
        const Run released = run(LRELEASE, {table});
        QVERIFY2(released.exitCode == 0, released.output.constData());
    }

    void lconvertTakesEveryFileOfTheCases_data() { addCaseRows(QStringLiteral(CASES_FOLDER)); }

    void lconvertTakesEveryFileOfTheCases()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        const QString table = work.path(QStringLiteral("table.ts"));
        QVERIFY(copyWithoutCodec(folder + QStringLiteral("/expected.ts"), table));
        const Run converted = run(LCONVERT, {QStringLiteral("-i"), table, QStringLiteral("-o"),
                                             work.path(QStringLiteral("converted.ts"))});
        QVERIFY2(converted.exitCode == 0, converted.output.constData());
    }

    void lupdateTakesEveryFileOfTheCases_data() { addCaseRows(QStringLiteral(CASES_FOLDER)); }

    void lupdateTakesEveryFileOfTheCases()
    {
        QFETCH(const QString, folder);
        const TestFolder work;
        const QString table = work.path(QStringLiteral("table.ts"));
        const QString source = work.path(QStringLiteral("empty.cpp"));
        QVERIFY(copyWithoutCodec(folder + QStringLiteral("/expected.ts"), table));
        QVERIFY(writeBytes(source, "int nothing;\n"));
        const Run updated = run(LUPDATE, {source, QStringLiteral("-ts"), table});
        QVERIFY2(updated.exitCode == 0, updated.output.constData());
    }

    void randomTablesAreTaken_data() { tableRows(); }

    void randomTablesAreTaken()
    {
        QFETCH(const quint32, seed);
        const TestFolder work;
        const QString table = work.path(QStringLiteral("table.ts"));
        const QString converted = work.path(QStringLiteral("converted.ts"));
        const QString ours = work.path(QStringLiteral("ours.ts"));
        QVERIFY(randomTranslationTable(seed).save(ours));
        QVERIFY(copyWithoutCodec(ours, table));
        const Run released = run(LRELEASE, {table});
        QVERIFY2(released.exitCode == 0, released.output.constData());
        const Run conversion = run(LCONVERT, {QStringLiteral("-i"), table, QStringLiteral("-o"), converted});
        QVERIFY2(conversion.exitCode == 0, conversion.output.constData());
    }

    void finishedTranslationIsShownByTheProgram()
    {
        const TestFolder work;
        const QString table = work.path(QStringLiteral("table.ts"));
        const QString binary = work.path(QStringLiteral("table.qm"));
        TranslationTable written;
        written.setVersion(QStringLiteral("2.1"));
        written.setLanguage(QStringLiteral("de_DE"));
        Error::TranslationContext context(QStringLiteral("Clt::Session"));
        context.append({QStringLiteral("No server"), QStringLiteral("Kein Server 𝄞"), QString(), QString()});
        context.append({QStringLiteral("\033[1m"), QStringLiteral("\033[2m\r"), QString(), QString()});
        context.append(
            {QStringLiteral("Gone"), QStringLiteral("Weg"), QStringLiteral("obsolete"), QString()});
        written.setContext(context);
        written.addString(QStringLiteral("Clt::Session"), QStringLiteral("New"));
        const QString ours = work.path(QStringLiteral("ours.ts"));
        QVERIFY(written.save(ours));
        QVERIFY(copyWithoutCodec(ours, table));
        const Run released = run(LRELEASE, {table, QStringLiteral("-qm"), binary});
        QVERIFY2(released.exitCode == 0, released.output.constData());

        QTranslator translator;
        QVERIFY(translator.load(binary));
        QCOMPARE(translator.translate("Clt::Session", "No server"), QStringLiteral("Kein Server 𝄞"));
        QCOMPARE(translator.translate("Clt::Session", "\033[1m"), QStringLiteral("\033[2m\r"));
        QCOMPARE(translator.translate("Clt::Session", "Gone"), QString());
        QCOMPARE(translator.translate("Clt::Session", "New"), QStringLiteral("New"));
    }
};

NVX_GUILESS_TEST(tst_translation_tools)
#include "tst_translation_tools.moc"
