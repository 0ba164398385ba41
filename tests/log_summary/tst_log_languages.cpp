#include "log_of_a_run.h"
#include "nvx_util/languages.h"
#include "support/checkout.h"
#include "support/test_class.h"

#include <QFile>
#include <QHash>
#include <QTest>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

using namespace LogSummary;

namespace {

/// The translations of a language, with the strings of the sources as keys; empty for the sources' language.
QHash<QString, QString> translationsInto(const QString &locale)
{
    QHash<QString, QString> translations;
    QFile file(inCheckout(LANGUAGES_FOLDER "/nvxconfig_%1.ts").arg(locale));
    if (!file.open(QIODevice::ReadOnly))
        return translations;
    QXmlStreamReader xml(&file);
    QString source;
    while (!xml.atEnd()) {
        if (!xml.readNextStartElement() && xml.tokenType() != QXmlStreamReader::EndElement)
            continue;
        if (!xml.isStartElement())
            continue;
        if (xml.name() == "source"_L1)
            source = xml.readElementText();
        else if (xml.name() == "translation"_L1)
            translations.insert(source, xml.readElementText(QXmlStreamReader::IncludeChildElements));
    }
    return translations;
}

/// Writes the lines of a run after the start in a language.
class Writer
{
public:
    explicit Writer(const QString &locale)
        : m_translations(translationsInto(locale))
    {
    }

    bool isTranslated() const { return m_translations.size() > 50; }

    QByteArray tr(const char *source) const
    {
        const QString text = QString::fromLatin1(source);
        return m_translations.value(text, text).toUtf8();
    }

    QByteArray line(const char *source, const QByteArray &more = {}) const
    {
        return stepLine(tr(source) + more);
    }

    QByteArray lines(const QByteArray &middle) const
    {
        return line("Searching for CAD Packages") + line("Finished searching for CAD Packages") +
               line("Beginning ", tr("Install")) +
               tr("Processors: %1, Cores per processor: %2").replace("%1", "1").replace("%2", "2") + '\n' +
               removal("C:\\Tutorials", 2) + line("Install", tr(" Tutorials")) +
               line("Installing Tutorials") + middle + line("uninstallServer ") +
               line("uninstallServer - could not stop service") + removal("C:\\NVX\\HPCAnalyze", 2);
    }

    QByteArray flags() const { return line("Processing ", "NVX_flags.txt"); }
    QByteArray materials() const { return line("Checking material database"); }
    QByteArray end() const
    {
        return line("The installation or update is complete. Click finish to continue.");
    }

private:
    QHash<QString, QString> m_translations;
};

QByteArray startOf(const char *mode, const QString &locale)
{
    return startOfRun("-S") + languageSetUp(mode, locale.toLatin1()) + programCheck();
}

} // namespace

/// Logs in all languages, made of the translations that NVXConfig.exe uses.
class tst_log_languages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data()
    {
        QTest::addColumn<QString>("locale");
        for (const Nvx::Util::Language &language : Nvx::Util::languages)
            QTest::newRow(language.locale.data()) << QString(language.locale);
    }

    void theTranslationsAreRead()
    {
        QFETCH_GLOBAL(const QString, locale);
        QCOMPARE(Writer(locale).isTranslated(), locale != Nvx::Util::sourceLanguage.locale);
    }

    void aGoodInstallIsOk()
    {
        QFETCH_GLOBAL(const QString, locale);
        const Writer writer(locale);
        const QByteArray log = startOf("Install", locale) + writer.lines({}) +
                               writer.line("Create shortcut ", "C:\\a.lnk" + writer.tr(" Success")) +
                               writer.flags() + writer.materials() +
                               writer.line("Copy: ", "C:\\NVX\\matprop.mdb" + writer.tr(" to: ") +
                                                         "C:\\ProgramData\\matprop.nvxmdb");
        QCOMPARE(lastRunOf(log).verdict, Verdict::Incomplete);
        const Run run = lastRunOf(log + writer.end());
        QCOMPARE(run.verdict, Verdict::Ok);
        QCOMPARE(run.language, locale);
    }

    void aSecondInstallIsOk()
    {
        QFETCH_GLOBAL(const QString, locale);
        const Writer writer(locale);
        const QByteArray log = startOf("Install", locale) + writer.lines({}) + writer.flags() +
                               writer.line("Creating ", "NVX_flags.txt") + writer.materials();
        QCOMPARE(lastRunOf(log).verdict, Verdict::Incomplete);
        QCOMPARE(lastRunOf(log + writer.end()).verdict, Verdict::Ok);
    }

    void aSilentRemovalIsOk()
    {
        QFETCH_GLOBAL(const QString, locale);
        const Writer writer(locale);
        const QByteArray log = startOf("UnInstall", locale) + writer.lines({}) + writer.flags() +
                               stepLine("NVX_flags.txt" + writer.tr(" has not changed")) +
                               writer.materials() + writer.line("Remove: ", "C:\\NVX\\matprop.new") +
                               writer.line("Remove: ", "C:\\NVX\\matprop.nvxmdb") +
                               removal("C:\\NVX\\WebServices", 2) + writer.end() +
                               writer.line("Remove: ", "C:\\ProgramData\\NVX*.dat");
        QCOMPARE(lastRunOf(log).verdict, Verdict::Incomplete);
        QCOMPARE(lastRunOf(log + writer.line("Remove: Report .pyc files")).verdict, Verdict::Ok);
    }

    void aFailedProgramIsReported()
    {
        QFETCH_GLOBAL(const QString, locale);
        const Writer writer(locale);
        const QByteArray sentence = writer.tr("The program could not be started.");
        const Run run = lastRunOf(startOf("Install", locale) + writer.lines(program("7z.exe", -2, sentence)) +
                                  writer.flags() + writer.materials() + writer.end());
        QCOMPARE(run.verdict, Verdict::Failed);
        QCOMPARE(run.failedSteps.size(), 1U);
        QCOMPARE(run.failedSteps.at(0).step, QString::fromUtf8(writer.tr("Installing Tutorials")));
        QCOMPARE(run.failedSteps.at(0).output, QStringList(QString::fromUtf8(sentence)));
    }

    void missingMaterialsAreReported()
    {
        QFETCH_GLOBAL(const QString, locale);
        const Writer writer(locale);
        const QByteArray path = "C:\\NVX\\matprop.mdb";
        const Run run = lastRunOf(
            startOf("Install", locale) + writer.lines({}) + writer.flags() + writer.materials() +
            writer.line("Installation error matprop.mdb does not exist?") +
            writer.line("Installation error: ", path + writer.tr(" does not exist.")) + writer.end());
        QCOMPARE(run.verdict, Verdict::Failed);
        QCOMPARE(run.failedStepCount, 1);
    }
};

NVX_GUILESS_TEST(tst_log_languages)

#include "tst_log_languages.moc"
