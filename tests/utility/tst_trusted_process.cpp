// A process that trusts its own folder only. What it has given up does not come back, so the tests restart
// this program.

#include "nvx_util/own_process.h"
#include "support/test_folder.h"

#include <QLibrary>
#include <QProcess>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

// The options with which the program reports something about itself instead of testing.
const QString trusting = u"--trusting"_s;
const QString usual = u"--usual"_s;

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
        const QString planted = QFileInfo(QStringLiteral(PLANTED_LIBRARY)).absolutePath();
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
};

int main(int argc, char *argv[])
{
    if (argc == 2 && argv[1] == trusting.toLatin1())
        return reportAs(true, argc, argv);
    if (argc == 2 && argv[1] == usual.toLatin1())
        return reportAs(false, argc, argv);
    const QCoreApplication application(argc, argv);
    tst_trusted_process test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_trusted_process.moc"
