// The program itself: it comes up and opens the file that the command line names.

#include "support/file_bytes.h"
#include "support/test_folder.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QSettings>
#include <QTest>

class TestMaterialNameProgram : public QObject
{
    Q_OBJECT

private slots:
    void namedFileIsOpened();
};

// The list of recent files, which the program keeps, tells that the file was opened.
void TestMaterialNameProgram::namedFileIsOpened()
{
    const TestFolder folder;
    const QString table = folder.path(QStringLiteral("größe.ts"));
    QVERIFY(writeFile(table, "<TS/>"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.path());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));

    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(MATERIAL_NAME_UTILITY), {table});
    QVERIFY(program.waitForStarted());
    const auto recent = [] {
        QSettings settings(QStringLiteral("Velmora"), QStringLiteral("MaterialNameUtility"));
        return settings.value(QStringLiteral("recentFiles")).toStringList().value(0);
    };
    const bool wasOpened = QTest::qWaitFor([&] { return recent() == table; }, 20'000);
    QCOMPARE(program.state(), QProcess::Running);
    program.kill();
    QVERIFY(program.waitForFinished());
    QVERIFY2(wasOpened, qPrintable(recent()));
}

QTEST_GUILESS_MAIN(TestMaterialNameProgram)
#include "tst_material_name_program.moc"
