// The program itself: it comes up and opens the file that the command line names.

#include "support/window_program.h"

class TestMessageTableProgram : public QObject
{
    Q_OBJECT

private slots:
    void namedFileIsOpened()
    {
        QVERIFY(opensNamedFile(QStringLiteral(MESSAGE_TABLE_UTILITY), QStringLiteral("größe.xml"),
                               "<messageTable/>"));
    }
};

QTEST_GUILESS_MAIN(TestMessageTableProgram)
#include "tst_message_table_program.moc"
