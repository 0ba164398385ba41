#include "cad/cad_systems.h"
#include "launcher_fixture.h"
#include "support/test_class.h"

#include <QTest>

using namespace Nvx::Cad;
using namespace Nvx::Run;
using namespace Qt::Literals::StringLiterals;

namespace {

// One row of the table as a string.
QString described(const CadSystem &system)
{
    const QString program = system.program
                                ? u"%1 (%2)"_s.arg(system.program->fileName, system.program->displayName)
                                : u"no program"_s;
    return u"%1: %2, row %3, %4"_s.arg(system.objectName, QString::fromLatin1(system.label),
                                       QString::number(system.gridRow), program);
}

} // namespace

class tst_cad_systems : public QObject
{
    Q_OBJECT

private slots:
    void theTableHasTheseRowsInThisOrder()
    {
        QStringList rows;
        for (const CadSystem &system : cadSystems())
            rows << described(system);
        QCOMPARE(rows, QStringList({u"m_cbBrevant: Brevant, row 9, BREVANT.EXE (Brevant)"_s,
                                    u"m_cbCreo: Pro/ENGINEER Creo, row 7, XTOP.EXE (Wildfire)"_s,
                                    u"m_cbSolidworks: SolidWorks, row 8, SLDWORKS.EXE (SolidWorks)"_s,
                                    u"UGS NX: UGS NX, row 10, no program"_s,
                                    u"Tamsel: Tamsel, row 12, no program"_s,
                                    u"Tamsel ARCH: Tamsel Architecture, row 13, no program"_s,
                                    u"Tamsel MEP: Tamsel MEP, row 14, no program"_s,
                                    u"m_cbSpaceclaim: SpaceClaim, row 16, SPACECLAIM.EXE (Spaceclaim)"_s}));
    }

    void aLauncherIsFoundInTheTable()
    {
        QVERIFY(cadSystem(Launcher::Brevant).objectName == "m_cbBrevant"_L1);
        QVERIFY(cadSystem(Launcher::Nx).objectName == "UGS NX"_L1);
        QVERIFY(cadSystem(Launcher::SpaceClaim).objectName == "m_cbSpaceclaim"_L1);
    }

    void eachRowInstallsItsOwnLauncher()
    {
        LauncherFixture fixture;
        for (const CadSystem &system : cadSystems())
            fixture.check(system.launcher);
        for (const CadSystem &system : cadSystems())
            system.install(fixture.step(RunMode::Install));
        QCOMPARE(fixture.takeLines().filter(u"progress "_s),
                 QStringList({u"progress 0 Configure Brevant"_s, u"progress 0 ProE Creo"_s,
                              u"progress 0 SolidWorks"_s, u"progress 0 UGNX"_s, u"progress 0 Tamsel"_s,
                              u"progress 0 Tamsel Architecture"_s, u"progress 0 Tamsel MEP"_s,
                              u"progress 0 SpaceClaim"_s}));
    }

    void aLauncherDependsOnItsOwnCheckBoxOnly_data()
    {
        QTest::addColumn<int>("row");
        for (const CadSystem &system : cadSystems())
            QTest::newRow(system.label) << static_cast<int>(system.launcher);
    }

    void aLauncherDependsOnItsOwnCheckBoxOnly()
    {
        QFETCH(const int, row);
        const CadSystem &tested = cadSystem(static_cast<Launcher>(row));
        LauncherFixture fixture;
        for (const CadSystem &system : cadSystems())
            fixture.checkBoxes.setFound(system.launcher, system.launcher != tested.launcher);
        tested.install(fixture.step(RunMode::Install));
        QVERIFY(fixture.takeLines().filter(u"progress "_s).isEmpty());
        QVERIFY(fixture.machine.calls.isEmpty());
        fixture.check(tested.launcher);
        tested.install(fixture.step(RunMode::Install));
        QCOMPARE(fixture.takeLines().filter(u"progress "_s).size(), 1);
    }

    void theGuardHasItsOwnOrderAndTwoSystemsWithoutALauncher()
    {
        QStringList programs;
        const QList<GuardedProgram> guarded = guardedCadPrograms();
        for (const GuardedProgram &program : guarded)
            programs << u"%1 %2 %3"_s.arg(QString::number(program.place), program.fileName,
                                          program.displayName);
        QCOMPARE(programs, QStringList({u"1 XTOP.EXE Wildfire"_s, u"2 SLDWORKS.EXE SolidWorks"_s,
                                        u"3 SPACECLAIM.EXE Spaceclaim"_s, u"4 BREVANT.EXE Brevant"_s,
                                        u"5 SOLIDDESIGNER.EXE SolidDesigner"_s, u"6 EDGE.EXE SolidEdge"_s}));
    }
};

NVX_GUILESS_TEST(tst_cad_systems)
#include "tst_cad_systems.moc"
