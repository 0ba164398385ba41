// Measures the time from the start of the process to the first page: of the wizard in German, and of a
// QWizard with three empty pages. Each start is a separate process. Prints the medians, in milliseconds.
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

using namespace Qt::Literals::StringLiterals;

namespace {

// A machine with the product in this folder.
class BenchMachine final : public Nvx::Util::NativeMachine
{
public:
    explicit BenchMachine(QString folder)
        : m_folder(std::move(folder))
    {
    }

    QString commandLine() const override { return u"NVXConfig.exe -Lde-DE"_s; }
    QString executableFolder() const override { return m_folder; }

private:
    QString m_folder;
};

// Ends the process successfully when a wizard has been painted for the first time.
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
    Nvx::Wizard::runProgram(engine);
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
        qFatal("%s did not reach its first page", qPrintable(arguments.first()));
}

// The substitute for the registry flushes its file to the disk at every change. The real registry does not
// wait for the disk, so the file is in memory if there is a folder for that.
QString memoryFolder()
{
    const auto memory = u"/dev/shm"_s;
    return (QDir(memory).exists() ? memory : QDir::tempPath()) + u"/bench_start_up"_s;
}

void copyLanguages(const QString &folder)
{
    const auto german = u"de-DE"_s;
    QDir(folder).mkdir(german);
    for (const auto &name : {u"nvxconfig.qm"_s, u"qt_de_DE.qm"_s}) {
        const QString place = u'/' + german + u'/' + name;
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
    copyLanguages(folder.path());
    const auto wizard = [&] { runChild({u"wizard"_s, folder.path()}); };
    const auto empty = [] { runChild({u"empty"_s}); };
    wizard(); // warms up
    empty();
    const Bench::Pair pair = Bench::sideBySide(wizard, empty);
    std::printf("wizard %8.1f ms\nempty  %8.1f ms\nratio  %8.2f\n", pair.ours, pair.peer, pair.ratio());
    return 0;
}
