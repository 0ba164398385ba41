#include "help/browser_call.h"
#include "support/random_text.h"
#include "support/test_class.h"

#include <QTest>

using namespace Nvx::Help;
using namespace Qt::Literals::StringLiterals;

namespace {

const auto browser = u"C:\\Program Files\\Browser\\browser.exe"_s;
const auto address = u"http://host/a?b=c&d=%20e"_s;

QStringList asList(const std::optional<BrowserCall> &call)
{
    return call ? QStringList(call->program) + call->arguments : QStringList();
}

} // namespace

class tst_browser_call : public QObject
{
    Q_OBJECT

private slots:
    void anAddressIsEncoded_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");

        const auto row = [](const char *name, const char *text, const char *expected) {
            QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(expected);
        };
        row("plain", "http://host/path?query=text", "http://host/path?query=text");
        row("an id alone", "mesh", "mesh");
        row("blanks", "http://host/?query=heat sink", "http://host/?query=heat%20sink");
        row("quotes", "http://host/\" --evil \"x", "http://host/%22%20--evil%20%22x");
        row("single quotes", "http://host/'x'", "http://host/'x'");
        row("an ampersand is part of the address", "http://host/?a&calc.exe", "http://host/?a&calc.exe");
        row("bars, carets, angle brackets", "http://host/|^<>", "http://host/%7C%5E%3C%3E");
        row("backslashes", "http://host/a\\b", "http://host/a%5Cb");
        row("line ends", "http://host/a\r\nb", "http://host/a%0D%0Ab");
        row("lone percent signs", "http://host/100%", "http://host/100%25");
        row("an encoded address", "http://host/a%20b", "http://host/a%20b");
        row("other alphabets", "http://host/Größe", "http://host/Gr%C3%B6%C3%9Fe");
        row("another scheme", "javascript:alert(\"x y\")", "javascript:alert(%22x%20y%22)");
        row("a mail address", "mailto:a@b?subject=x y", "mailto:a@b?subject=x%20y");
        row("a path", "C:\\Program Files\\NVX/NVXDefaultHelp.html",
            "file:///C:/Program%20Files/NVX/NVXDefaultHelp.html");
        row("a path with slashes, drive C", "C:/Program Files/a.html", "file:///C:/Program%20Files/a.html");
        row("a path with special characters", "C:\\100% & #1\\a?.html",
            "file:///C:/100%25%20&%20%231/a%3F.html");
        row("a letter and a colon without a slash are not a drive", "C:a b.html", "c:a%20b.html");
        row("the root of a drive", "C:\\", "file:///C:/");
        row("a drive in lower case", "a:/x", "file:///a:/x");
        row("a digit is not a drive", "1:/x", "");
        row("a letter of another alphabet is not a drive", "ä:/x", "");
        row("a drive alone is not a path", "C:", "c:");
        row("a drive without a separator is not a path", "C:x", "c:x");
        row("the first and last letters and digits", "http://host/azAZ09", "http://host/azAZ09");
        row("reserved characters", "http://host/-._~:/?#[]@!$&'()*+,;=%2F",
            "http://host/-._~:/?#[]@!$&'()*+,;=%2F");
        row("a path on another machine", "\\\\server\\share\\a b.html", "file://server/share/a%20b.html");
        row("a path without a drive", "/opt/NVX/a b.html", "file:///opt/NVX/a%20b.html");
        row("the installed help", "file:///C:\\ProgramData\\Velmora\\NVX 2017/NVXHelp/index.html?query=a b",
            "file:///C:/ProgramData/Velmora/NVX%202017/NVXHelp/index.html?query=a%20b");
        row("backslashes in the query of the installed help", "file:///C:\\NVX\\index.html?query=a\\b#c\\d",
            "file:///C:/NVX/index.html?query=a%5Cb#c%5Cd");
        row("a backslash in the fragment", "file:///C:\\NVX\\a.htm#c\\d", "file:///C:/NVX/a.htm#c%5Cd");
        row("an empty address", "", "");
        row("an invalid host", "http://a b/", "");
        row("an invalid port", "http://host:port/", "");
        row("an open bracket", "http://[::1/", "");
    }

    void anAddressIsEncoded()
    {
        QFETCH(QString, text);
        QTEST(encodedAddress(text), "expected");
    }

    void anEncodedAddressNeverContainsBlanksQuotesOrBackslashes()
    {
        RandomText random(1);
        const QString outside = u"\"\\<>^`{|}"_s; // not allowed in an address
        const QStringList heads{QString(), u"http://host/"_s, u"file:///C:\\"_s, u"C:\\"_s, u"x:"_s};
        int encodedTexts = 0;
        for (int i = 0; i < 3000; ++i) {
            const QString text = heads.at(random.below(5)) + random.text() + random.unspeakableText();
            const QString encoded = encodedAddress(text);
            encodedTexts += encoded.isEmpty() ? 0 : 1;
            for (const QChar c : encoded)
                QVERIFY2(c > u' ' && c < u'\x7f' && !outside.contains(c), qPrintable(text));
        }
        QVERIFY2(encodedTexts > 1000, qPrintable(QString::number(encodedTexts)));
    }

    void variablesAreReplacedByTheirValues_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *text, const char *expected) {
            QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(expected);
        };
        row("", "");
        row("no variable", "no variable");
        row("\"%HOME%\\b.exe\" \"%1\"", "\"C:\\Home\\b.exe\" \"%1\"");
        row("%HOME%%HOME%", "C:\\HomeC:\\Home");
        row("%1 %HOME%", "%1 C:\\Home");
        row("%UNKNOWN% %HOME%", "%UNKNOWN% C:\\Home");
        row("%UNKNOWN%HOME%", "%UNKNOWNC:\\Home");
        row("%HOME%\\b.exe -x", "C:\\Home\\b.exe -x");
        row("%%HOME%", "%C:\\Home");
        row("100% %", "100% %");
        row("%%", "%%");
        row("%", "%");
    }

    void variablesAreReplacedByTheirValues()
    {
        QFETCH(QString, text);
        QTEST(expandVariables(
                  text, [](const QString &name) { return name == "HOME"_L1 ? u"C:\\Home"_s : QString(); }),
              "expected");
    }

    void argumentsAreSplitAsProgramsSplitThem_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const char *text, const QStringList &expected) {
            QTest::newRow(name) << QString::fromLatin1(text) << expected;
        };
        const auto s = [](const char *text) { return QString::fromLatin1(text); };
        row("no arguments", "", {});
        row("only blanks", " \t ", {});
        row("words", "a  b\tc ", {s("a"), s("b"), s("c")});
        row("quotes", "\"a b\" c", {s("a b"), s("c")});
        row("quotes within an argument", "a\" b\"c", {s("a bc")});
        row("an empty argument", "a \"\" b", {s("a"), QString(s("")), s("b")});
        row("a quote in quotes", "\"a\"\"b\"", {s("a\"b")});
        row("blanks after a quote in quotes", "\"a\"\"b c\" d", {s("a\"b c"), s("d")});
        row("an escaped quote", "a\\\"b c", {s("a\"b"), s("c")});
        row("backslashes", "C:\\a\\\\b", {s("C:\\a\\\\b")});
        row("a backslash before the closing quote", "\"C:\\a b\\\\\" c", {s("C:\\a b\\"), s("c")});
        row("three backslashes and a quote", "a\\\\\\\"b", {s("a\\\"b")});
        row("a quote that is not closed", "\"a b", {s("a b")});
        row("backslashes at the end", "a\\\\", {s("a\\\\")});
    }

    void argumentsAreSplitAsProgramsSplitThem()
    {
        QFETCH(QString, text);
        QTEST(splitArguments(text), "expected");
    }

    void theBrowserReceivesTheAddressAndNothingElse_data()
    {
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<QStringList>("expected");

        const auto row = [](const char *name, const QString &commandLine, const QStringList &expected) {
            QTest::newRow(name) << commandLine << expected;
        };
        const auto quoted = u"\"%1\""_s.arg(browser);
        const auto bare = u"host/a?b=c&d=%20e"_s;
        row("no placeholder: the whole address is an argument", quoted, {browser, address});
        row("no placeholder, with options", quoted + u" -nohome"_s, {browser, u"-nohome"_s, address});
        row("a placeholder: without the scheme", quoted + u" %1"_s, {browser, bare});
        row("a placeholder in quotes", quoted + u" -url \"%1\""_s, {browser, u"-url"_s, bare});
        row("a placeholder in an argument", quoted + u" --url=%1 -x"_s,
            {browser, u"--url="_s + bare, u"-x"_s});
        row("two placeholders", quoted + u" %1 %1"_s, {browser, bare, bare});
        row("an unquoted path with blanks", browser + u" -x"_s, {browser, u"-x"_s, address});
        row("an unquoted path with blanks, alone", browser, {browser, address});
        row("a folder that looks like a program", u"C:\\b.exes\\a b.exe %1"_s,
            {u"C:\\b.exes\\a b.exe"_s, bare});
        row("a program named .exe", u".exe -x b.exe"_s, {u".exe"_s, u"-x"_s, u"b.exe"_s, address});
        row("a program without a suffix", u"/usr/bin/browser %1"_s, {u"/usr/bin/browser"_s, bare});
        row("blanks around the command line", u"  "_s + quoted + u"  "_s, {browser, address});
        row("an option directly after the quote", quoted + u"-x"_s, {browser, u"-x"_s, address});
        row("a quote that is not closed", u"\""_s + browser, {browser, address});
        row("an apostrophe is an ordinary character", quoted + u" '%1'"_s, {browser, u"'%1'"_s.arg(bare)});
    }

    void theBrowserReceivesTheAddressAndNothingElse()
    {
        QFETCH(QString, commandLine);
        QTEST(asList(browserCall(commandLine, address)), "expected");
    }

    void onlyTheSchemeAtTheStartIsOmitted()
    {
        const auto call = [](const char *text) {
            return asList(browserCall(u"b.exe %1"_s, QString::fromLatin1(text))).value(1);
        };
        QCOMPARE(call("http://host/?q=http://other"), u"host/?q=http://other"_s);
        QCOMPARE(call("https://host/"), u"https://host/"_s);
        QCOMPARE(call("file:///C:/a"), u"file:///C:/a"_s);
    }

    void aCommandLineWithoutAProgramIsNotRun_data()
    {
        QTest::addColumn<QString>("commandLine");
        const auto row = [](const char *text) { QTest::newRow(text) << QString::fromLatin1(text); };
        row("");
        row("   ");
        row("\"\"");
        row("\"\" %1");
        row("\"%1\"");
        row("%1 -x");
    }

    void aCommandLineWithoutAProgramIsNotRun()
    {
        QFETCH(QString, commandLine);
        QVERIFY(!browserCall(commandLine, address));
    }

    void noCommandInterpreterIsStarted_data()
    {
        QTest::addColumn<QString>("commandLine");
        const auto row = [](const char *text) { QTest::newRow(text) << QString::fromLatin1(text); };
        row("cmd /c start %1");
        row("C:\\Windows\\System32\\cmd.exe /c start \"\" \"%1\"");
        row("\"C:\\Windows\\System32\\CMD.EXE\" /c start %1");
        row("C:/Windows/System32/cmd.exe /c start %1");
        row("command.com /c start %1");
        row("powershell.exe -c start %1");
        row("pwsh -c start %1");
        row("cmd");
        row("\"C:\\My Tools\\browse.bat\" %1");
        row("C:\\browse.CMD %1");
        row("\"C:\\browse.bat. .\" %1");
    }

    void noCommandInterpreterIsStarted()
    {
        QFETCH(QString, commandLine);
        QVERIFY(!browserCall(commandLine, address));
    }

    void anAddressIsNeverAnOption_data()
    {
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const char *commandLine, const char *text) {
            QTest::newRow(name) << QString::fromLatin1(commandLine) << QString::fromLatin1(text);
        };
        row("an id with a hyphen", "b.exe", "-remote");
        row("an id with a hyphen, for a placeholder", "b.exe -url \"%1\"", "-remote");
        row("an option after the scheme", "b.exe %1", "http:///c");
        row("the scheme alone", "b.exe %1", "http://");
    }

    void anAddressIsNeverAnOption()
    {
        QFETCH(QString, commandLine);
        QFETCH(QString, text);
        QVERIFY(!browserCall(commandLine, text));
    }
};

NVX_GUILESS_TEST(tst_browser_call)
#include "tst_browser_call.moc"
