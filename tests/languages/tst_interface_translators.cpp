// The compiled catalogues as the start-up loads them.

#include "cfg_utilities/command_line.h"
#include "cfg_wizard/interface_translators.h"
#include "nvx_util/system.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QTest>

namespace {

const QString german = QStringLiteral("de-DE");

QString languagesFolder()
{
    return QDir::toNativeSeparators(QStringLiteral(NVX_LANGUAGES_FOLDER));
}

// A text of the program.
QString programText()
{
    return QCoreApplication::translate("cfg_utilitys", "Command line arguments");
}

// A text of the toolkit.
QString toolkitText()
{
    return QCoreApplication::translate("QPlatformTheme", "&Yes");
}

const QString englishProgramText = QStringLiteral("Command line arguments");
const QString englishToolkitText = QStringLiteral("&Yes");

QStringList translatedLocales()
{
    QStringList locales = Nvx::Util::System::validLocales();
    locales.removeAll(QStringLiteral("en-US"));
    return locales;
}

void addLocaleRows()
{
    QTest::addColumn<QString>("locale");
    const QStringList locales = translatedLocales();
    for (const QString &locale : locales)
        QTest::newRow(qPrintable(locale)) << locale;
}

// What a button of the toolkit reads as: without the mark of its key, "Ab&schließen" or "完了(&F)".
QString withoutKeyMark(QString label)
{
    return label.remove(QRegularExpression(QStringLiteral("\\s*\\(&.\\)"))).remove(QLatin1Char('&'));
}

// An install dir with a folder for German, to be filled with compiled catalogues.
class InstallDir
{
public:
    InstallDir() { QDir(m_folder.path()).mkdir(german); }

    QString path() const { return m_folder.path(); }

    // Puts a catalogue of the build, named as "de-DE/nvxconfig.qm", there under a name; whether it did.
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
    QString pathOf(const QString &name) const { return m_folder.path(german + QLatin1Char('/') + name); }

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
    void theLastTextNamesTheFinishButton_data() { addLocaleRows(); }
    void theLastTextNamesTheFinishButton();
    void aTextOfSeveralLinesIsTranslated();
    void aNameInOtherCaseFindsItsFilesOnlyWhereFoldersIgnoreCase();
    void theBuiltInLanguageNeedsNoFiles();
    void anEmptyLocaleLeavesEnglish();
    void missingFilesLeaveEnglish();
    void withoutTheProgramsFileOnlyTheToolkitIsTranslated();
    void withoutTheToolkitsFileOnlyTheProgramIsTranslated();
    void filesThatAreNoCataloguesLeaveEnglish();
    void theWholeToolkitFileWins();
    void theTranslatorsAreGoneAfterwards();
    void oneLanguageFollowsAnother();
};

void tst_interface_translators::init()
{
    QCOMPARE(programText(), englishProgramText);
    QCOMPARE(toolkitText(), englishToolkitText);
}

void tst_interface_translators::aLocaleIsTranslated_data()
{
    // A language without expected texts must only differ from English.
    using Texts = std::pair<QString, QString>;
    const QHash<QString, Texts> texts{
        {german, {QStringLiteral("Befehlszeilenargumente"), QStringLiteral("&Ja")}},
        {QStringLiteral("fr-FR"), {QStringLiteral("Arguments de ligne de commande"), QStringLiteral("&Oui")}},
        {QStringLiteral("it-IT"), {QStringLiteral("Argomenti della riga di comando"), QStringLiteral("&Sì")}},
        {QStringLiteral("ja-JP"), {QStringLiteral("コマンド ライン引数"), QStringLiteral("はい(&Y)")}},
        {QStringLiteral("ko-KR"), {QStringLiteral("명령줄 인수"), QStringLiteral("예(&Y)")}},
        {QStringLiteral("ru-RU"), {QStringLiteral("Аргументы командной строки"), QStringLiteral("&Да")}},
        {QStringLiteral("zh-CN"), {QStringLiteral("命令行参数"), QStringLiteral("是(&Y)")}},
        {QStringLiteral("zh-TW"), {QStringLiteral("命令列引數"), QStringLiteral("是(&Y)")}},
    };

    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("ofProgram");
    QTest::addColumn<QString>("ofToolkit");
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
    QVERIFY(toolkitText() != englishToolkitText);
    QFETCH(QString, ofProgram);
    QFETCH(QString, ofToolkit);
    if (!ofProgram.isEmpty()) {
        QCOMPARE(programText(), ofProgram);
        QCOMPARE(toolkitText(), ofToolkit);
    }
}

void tst_interface_translators::theLastTextNamesTheFinishButton()
{
    QFETCH(QString, locale);
    const InterfaceTranslators translators(languagesFolder(), locale);
    const QString button = QCoreApplication::translate("QWizard", "&Finish");
    QVERIFY(button != QLatin1String("&Finish"));
    const QString text = QCoreApplication::translate(
        "cfg_utilitys", "The installation or update is complete. Click finish to continue.");
    QVERIFY2(text.contains(withoutKeyMark(button)), qPrintable(text + QStringLiteral(": ") + button));
}

void tst_interface_translators::aTextOfSeveralLinesIsTranslated()
{
    const InterfaceTranslators translators(languagesFolder(), german);
    QVERIFY2(Nvx::Engine::runOptionsUsage().startsWith(
                 QStringLiteral("Gültige Befehlszeilenargumente für NVX:\n-I ")),
             qPrintable(Nvx::Engine::runOptionsUsage()));
}

// The name is used as it was typed; the file system decides.
void tst_interface_translators::aNameInOtherCaseFindsItsFilesOnlyWhereFoldersIgnoreCase()
{
    const auto typed = QStringLiteral("de-de");
    const bool ignoresCase = QFile::exists(Nvx::Util::joinPath(languagesFolder(), typed));
    const InterfaceTranslators translators(languagesFolder(), typed);
    QCOMPARE(programText(), ignoresCase ? QStringLiteral("Befehlszeilenargumente") : englishProgramText);
    QCOMPARE(toolkitText(), ignoresCase ? QStringLiteral("&Ja") : englishToolkitText);
}

void tst_interface_translators::theBuiltInLanguageNeedsNoFiles()
{
    const InterfaceTranslators translators(languagesFolder(), QStringLiteral("en-US"));
    QCOMPARE(programText(), englishProgramText);
    QCOMPARE(toolkitText(), englishToolkitText);
}

void tst_interface_translators::anEmptyLocaleLeavesEnglish()
{
    const InterfaceTranslators translators(languagesFolder(), QString());
    QCOMPARE(programText(), englishProgramText);
    QCOMPARE(toolkitText(), englishToolkitText);
}

void tst_interface_translators::missingFilesLeaveEnglish()
{
    const InstallDir installDir;
    const InterfaceTranslators translators(installDir.path(), german);
    QCOMPARE(programText(), englishProgramText);
    QCOMPARE(toolkitText(), englishToolkitText);
}

void tst_interface_translators::withoutTheProgramsFileOnlyTheToolkitIsTranslated()
{
    const InstallDir installDir;
    QVERIFY(installDir.add(QStringLiteral("de-DE/qt_de_DE.qm"), QStringLiteral("qt_de_DE.qm")));
    const InterfaceTranslators translators(installDir.path(), german);
    QCOMPARE(programText(), englishProgramText);
    QCOMPARE(toolkitText(), QStringLiteral("&Ja"));
}

void tst_interface_translators::withoutTheToolkitsFileOnlyTheProgramIsTranslated()
{
    const InstallDir installDir;
    QVERIFY(installDir.add(QStringLiteral("de-DE/nvxconfig.qm"), QStringLiteral("nvxconfig.qm")));
    const InterfaceTranslators translators(installDir.path(), german);
    QCOMPARE(programText(), QStringLiteral("Befehlszeilenargumente"));
    QCOMPARE(toolkitText(), englishToolkitText);
}

void tst_interface_translators::filesThatAreNoCataloguesLeaveEnglish()
{
    const InstallDir installDir;
    QVERIFY(installDir.addText(QStringLiteral("nvxconfig.qm"), "no catalogue"));
    QVERIFY(installDir.addText(QStringLiteral("qt_de_DE.qm"), ""));
    const InterfaceTranslators translators(installDir.path(), german);
    QCOMPARE(programText(), englishProgramText);
    QCOMPARE(toolkitText(), englishToolkitText);
}

void tst_interface_translators::theWholeToolkitFileWins()
{
    const InstallDir installDir;
    QVERIFY(installDir.add(QStringLiteral("de-DE/qt_de_DE.qm"), QStringLiteral("qt_de_DE.qm")));
    QVERIFY(installDir.add(QStringLiteral("fr-FR/qt_fr_FR.qm"), QStringLiteral("qt.qm")));
    const InterfaceTranslators translators(installDir.path(), german);
    QCOMPARE(toolkitText(), QStringLiteral("&Oui"));
}

void tst_interface_translators::theTranslatorsAreGoneAfterwards()
{
    {
        const InterfaceTranslators translators(languagesFolder(), german);
        QCOMPARE(programText(), QStringLiteral("Befehlszeilenargumente"));
        QCOMPARE(toolkitText(), QStringLiteral("&Ja"));
    }
    QCOMPARE(programText(), englishProgramText);
    QCOMPARE(toolkitText(), englishToolkitText);
}

void tst_interface_translators::oneLanguageFollowsAnother()
{
    for (const auto &[locale, expected] : {std::pair{german, QStringLiteral("&Ja")},
                                           std::pair{QStringLiteral("it-IT"), QStringLiteral("&Sì")}}) {
        const InterfaceTranslators translators(languagesFolder(), locale);
        QCOMPARE(toolkitText(), expected);
    }
}

NVX_GUILESS_TEST(tst_interface_translators)
#include "tst_interface_translators.moc"
