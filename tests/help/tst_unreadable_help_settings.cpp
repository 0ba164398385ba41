#include "help/context_help.h"
#include "support/no_more_files.h"
#include "support/recording_machine.h"
#include "support/test_class.h"
#include "support/test_machine.h"

#include <QRegularExpression>
#include <QTest>

class tst_unreadable_help_settings : public QObject
{
    Q_OBJECT

private slots:
    void settingsThatCannotBeOpenedAreToldAndLeaveTheBareId()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*"))); // nothing is read of what is not open
        const TestMachine folders;
        RecordingMachine machine;
        machine.ownFolder = folders.installDir();
        writeFile(folders.path(QStringLiteral("NVX/NVXHelpIds.xml")),
                  "<help_ids><help_url online_prefix='x'/></help_ids>");
        // A sanitizer opens a pipe when it meets a type for the first time.
        QVERIFY(ContextHelp(machine).initialise());
        ContextHelp help(machine);
        {
            const NoMoreFiles none;
            QVERIFY(!help.initialise());
        }
        QCOMPARE(help.topicAddress(QStringLiteral("mesh")), QStringLiteral("mesh"));
        QVERIFY(help.initialise());
        QVERIFY(help.topicAddress(QStringLiteral("mesh")).startsWith(u'x'));
    }
};

NVX_GUILESS_TEST(tst_unreadable_help_settings)
#include "tst_unreadable_help_settings.moc"
