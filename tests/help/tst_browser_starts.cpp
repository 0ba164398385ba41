#include "help/context_help.h"
#include "nvx_util/native_machine.h"
#include "nvx_util/registry_key.h"
#include "support/checkout.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QTest>

#include <memory>

using namespace Nvx::Help;
using namespace Qt::Literals::StringLiterals;

/// The arguments that a browser started on this machine receives.
class tst_browser_starts : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folders = std::make_unique<TestMachine>();
        m_browser = m_folders->path(u"My & browser (x86)/browser.exe"_s);
        QVERIFY(QDir().mkpath(QFileInfo(m_browser).path()));
        QVERIFY(QFile::copy(inCheckout(SCRIPTED_TOOL), m_browser));
        writeFile(m_browser + u".script"_s, "record\n");
    }

    void cleanup()
    {
        browserKey().removeValue(QString());
        m_folders.reset();
    }

    void aHostileAddressArrivesAsOneArgument_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QByteArray>("arrived");
        const auto row = [](const char *name, const char *address, const char *arrived) {
            QTest::newRow(name) << QString::fromUtf8(address) << QByteArray(arrived);
        };
        row("blanks", "http://host/a b  c", "host/a%20b%20%20c");
        row("quotes", "http://host/\" -evil \"x\" \\\" y", "host/%22%20-evil%20%22x%22%20%5C%22%20y");
        row("special characters of the command interpreter", "http://host/a&calc.exe|more>x^<y%PATH%;(z)",
            "host/a&calc.exe%7Cmore%3Ex%5E%3Cy%25PATH%25;(z)");
        row("line ends", "http://host/a\r\ncalc.exe", "host/a%0D%0Acalc.exe");
        row("another scheme", "javascript:alert('a b')", "javascript:alert('a%20b')");
        row("a backslash at the end", "http://host/a\\", "host/a%5C");
        row("other alphabets", "http://host/保存", "host/%E4%BF%9D%E5%AD%98");
    }

    void aHostileAddressArrivesAsOneArgument()
    {
        QFETCH(QString, address);
        QFETCH(QByteArray, arrived);
        open(address, u" -url \"%1\" -last"_s);
        QCOMPARE(recorded(), QByteArray("-url\n" + arrived + "\n-last\n"));
    }

    void withoutAPlaceholderTheAddressIsTheLastArgument()
    {
        open(u"http://host/\" -evil"_s, u" \"a \\\"b\\\"\" C:\\x\\"_s);
        QCOMPARE(recorded(), QByteArray("a \"b\"\nC:\\x\\\nhttp://host/%22%20-evil\n"));
    }

private:
    static Nvx::Util::RegistryKey browserKey()
    {
        return Nvx::Util::RegistryKey(u"HKEY_CLASSES_ROOT\\http\\shell\\open\\command"_s);
    }

    // Opens an address with a browser that is registered with these options, and waits until it ends.
    void open(const QString &address, const QString &options)
    {
        QVERIFY(browserKey().setText(QString(), u'"' + m_browser + u'"' + options));
        Nvx::Util::NativeMachine machine;
        ContextHelp(machine).openAddress(address, HelpWait::UntilClosed);
    }

    QByteArray recorded() const { return readFile(m_browser + u".arguments"_s).replace("\r\n", "\n"); }

    QString m_browser;
    std::unique_ptr<TestMachine> m_folders;
};

NVX_GUILESS_TEST(tst_browser_starts)
#include "tst_browser_starts.moc"
