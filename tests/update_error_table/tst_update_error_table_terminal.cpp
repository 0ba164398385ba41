#include "support/checkout.h"
#include "support/file_bytes.h"
#include "support/test_class.h"
#include "support/test_folder.h"

#include <QTest>

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

struct TerminalRun
{
    int exitCode = -1;
    QByteArray screen; ///< all bytes that the terminal received
};

// Runs the program in the folder with its output on a new terminal.
TerminalRun runOnTerminal(const QString &folder, const char *table, const char *project)
{
    const QByteArray program = inCheckout(UPDATE_ERROR_TABLE).toLocal8Bit();
    const QByteArray workingFolder = folder.toLocal8Bit();
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
    if (child == 0) {
        if (chdir(workingFolder.constData()) == 0)
            execl(program.constData(), "UpdateErrorTable", "-sync", table, project, nullptr);
        _exit(127);
    }
    TerminalRun result;
    char bytes[4096];
    // The terminal reports an error once the program has closed it.
    for (ssize_t count = 0; (count = read(terminal, bytes, sizeof bytes)) > 0;)
        result.screen.append(bytes, count);
    int status = 0;
    waitpid(child, &status, 0);
    close(terminal);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

} // namespace

/// The real program with its output on a terminal.
class tst_update_error_table_terminal : public QObject
{
    Q_OBJECT

private slots:
    void progressLineIsShownAndErased()
    {
        const TestFolder folder;
        QVERIFY(writeBytes(folder.path(u"a.cpp"_s), "void f() { REPORT_ERROR(\"Tag\"); }\n"));
        QVERIFY(writeBytes(folder.path(u"p.vcxproj"_s),
                           "<Project><ItemGroup><ClCompile Include=\"a.cpp\"/></ItemGroup></Project>"));

        const TerminalRun run = runOnTerminal(folder.path(), "t.xml", "p.vcxproj");

        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.screen, QByteArray("Scanning...\r\n"
                                        "  a.cpp\r\n"
                                        "Scanned 1 of 1 files"
                                        "\r                    \r"
                                        "Found 1 keys (1 new, 0 existing, and 0 obsolete)\r\n"
                                        "Saving message table \"t.xml\"...\r\n"
                                        "a.cpp:1: new message (, f, Tag)\r\n"));
    }
};

NVX_GUILESS_TEST(tst_update_error_table_terminal)

#include "tst_update_error_table_terminal.moc"
