// From the start of the process to the first page: the wizard in German beside a QWizard of three empty
// pages. Each start is a process of its own. Prints the medians, in milliseconds.
//
//     bench_start_up

#include "cfg_utilities/cfg_utilitys.h"
#include "cfg_wizard/start_up.h"
#include "measure.h"
#include "nvx_util/native_machine.h"

#include <QApplication>
#include <QDir>
#include <QPaintEvent>
#include <QProcess>
#include <QTemporaryDir>
#include <QWizard>

#include <cstdio>
#include <cstdlib>

namespace {

// A machine that has the product in a folder of its own.
class BenchMachine final : public Nvx::Util::NativeMachine
{
public:
    explicit BenchMachine(QString folder)
        : m_folder(std::move(folder))
    {
    }

    QString commandLine() const override { return QStringLiteral("NVXConfig.exe -Lde-DE"); }
    QString executableFolder() const override { return m_folder; }

private:
    QString m_folder;
};

// Ends the process, successfully, as soon as a wizard has been painted for the first time.
class EndAtFirstPage final : public QObject
{
public:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (m_painting && event->type() != QEvent::Paint)
            std::_Exit(EXIT_SUCCESS);
        if (event->type() == QEvent::Paint && qobject_cast<QWizard *>(object))
            m_painting = true;
        return false;
    }

private:
    bool m_painting = false;
};

int startWizard(const QString &folder)
{
    BenchMachine machine(folder);
    cfg_utilitys engine(machine);
    runProgram(engine);
    return EXIT_FAILURE;
}

int startEmptyWizard()
{
    QWizard wizard;
    wizard.setWizardStyle(QWizard::ModernStyle);
    for (int i = 0; i < 3; ++i)
        wizard.addPage(new QWizardPage);
    wizard.show();
    QApplication::exec();
    return EXIT_FAILURE;
}

void runChild(const QStringList &arguments)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), arguments);
    if (!child.waitForFinished() || child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0)
        qFatal("%s did not come to its first page", qPrintable(arguments.first()));
}

// The file that stands for the registry is flushed to the disk at every change. The registry's own changes
// wait for no disk, so the file lies in memory where there is a folder for that.
QString memoryFolder()
{
    const auto memory = QStringLiteral("/dev/shm");
    return (QDir(memory).exists() ? memory : QDir::tempPath()) + QStringLiteral("/bench_start_up");
}

void putLanguages(const QString &folder)
{
    const auto german = QStringLiteral("de-DE");
    QDir(folder).mkdir(german);
    for (const auto &name : {QStringLiteral("nvxconfig.qm"), QStringLiteral("qt_de_DE.qm")}) {
        const QString place = QLatin1Char('/') + german + QLatin1Char('/') + name;
        if (!QFile::copy(QStringLiteral(NVX_LANGUAGES_FOLDER) + place, folder + place))
            qFatal("no %s", qPrintable(place));
    }
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc > 1) {
        const QApplication application(argc, argv);
        EndAtFirstPage end;
        qApp->installEventFilter(&end);
        return argc > 2 ? startWizard(QString::fromLocal8Bit(argv[2])) : startEmptyWizard();
    }

    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder(memoryFolder());
    qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit());
    qputenv("NVX_MACHINE", folder.path().toLocal8Bit());
    putLanguages(folder.path());
    const auto wizard = [&] { runChild({QStringLiteral("wizard"), folder.path()}); };
    const auto empty = [] { runChild({QStringLiteral("empty")}); };
    wizard(); // warms up
    empty();
    const Bench::Pair pair = Bench::sideBySide(wizard, empty);
    std::printf("wizard %8.1f ms\nempty  %8.1f ms\nratio  %8.2f\n", pair.ours, pair.peer, pair.ratio());
    return 0;
}
