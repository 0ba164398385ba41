// The program itself: it comes up and opens the file that the command line names.

#include "support/window_program.h"

class TestMaterialNameProgram : public QObject
{
    Q_OBJECT

private slots:
    void namedFileIsOpened()
    {
        QVERIFY(opensNamedFile(QStringLiteral(MATERIAL_NAME_UTILITY), QStringLiteral("größe.ts"), "<TS/>"));
    }
};

QTEST_GUILESS_MAIN(TestMaterialNameProgram)
#include "tst_material_name_program.moc"
