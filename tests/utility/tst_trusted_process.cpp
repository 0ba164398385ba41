// A process that trusts its own folder only. What it has given up does not come back, so the tests restart
// this program.

#include "nvx_util/own_process.h"
#include "nvx_util/system.h"
#include "support/checkout.h"
#include "support/test_folder.h"

#include <QLibrary>
#include <QProcess>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

// The options with which the program reports something about itself instead of testing.
const QString trusting = u"--trusting"_s;
const QString usual = u"--usual"_s;
const QString shellsFolders = u"--shells-folders"_s;

// A library that is in no folder of the operating system.
const QString libraryName = u"planted_library"_s;

// Reports whether the library is found, where Qt looks for plug-ins, and two of Qt's variables.
int reportAs(bool trustsOwnFolderOnly, int argumentCount, char *arguments[])
{
    if (trustsOwnFolderOnly)
        Nvx::Util::trustOwnFolderOnly();
    const QCoreApplication application(argumentCount, arguments);
    QStringList folders = QCoreApplication::libraryPaths();
    folders.removeAll(QCoreApplication::applicationDirPath());
    const QStringList report{QLibrary(libraryName).load() ? u"found"_s : u"not found"_s,
                             folders.isEmpty() ? u"own plug-ins"_s : u"foreign plug-ins"_s,
                             qEnvironmentVariable("QT_QPA_FONTDIR"),
                             qEnvironmentVariable("QT_LOGGING_RULES")};
    std::fputs(report.join(u'|').toUtf8().constData(), stdout);
    return 0;
}

// Reports the folders of users' data.
int reportFolders()
{
    using Nvx::Util::System;
    Nvx::Util::trustSystemsFoldersOnly();
    const QStringList report{System::getUserDataPath(), System::getProgramDataPath(u"NVX 2017"_s),
                             System::getTutorialsDirPath(), qEnvironmentVariable("SystemRoot"),
                             qEnvironmentVariable("ComSpec")};
    std::fputs(report.join(u'|').toUtf8().constData(), stdout);
    return 0;
}

} // namespace

class tst_trusted_process : public QObject
{
    Q_OBJECT

private slots:
    void aTrustingProcessFindsNoLibrariesAndPluginsInOtherFolders_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("workFolder");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("expected");
        const QString planted = QFileInfo(inCheckout(PLANTED_LIBRARY)).absolutePath();
        const QString none = QDir::tempPath();
        const auto found = u"found|foreign plug-ins|fonts|*.debug=false"_s;
        const auto notFound = u"not found|own plug-ins||*.debug=false"_s;
        QTest::newRow("usual, in the path") << usual << none << planted << found;
        QTest::newRow("usual, in the working folder") << usual << planted << none << found;
        QTest::newRow("trusting, in the path") << trusting << none << planted << notFound;
        QTest::newRow("trusting, in the working folder") << trusting << planted << none << notFound;
    }

    void aTrustingProcessFindsNoLibrariesAndPluginsInOtherFolders()
    {
        QFETCH(const QString, option);
        QFETCH(const QString, workFolder);
        QFETCH(const QString, path);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"PATH"_s, environment.value(u"PATH"_s) + u';' + QDir::toNativeSeparators(path));
        environment.insert(u"QT_PLUGIN_PATH"_s, QDir::tempPath());
        environment.insert(u"QT_QPA_FONTDIR"_s, u"fonts"_s);
        environment.insert(u"QT_LOGGING_RULES"_s, u"*.debug=false"_s);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(workFolder);
        process.start(QCoreApplication::applicationFilePath(), {option});
        QVERIFY(process.waitForFinished());
        QTEST(QString::fromUtf8(process.readAllStandardOutput()), "expected");
    }

    void aTrustingProcessTakesNoFolderFromTheEnvironment()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const QString planted = u"C:\\planted\" & del"_s;
        for (const auto &name :
             {u"APPDATA"_s, u"ProgramData"_s, u"ALLUSERSPROFILE"_s, u"PUBLIC"_s, u"windir"_s})
            environment.insert(name, planted);
        environment.insert(u"ComSpec"_s, u"C:\\planted.exe"_s);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), {shellsFolders});
        QVERIFY(process.waitForFinished());
        const QStringList folders = QString::fromUtf8(process.readAllStandardOutput()).toLower().split(u'|');
        QCOMPARE(folders.size(), 5);
        QVERIFY2(folders[0].endsWith(u"\\appdata\\roaming\\velmora\\nvx 2017"_s), qPrintable(folders[0]));
        QCOMPARE(folders[1], u"c:\\programdata\\velmora\\nvx 2017"_s);
        QCOMPARE(folders[2], u"c:\\users\\public\\documents\\velmora\\nvx 2017\\tutorials"_s);
        QCOMPARE(folders[3], u"c:\\windows"_s);
        QCOMPARE(folders[4], u"c:\\windows\\system32\\cmd.exe"_s);
        QVERIFY(!folders.join(u'|').contains(u"planted"_s));
    }
};

int main(int argc, char *argv[])
{
    if (argc == 2 && argv[1] == trusting.toLatin1())
        return reportAs(true, argc, argv);
    if (argc == 2 && argv[1] == usual.toLatin1())
        return reportAs(false, argc, argv);
    if (argc == 2 && argv[1] == shellsFolders.toLatin1())
        return reportFolders();
    const QCoreApplication application(argc, argv);
    tst_trusted_process test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_trusted_process.moc"
