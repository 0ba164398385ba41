// The program itself: it starts and opens the file on the command line.

#include "support/checkout.h"
#include "support/test_class.h"
#include "support/window_program.h"

using namespace Qt::Literals::StringLiterals;

class tst_message_table_program : public QObject
{
    Q_OBJECT

private slots:
    void namedFileIsOpened()
    {
        QVERIFY(opensNamedFile(inCheckout(MESSAGE_TABLE_UTILITY), u"größe.xml"_s, "<messageTable/>"));
    }
};

NVX_GUILESS_TEST(tst_message_table_program)
#include "tst_message_table_program.moc"
