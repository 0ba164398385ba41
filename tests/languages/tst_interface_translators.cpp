// The compiled catalogues, loaded as at start-up.

#include "cfg_utilities/command_line.h"
#include "cfg_wizard/interface_language.h"
#include "nvx_util/system.h"
#include "support/checkout.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Nvx::Wizard::InterfaceTranslators;

namespace {

const QString german = u"de-DE"_s;

QString languagesFolder()
{
    return QDir::toNativeSeparators(inCheckout(NVX_LANGUAGES_FOLDER));
}

// A text of the program.
QString programText()
{
    return QCoreApplication::translate("cfg_utilitys", "Command line arguments");
}

// A text of Qt.
QString qtText()
{
    return QCoreApplication::translate("QPlatformTheme", "&Yes");
}

const QString englishProgramText = u"Command line arguments"_s;
const QString englishQtText = u"&Yes"_s;

QStringList translatedLocales()
{
    QStringList locales = Nvx::Util::System::validLocales();
    locales.removeAll(u"en-US"_s);
    return locales;
}

void addLocaleRows()
{
    QTest::addColumn<QString>("locale");
    const QStringList locales = translatedLocales();
    for (const QString &locale : locales)
        QTest::newRow(qPrintable(locale)) << locale;
}

// The label of one of Qt's buttons without the marker of its access key, such as "Ab&schließen" or
// "完了(&F)".
QString withoutKeyMark(QString label)
{
    return label.remove(QRegularExpression(u"\\s*\\(&.\\)"_s)).remove(u'&');
}

// An install dir with a folder for German compiled catalogues.
class InstallDir
{
public:
    InstallDir() { QDir(m_folder.path()).mkdir(german); }

    QString path() const { return m_folder.path(); }

    // Copies a catalogue of the build, such as "de-DE/nvxconfig.qm", to it under a name; returns whether that
    // succeeded.
    bool add(const QString &catalogue, const QString &name) const
    {
        return QFile::copy(Nvx::Util::joinPath(languagesFolder(), catalogue), pathOf(name));
    }

    bool addText(const QString &name, const QByteArray &text) const
    {
        QFile file(pathOf(name));
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    }

private:
    QString pathOf(const QString &name) const { return m_folder.path(german + u'/' + name); }

    TestFolder m_folder;
};

} // namespace

class tst_interface_translators : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aLocaleIsTranslated_data();
    void aLocaleIsTranslated();
    void theLastTextQuotesTheFinishButton_data() { addLocaleRows(); }
    void theLastTextQuotesTheFinishButton();
    void aTextWithSeveralLinesIsTranslated();
    void aLocaleInAnotherCaseFindsItsFilesOnlyIfFolderNamesIgnoreCase();
    void englishNeedsNoFiles();
    void anEmptyLocaleLeavesEnglish();
    void missingFilesLeaveEnglish();
    void withoutTheProgramsFileOnlyQtIsTranslated();
    void withoutQtsFileOnlyTheProgramIsTranslated();
    void invalidCataloguesLeaveEnglish();
    void theFileQtTakesPrecedence();
    void theTranslatorsAreRemovedAfterwards();
    void oneLanguageFollowsAnother();
};

void tst_interface_translators::init()
{
    QCOMPARE(programText(), englishProgramText);
    QCOMPARE(qtText(), englishQtText);
}

void tst_interface_translators::aLocaleIsTranslated_data()
{
    // A language without expected texts must only differ from English.
    using Texts = std::pair<QString, QString>;
    const QHash<QString, Texts> texts{
        {german, {u"Befehlszeilenargumente"_s, u"&Ja"_s}},
        {u"fr-FR"_s, {u"Arguments de ligne de commande"_s, u"&Oui"_s}},
        {u"it-IT"_s, {u"Argomenti della riga di comando"_s, u"&Sì"_s}},
        {u"ja-JP"_s, {u"コマンド ライン引数"_s, u"はい(&Y)"_s}},
        {u"ko-KR"_s, {u"명령줄 인수"_s, u"예(&Y)"_s}},
        {u"ru-RU"_s, {u"Аргументы командной строки"_s, u"&Да"_s}},
        {u"zh-CN"_s, {u"命令行参数"_s, u"是(&Y)"_s}},
        {u"zh-TW"_s, {u"命令列引數"_s, u"是(&Y)"_s}},
    };

    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("ofProgram");
    QTest::addColumn<QString>("ofQt");
    const QStringList locales = translatedLocales();
    for (const QString &locale : locales) {
        const Texts expected = texts.value(locale);
        QTest::newRow(qPrintable(locale)) << locale << expected.first << expected.second;
    }
}

void tst_interface_translators::aLocaleIsTranslated()
{
    QFETCH(QString, locale);
    const InterfaceTranslators translators(languagesFolder(), locale);
    QVERIFY(programText() != englishProgramText);
    QVERIFY(qtText() != englishQtText);
    QFETCH(QString, ofProgram);
    QFETCH(QString, ofQt);
    if (!ofProgram.isEmpty()) {
        QCOMPARE(programText(), ofProgram);
        QCOMPARE(qtText(), ofQt);
    }
}

void tst_interface_translators::theLastTextQuotesTheFinishButton()
{
    QFETCH(QString, locale);
    const InterfaceTranslators translators(languagesFolder(), locale);
    const QString button = QCoreApplication::translate("QWizard", "&Finish");
    QVERIFY(button != "&Finish"_L1);
    const QString text = QCoreApplication::translate(
        "cfg_utilitys", "The installation or update is complete. Click finish to continue.");
    QVERIFY2(text.contains(withoutKeyMark(button)), qPrintable(text + u": "_s + button));
}

void tst_interface_translators::aTextWithSeveralLinesIsTranslated()
{
    const InterfaceTranslators translators(languagesFolder(), german);
    QVERIFY2(Nvx::Engine::runOptionsUsage().startsWith(u"Gültige Befehlszeilenargumente für NVX:\n-I "_s),
             qPrintable(Nvx::Engine::runOptionsUsage()));
}

// The locale is used as typed; the file system decides.
void tst_interface_translators::aLocaleInAnotherCaseFindsItsFilesOnlyIfFolderNamesIgnoreCase()
{
    const auto typed = u"de-de"_s;
    const bool ignoresCase = QFile::exists(Nvx::Util::joinPath(languagesFolder(), typed));
    const InterfaceTranslators translators(languagesFolder(), typed);
    QCOMPARE(programText(), ignoresCase ? u"Befehlszeilenargumente"_s : englishProgramText);
    QCOMPARE(qtText(), ignoresCase ? u"&Ja"_s : englishQtText);
}

void tst_interface_translators::englishNeedsNoFiles()
{
    const InterfaceTranslators translators(languagesFolder(), u"en-US"_s);
    QCOMPARE(programText(), englishProgramText);
    QCOMPARE(qtText(), englishQtText);
}

void tst_interface_translators::anEmptyLocaleLeavesEnglish()
{
    const InterfaceTranslators translators(languagesFolder(), QString());
    QCOMPARE(programText(), englishProgramText);
    QCOMPARE(qtText(), englishQtText);
}

void tst_interface_translators::missingFilesLeaveEnglish()
{
    const InstallDir installDir;
    const InterfaceTranslators translators(installDir.path(), german);
    QCOMPARE(programText(), englishProgramText);
    QCOMPARE(qtText(), englishQtText);
}

void tst_interface_translators::withoutTheProgramsFileOnlyQtIsTranslated()
{
    const InstallDir installDir;
    QVERIFY(installDir.add(u"de-DE/qt_de_DE.qm"_s, u"qt_de_DE.qm"_s));
    const InterfaceTranslators translators(installDir.path(), german);
    QCOMPARE(programText(), englishProgramText);
    QCOMPARE(qtText(), u"&Ja"_s);
}

void tst_interface_translators::withoutQtsFileOnlyTheProgramIsTranslated()
{
    const InstallDir installDir;
    QVERIFY(installDir.add(u"de-DE/nvxconfig.qm"_s, u"nvxconfig.qm"_s));
    const InterfaceTranslators translators(installDir.path(), german);
    QCOMPARE(programText(), u"Befehlszeilenargumente"_s);
    QCOMPARE(qtText(), englishQtText);
}

void tst_interface_translators::invalidCataloguesLeaveEnglish()
{
    const InstallDir installDir;
    QVERIFY(installDir.addText(u"nvxconfig.qm"_s, "no catalogue"));
    QVERIFY(installDir.addText(u"qt_de_DE.qm"_s, ""));
    const InterfaceTranslators translators(installDir.path(), german);
    QCOMPARE(programText(), englishProgramText);
    QCOMPARE(qtText(), englishQtText);
}

void tst_interface_translators::theFileQtTakesPrecedence()
{
    const InstallDir installDir;
    QVERIFY(installDir.add(u"de-DE/qt_de_DE.qm"_s, u"qt_de_DE.qm"_s));
    QVERIFY(installDir.add(u"fr-FR/qt_fr_FR.qm"_s, u"qt.qm"_s));
    const InterfaceTranslators translators(installDir.path(), german);
    QCOMPARE(qtText(), u"&Oui"_s);
}

void tst_interface_translators::theTranslatorsAreRemovedAfterwards()
{
    {
        const InterfaceTranslators translators(languagesFolder(), german);
        QCOMPARE(programText(), u"Befehlszeilenargumente"_s);
        QCOMPARE(qtText(), u"&Ja"_s);
    }
    QCOMPARE(programText(), englishProgramText);
    QCOMPARE(qtText(), englishQtText);
}

void tst_interface_translators::oneLanguageFollowsAnother()
{
    for (const auto &[locale, expected] : {std::pair{german, u"&Ja"_s}, std::pair{u"it-IT"_s, u"&Sì"_s}}) {
        const InterfaceTranslators translators(languagesFolder(), locale);
        QCOMPARE(qtText(), expected);
    }
}

NVX_GUILESS_TEST(tst_interface_translators)
#include "tst_interface_translators.moc"
