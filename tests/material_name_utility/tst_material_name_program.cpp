// The program itself: it comes up and opens the file that the command line names.

#include "support/test_class.h"
#include "support/window_program.h"

class tst_material_name_program : public QObject
{
    Q_OBJECT

private slots:
    void namedFileIsOpened()
    {
        QVERIFY(opensNamedFile(QStringLiteral(MATERIAL_NAME_UTILITY), QStringLiteral("größe.ts"), "<TS/>"));
    }
};

NVX_GUILESS_TEST(tst_material_name_program)
#include "tst_material_name_program.moc"
