#include "cfg_utilities/command_line.h"
#include "nvx_util/languages.h"
#include "support/test_class.h"
#include "support/text.h"

#include <QTest>

using namespace Nvx::Engine;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString systemLocale = u"fr-FR"_s;

} // namespace

class tst_command_line : public QObject
{
    Q_OBJECT

private slots:
    void onlySomeRunsShowWindows_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<bool>("expected");
        QTest::newRow("no mode") << u""_s << true;
        QTest::newRow("silent without a mode") << u"-S"_s << true;
        QTest::newRow("install") << u"-I -Lde-DE"_s << true;
        QTest::newRow("silent install") << u"-I -S"_s << false;
        QTest::newRow("uninstall") << u"-U"_s << true;
        QTest::newRow("silent uninstall") << u"-S -U"_s << false;
        QTest::newRow("an unknown option is passed over") << u"-U -X -S"_s << false;
        QTest::newRow("stop services") << u"-ST"_s << false;
        QTest::newRow("localisation") << u"-T"_s << false;
    }

    void onlySomeRunsShowWindows()
    {
        QFETCH(const QString, options);
        QTEST(showsWindows(u"NVXConfig.exe "_s + options), "expected");
    }

    void optionsAreRecognisedByTheirFirstLetters_data()
    {
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<int>("mode");
        QTest::addColumn<bool>("silent");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<int>("questions");

        const int install = int(RunMode::Install);
        const int uninstall = int(RunMode::Uninstall);
        const int stop = int(RunMode::StopServices);
        const int localize = int(RunMode::Localization);
        const int none = int(RunMode::NotGiven);

        const auto row = [](const char *name, const char *commandLine, int mode, bool silent,
                            const char *locale = "fr-FR", int questions = 0) {
            QTest::newRow(name) << text(commandLine) << mode << silent << text(locale) << questions;
        };
        row("no options", "NVXConfig.exe", none, false);
        row("an empty command line", "", none, false);
        row("install", "NVXConfig.exe -I", install, false);
        row("uninstall", "NVXConfig.exe -U", uninstall, false);
        row("stop services", "NVXConfig.exe -ST", stop, false);
        row("-STop is stop services and not silent", "NVXConfig.exe -STop", stop, false);
        row("silent", "NVXConfig.exe -S", none, true);
        row("-Silent is silent", "NVXConfig.exe -Silent", none, true);
        row("localisation", "NVXConfig.exe -T", localize, false);
        row("silent uninstall", "NVXConfig.exe -S -U", uninstall, true);
        row("the later mode wins", "NVXConfig.exe -U -I", install, false);
        row("the later mode wins, stop services too", "NVXConfig.exe -ST -U", uninstall, false);
        row("a whole installer call", "\"C:\\NVX\\NVXConfig.exe\" -I -S -Lde-DE", install, true, "de-DE");
        row("many blanks", "   NVXConfig.exe    -I   -S  ", install, true);
        row("quotes have no meaning", "\"C:\\Program Files\\-I x\\NVXConfig.exe\" -S", none, true);
        row("a blank in the path can make an option", "C:\\Program -U\\NVXConfig.exe", uninstall, false);
        row("lower-case letters are unknown options", "NVXConfig.exe -i -s", none, false, "fr-FR", 2);
        row("a lower-case l is an unknown option", "NVXConfig.exe -lde-DE", none, false, "fr-FR", 1);
        row("the first token can be an option", "-I", install, false);
        row("a tab does not split", "NVXConfig.exe -I\t-U", install, false);
        row("words without a dash are ignored", "NVXConfig.exe I /S /U", none, false);

        row("-L with a locale", "NVXConfig.exe -Lja-JP", none, false, "ja-JP");
        row("-LIT-IT keeps its spelling", "NVXConfig.exe -LIT-IT", none, false, "IT-IT");
        row("-Lde-de keeps its spelling", "NVXConfig.exe -Lde-de", none, false, "de-de");
        row("-Lja-jp keeps its spelling", "NVXConfig.exe -Lja-jp", none, false, "ja-jp");
        row("-Lde is a locale", "NVXConfig.exe -Lde", none, false, "de");
        row("-L alone is an empty locale", "NVXConfig.exe -L", none, false, "");
        for (const Nvx::Util::Language &language : Nvx::Util::targetLanguages) {
            const char *locale = language.locale.data();
            row(locale, QByteArray("NVXConfig.exe -L").append(locale).constData(), none, false, locale);
        }
        row("-L with an end and a beginning in the list", "NVXConfig.exe -LT-IT,ko", none, false, "T-IT,ko");
        row("an unknown locale is en-US", "NVXConfig.exe -Lxx", none, false, "en-US");
        row("-Len-US is en-US", "NVXConfig.exe -Len-US", none, false, "en-US");
        row("the later locale wins", "NVXConfig.exe -Lde-DE -Lko-KR", none, false, "ko-KR");

        row("an unknown option asks", "NVXConfig.exe -X", none, false, "fr-FR", 1);
        row("an unknown first token does not ask", "-X -I", install, false, "fr-FR", 0);
        row("-E has no meaning and asks", "NVXConfig.exe -E", none, false, "fr-FR", 1);
        row("a dash alone asks", "NVXConfig.exe -", none, false, "fr-FR", 1);
        row("each unknown option asks", "NVXConfig.exe -X -I -Y", install, false, "fr-FR", 2);
    }

    void optionsAreRecognisedByTheirFirstLetters()
    {
        QFETCH(QString, commandLine);
        int questions = 0;
        const auto answerYes = [&questions] {
            ++questions;
            return true;
        };
        const RunOptions options = readRunOptions(commandLine, systemLocale, answerYes);
        QTEST(static_cast<int>(options.runMode), "mode");
        QTEST(options.silent, "silent");
        QTEST(options.locale, "locale");
        QTEST(questions, "questions");
        QVERIFY(!options.abandoned);
    }

    void afterNoTheRestIsNotRead()
    {
        const auto answerNo = [] { return false; };
        const RunOptions options =
            readRunOptions(u"NVXConfig.exe -U -Lde-DE -X -S -I -Lja-JP"_s, systemLocale, answerNo);
        QVERIFY(options.abandoned);
        QVERIFY(options.runMode == RunMode::Uninstall);
        QVERIFY(!options.silent);
        QCOMPARE(options.locale, u"de-DE"_s);
    }

    void afterNoTheRunIsNotSilent()
    {
        const auto answerNo = [] { return false; };
        const RunOptions options = readRunOptions(u"NVXConfig.exe -U -S -X"_s, systemLocale, answerNo);
        QVERIFY(options.abandoned);
        QVERIFY(options.runMode == RunMode::Uninstall);
        QVERIFY(!options.silent);
    }

    void theUsageTextHasItsDeliberateSpelling()
    {
        QCOMPARE(runOptionsUsage().split(u'\n'),
                 QStringList({u"Valid NVX command line arguments are:"_s, u"-I Install mode(default)"_s,
                              u"-U UnInstall mode"_s, u"-STop Stop Services"_s, u"-S Slient mode"_s,
                              u"-L Install USA language"_s, u"-Lxxx Install language xxx"_s,
                              u"-E look in %temp%NVXENv.txt for install language"_s, QString(),
                              u" Do you want to continue?"_s, QString()}));
    }
};

NVX_GUILESS_TEST(tst_command_line)
#include "tst_command_line.moc"
