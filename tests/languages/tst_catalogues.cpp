// The interface's catalogues in the source tree are complete and correct, and match the sources.

#include "catalogue_checks.h"
#include "glossary.h"
#include "nvx_util/system.h"
#include "support/checkout.h"
#include "support/test_class.h"
#include "support/test_folder.h"
#include "typography.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QDir sourceRoot()
{
    return QDir(inCheckout(NVX_SOURCE_ROOT));
}

QDir languagesFolder()
{
    return QDir(sourceRoot().filePath(u"resource/languages"_s));
}

QStringList catalogueFiles()
{
    return languagesFolder().entryList({u"*.ts"_s}, QDir::Files, QDir::Name);
}

// "nvxconfig" of "nvxconfig_de-DE.ts"
QString nameOfFile(const QString &file)
{
    return file.section(u'_', 0, 0);
}

// "de-DE" of "nvxconfig_de-DE.ts"
QString localeOfFile(const QString &file)
{
    return file.section(u'_', 1).section(u'.', 0, 0);
}

// "de_DE" of "nvxconfig_de-DE.ts"
QString languageOfFile(const QString &file)
{
    return localeOfFile(file).replace(u'-', u'_');
}

std::optional<Catalogue> readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return readCatalogue(file);
}

QMap<QString, QStringList> listedCatalogues()
{
    QFile list(languagesFolder().filePath(u"catalogues.txt"_s));
    if (!list.open(QIODevice::ReadOnly))
        return {};
    return readCatalogueList(list);
}

QStringList translatedLocales()
{
    QStringList locales = Nvx::Util::System::validLocales();
    locales.removeAll(u"en-US"_s); // the texts' own language
    return locales;
}

Glossary readGlossaryFile()
{
    QFile file(sourceRoot().filePath(u"tests/languages/glossary.txt"_s));
    if (!file.open(QIODevice::ReadOnly))
        return {{}, {file.errorString()}};
    return readGlossary(file);
}

const Glossary &glossary()
{
    static const Glossary whole = readGlossaryFile();
    return whole;
}

// The texts of all catalogues of a locale.
QList<Entry> entriesOf(const QString &locale)
{
    QList<Entry> entries;
    const QStringList files = catalogueFiles();
    for (const QString &file : files) {
        if (localeOfFile(file) == locale)
            entries += readFile(languagesFolder().filePath(file)).value_or(Catalogue()).entries;
    }
    return entries;
}

// Updates a catalogue from the sources in the folders with lupdate; returns whether that succeeded.
bool update(const QString &catalogue, const QStringList &folders)
{
    QProcess lupdate;
    lupdate.setWorkingDirectory(sourceRoot().path());
    lupdate.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    lupdate.start(QStringLiteral(NVX_LUPDATE),
                  QStringList{u"-silent"_s, u"-I"_s, u"Config/source"_s, u"-I"_s, u"Utility/include"_s,
                              u"-I"_s, u"source"_s} +
                      folders +
                      QStringList{u"-locations"_s, u"none"_s, u"-no-obsolete"_s, u"-ts"_s, catalogue});
    return lupdate.waitForFinished(60'000) && lupdate.exitStatus() == QProcess::NormalExit &&
           lupdate.exitCode() == 0;
}

// Fails with the names of the texts if there are any. "%1" in the message is the row's file.
void expectNone(const QStringList &texts, const char *message)
{
    const QString file = QString::fromLatin1(QTest::currentDataTag());
    const QString whole = QString::fromLatin1(message).arg(file) + u": "_s + texts.join(u" | "_s);
    QVERIFY2(texts.isEmpty(), qPrintable(whole));
}

void addFileRows()
{
    QTest::addColumn<QString>("file");
    const QStringList files = catalogueFiles();
    for (const QString &file : files)
        QTest::newRow(qPrintable(file)) << file;
}

// Reads the row's file and expects all its texts to pass a check.
void expectEveryEntryToPass(bool (*check)(const Entry &))
{
    QFETCH(QString, file);
    const auto catalogue = readFile(languagesFolder().filePath(file));
    QVERIFY(catalogue);
    QVERIFY(!catalogue->entries.isEmpty());
    expectNone(failingTexts(catalogue->entries, check), "to be corrected in %1");
}

// The same for a check of the file's typography.
void expectTypographyToPass(TypographyCheck check)
{
    QFETCH(QString, file);
    const auto catalogue = readFile(languagesFolder().filePath(file));
    QVERIFY(catalogue);
    expectNone(failingTexts(catalogue->entries, localeOfFile(file), check), "to be corrected in %1");
}

} // namespace

class tst_catalogues : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void everyLocaleHasACatalogue_data();
    void everyLocaleHasACatalogue();
    void catalogueNamesItsLanguage_data() { addFileRows(); }
    void catalogueNamesItsLanguage();
    void everyTextIsTranslated_data() { addFileRows(); }
    void everyTextIsTranslated() { expectEveryEntryToPass(isTranslated); }
    void placeholdersAreKept_data() { addFileRows(); }
    void placeholdersAreKept() { expectEveryEntryToPass(keepsPlaceholders); }
    void outerBlanksAreKept_data() { addFileRows(); }
    void outerBlanksAreKept() { expectEveryEntryToPass(keepsOuterBlanks); }
    void lineFeedsAreKept_data() { addFileRows(); }
    void lineFeedsAreKept() { expectEveryEntryToPass(keepsLineFeeds); }
    void productNamesAreKept_data() { addFileRows(); }
    void productNamesAreKept() { expectEveryEntryToPass(keepsProductNames); }
    void optionsAreKept_data() { addFileRows(); }
    void optionsAreKept() { expectEveryEntryToPass(keepsOptions); }
    void ellipsesAreKept_data() { addFileRows(); }
    void ellipsesAreKept() { expectEveryEntryToPass(keepsEllipses); }
    void quotationMarksFollowTheLanguage_data() { addFileRows(); }
    void quotationMarksFollowTheLanguage() { expectTypographyToPass(usesOwnQuotes); }
    void blanksFollowTheLanguage_data() { addFileRows(); }
    void blanksFollowTheLanguage() { expectTypographyToPass(usesOwnSpacing); }
    void punctuationFollowsTheLanguage_data() { addFileRows(); }
    void punctuationFollowsTheLanguage() { expectTypographyToPass(usesOwnPunctuation); }
    void dashesFollowTheLanguage_data() { addFileRows(); }
    void dashesFollowTheLanguage() { expectTypographyToPass(usesOwnDash); }
    void aTermHasOneTranslation_data() { addFileRows(); }
    void aTermHasOneTranslation();
    void theGlossaryIsCompleteAndHasNoUnusedEntries();
    void catalogueMatchesTheSources_data() { addFileRows(); }
    void catalogueMatchesTheSources();
};

void tst_catalogues::initTestCase()
{
    QVERIFY2(!catalogueFiles().isEmpty(), qPrintable(languagesFolder().path()));
    QVERIFY(!listedCatalogues().isEmpty());
}

void tst_catalogues::everyLocaleHasACatalogue_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("locale");
    const QStringList locales = translatedLocales();
    const QStringList names = listedCatalogues().keys();
    for (const QString &name : names) {
        for (const QString &locale : locales)
            QTest::addRow("%s in %s", qPrintable(name), qPrintable(locale)) << name << locale;
    }
}

void tst_catalogues::everyLocaleHasACatalogue()
{
    QFETCH(QString, name);
    QFETCH(QString, locale);
    const QString file = u"%1_%2.ts"_s.arg(name, locale);
    QVERIFY2(catalogueFiles().contains(file), qPrintable(file));
}

void tst_catalogues::catalogueNamesItsLanguage()
{
    QFETCH(QString, file);
    const auto catalogue = readFile(languagesFolder().filePath(file));
    QVERIFY(catalogue);
    QCOMPARE(catalogue->language, languageOfFile(file));
}

void tst_catalogues::aTermHasOneTranslation()
{
    QFETCH(QString, file);
    const auto catalogue = readFile(languagesFolder().filePath(file));
    QVERIFY(catalogue);
    expectNone(textsWithoutTheirTerms(glossary(), catalogue->entries, localeOfFile(file)),
               "against tests/languages/glossary.txt in %1");
}

void tst_catalogues::theGlossaryIsCompleteAndHasNoUnusedEntries()
{
    const Glossary &terms = glossary();
    QCOMPARE(terms.faults, QStringList());
    QVERIFY(!terms.terms.isEmpty());
    QCOMPARE(untranslatedTerms(terms, translatedLocales()), QStringList());
    const QStringList locales = translatedLocales();
    for (const QString &locale : locales) {
        const QList<Entry> entries = entriesOf(locale);
        QCOMPARE(unusedTerms(terms, entries), QStringList());
        QCOMPARE(unneededExceptions(terms, entries, locale), QStringList());
    }
}

void tst_catalogues::catalogueMatchesTheSources()
{
    QFETCH(QString, file);
    const QString kept = languagesFolder().filePath(file);
    const QStringList folders = listedCatalogues().value(nameOfFile(file));
    QVERIFY2(!folders.isEmpty(), "catalogues.txt does not list it");
    const TestFolder folder;
    const QString copy = folder.path(file);
    QVERIFY(QFile::copy(kept, copy));
    QVERIFY(update(copy, folders));

    const auto before = readFile(kept);
    const auto after = readFile(copy);
    QVERIFY(before && after);
    expectNone(missingFrom(before->entries, after->entries), "run tools/translations; new to %1");
    expectNone(missingFrom(after->entries, before->entries), "run tools/translations; only in %1");
}

NVX_GUILESS_TEST(tst_catalogues)
#include "tst_catalogues.moc"
