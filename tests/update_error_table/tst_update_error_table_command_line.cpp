#include "support/test_class.h"
#include "update_error_table/command_line.h"

#include <QTest>

namespace {

// "help" first, then each operation as "NAME MESSAGES OTHER"; "usage" for what does not match.
QStringList readFrom(const QStringList &arguments)
{
    const auto commandLine = Error::readCommandLine(arguments);
    if (!commandLine)
        return {QStringLiteral("usage")};
    QStringList read;
    if (commandLine->help)
        read += QStringLiteral("help");
    for (const Error::Operation &operation : commandLine->operations) {
        const bool sync = operation.kind == Error::Operation::Kind::SynchronizeMessageTable;
        read += (sync ? QStringLiteral("sync ") : QStringLiteral("tr ")) + operation.messageTable + u' ' +
                operation.other;
    }
    return read;
}

} // namespace

class tst_update_error_table_command_line : public QObject
{
    Q_OBJECT

private slots:
    void argumentsAreOperationsWithTwoFilesEach_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QString>("read");
        const auto row = [](const char *name, const char *arguments, const char *read) {
            QTest::newRow(name) << QString::fromLatin1(arguments) << QString::fromLatin1(read);
        };
        row("a message table", "-sync|m.xml|p.vcxproj", "sync m.xml p.vcxproj");
        row("a translation table", "-tr|m.xml|t.ts", "tr m.xml t.ts");
        row("both", "-tr|m|t|-sync|m|p", "tr m t|sync m p");
        row("three", "-sync|a|b|-sync|c|d|-tr|e|f", "sync a b|sync c d|tr e f");
        row("help", "-h", "help");
        row("help before", "-h|-tr|m|t", "help|tr m t");
        row("help behind", "-tr|m|t|-h", "help|tr m t");
        row("files that look like options", "-sync|-x|--sync", "sync -x --sync");
        row("option names in other cases as files", "-sync|-SYNC|-H", "sync -SYNC -H");

        row("no files", "-sync", "usage");
        row("one file", "-sync|m", "usage");
        row("one file behind another operation", "-tr|m|t|-sync|m", "usage");
        row("no files behind another operation", "-tr|m|t|-sync", "usage");
        row("help in the place of the first file", "-sync|-h|p", "usage");
        row("help in the place of the second file", "-sync|m|-h", "usage");
        row("an option in the place of the first file", "-sync|-tr|p", "usage");
        row("an option in the place of the second file", "-sync|m|-sync", "usage");
        row("an empty first file", "-sync||p", "usage");
        row("an empty second file", "-sync|m|", "usage");
        row("a file too many", "-sync|m|p|q", "usage");
        row("files alone", "m|p|q", "usage");
        row("an option that there is not", "-all|m|p", "usage");
        row("help and a file", "-h|m", "usage");
    }

    void argumentsAreOperationsWithTwoFilesEach()
    {
        QFETCH(const QString, arguments);
        QFETCH(const QString, read);
        QCOMPARE(readFrom(arguments.split(u'|')), read.split(u'|'));
    }

    void noArgumentsDoNotMatch() { QCOMPARE(readFrom({}), QStringList(QStringLiteral("usage"))); }
};

NVX_GUILESS_TEST(tst_update_error_table_command_line)
#include "tst_update_error_table_command_line.moc"
