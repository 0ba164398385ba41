#include "help/context_help.h"
#include "support/no_more_files.h"
#include "support/recording_machine.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QRegularExpression>
#include <QTest>

using namespace Nvx::Help;
using namespace Qt::Literals::StringLiterals;

class tst_unreadable_help_settings : public QObject
{
    Q_OBJECT

private slots:
    void settingsThatCannotBeOpenedReturnFalse()
    {
        QTest::failOnWarning(QRegularExpression(u".*"_s)); // as reading from a closed file would cause
        const TestMachine folders;
        RecordingMachine machine;
        machine.ownFolder = folders.installDir();
        writeFile(folders.path(u"NVX/NVXHelpIds.xml"_s),
                  "<help_ids><help_url online_prefix='x'/></help_ids>");
        // A sanitizer opens a pipe when it meets a type for the first time.
        QVERIFY(ContextHelp(machine).initialise());
        ContextHelp help(machine);
        {
            const NoMoreFiles none;
            QVERIFY(!help.initialise());
        }
        QCOMPARE(help.topicAddress(u"mesh"_s), u"mesh"_s);
        QVERIFY(help.initialise());
        QVERIFY(help.topicAddress(u"mesh"_s).startsWith(u'x'));
    }
};

NVX_GUILESS_TEST(tst_unreadable_help_settings)
#include "tst_unreadable_help_settings.moc"
