// The program itself: it comes up and opens the file that the command line names.

#include "support/test_class.h"
#include "support/window_program.h"

class tst_message_table_program : public QObject
{
    Q_OBJECT

private slots:
    void namedFileIsOpened()
    {
        QVERIFY(opensNamedFile(QStringLiteral(MESSAGE_TABLE_UTILITY), QStringLiteral("größe.xml"),
                               "<messageTable/>"));
    }
};

NVX_GUILESS_TEST(tst_message_table_program)
#include "tst_message_table_program.moc"
