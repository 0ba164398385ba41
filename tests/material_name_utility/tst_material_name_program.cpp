// The program itself: it starts and opens the file on the command line.

#include "support/checkout.h"
#include "support/test_class.h"
#include "support/window_program.h"

using namespace Qt::Literals::StringLiterals;

class tst_material_name_program : public QObject
{
    Q_OBJECT

private slots:
    void namedFileIsOpened()
    {
        QVERIFY(opensNamedFile(inCheckout(MATERIAL_NAME_UTILITY), u"größe.ts"_s, "<TS/>"));
    }
};

NVX_GUILESS_TEST(tst_material_name_program)
#include "tst_material_name_program.moc"
