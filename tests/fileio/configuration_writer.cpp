// configuration_writer PATH: saves two configurations in turn, for ever. Tests end it at any moment.

#include "nvx_io/nvx2_config_file.h"
#include "nvx_util/code_page.h"

#include <QCoreApplication>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const std::string path = Nvx::Util::toStdString(application.arguments().at(1));
    const std::string longValue(200000, 'x');
    for (bool first = true;; first = !first) {
        Nvx::Io::Nvx2ConfigFile file;
        file.setting(Nvx::Io::Nvx2ConfigFile::ExePath).setValue(longValue);
        file.setting(Nvx::Io::Nvx2ConfigFile::Mpi).setValue(first ? "8" : "-16");
        file.saveTo(path);
    }
}
