#include "window/window_program.h"

#include "nvx_util/system.h"
#include "nvx_util/translators.h"
#include "window/dialogs.h"
#include "window/table_window.h"

#include <QApplication>
#include <QSettings>

using namespace Qt::Literals::StringLiterals;

namespace Window {

void openNamedFile(TableWindow &window, const QStringList &arguments)
{
    if (arguments.isEmpty())
        return;
    QMetaObject::invokeMethod(
        &window, [&window, file = arguments.first()] { window.openFile(file); }, Qt::QueuedConnection);
}

int runWindowProgram(int argc, char *argv[], const QString &programName, const QString &catalogue,
                     const WindowMaker &makeWindow)
{
    const QApplication application(argc, argv);
    QApplication::setApplicationName(programName);
    QApplication::setApplicationVersion(QStringLiteral(NVX_VERSION));
    const Nvx::Util::Translators translators(QApplication::applicationDirPath(),
                                             Nvx::Util::supportedSystemLocale(), {catalogue, u"nvxwindow"_s});
    QSettings settings(u"Velmora"_s, programName);
    NativeDialogs dialogs;
    const std::unique_ptr<TableWindow> window = makeWindow(dialogs, settings);
    window->show();
    openNamedFile(*window, QApplication::arguments().mid(1));
    return QApplication::exec();
}

} // namespace Window
