#include "support/test_class.h"
#include "update_error_table/arguments.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

// "help" first, then each operation as "NAME MESSAGES OTHER"; "usage" if the arguments do not match.
QStringList readFrom(const QStringList &arguments)
{
    const auto found = UpdateTable::readArguments(arguments);
    if (!found)
        return {found.error() == UpdateTable::usage() ? u"usage"_s : found.error()};
    QStringList read;
    if (found->help)
        read += u"help"_s;
    for (const UpdateTable::Operation &operation : found->operations) {
        const bool sync = operation.kind == UpdateTable::Operation::Kind::SynchronizeMessageTable;
        read += (sync ? u"sync "_s : u"tr "_s) + operation.messageTable + u' ' + operation.other;
    }
    return read;
}

} // namespace

class tst_update_error_table_arguments : public QObject
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
        row("help after", "-tr|m|t|-h", "help|tr m t");
        row("files that look like options", "-sync|-x|--sync", "sync -x --sync");
        row("option names in other capitals as files", "-sync|-SYNC|-H", "sync -SYNC -H");

        row("no files", "-sync", "usage");
        row("one file", "-sync|m", "usage");
        row("one file after another operation", "-tr|m|t|-sync|m", "usage");
        row("no files after another operation", "-tr|m|t|-sync", "usage");
        row("help in place of the first file", "-sync|-h|p", "usage");
        row("help in place of the second file", "-sync|m|-h", "usage");
        row("an option in place of the first file", "-sync|-tr|p", "usage");
        row("an option in place of the second file", "-sync|m|-sync", "usage");
        row("an empty first file", "-sync||p", "usage");
        row("an empty second file", "-sync|m|", "usage");
        row("a third file", "-sync|m|p|q", "usage");
        row("only files", "m|p|q", "usage");
        row("an unknown option", "-all|m|p", "usage");
        row("help and a file", "-h|m", "usage");
    }

    void argumentsAreOperationsWithTwoFilesEach()
    {
        QFETCH(const QString, arguments);
        QFETCH(const QString, read);
        QCOMPARE(readFrom(arguments.split(u'|')), read.split(u'|'));
    }

    void noArgumentsDoNotMatch() { QCOMPARE(readFrom({}), QStringList(u"usage"_s)); }
};

NVX_GUILESS_TEST(tst_update_error_table_arguments)
#include "tst_update_error_table_arguments.moc"
