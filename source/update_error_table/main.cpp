#include "nvx_util/system.h"
#include "update_error_table/update_error_table.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QTextStream output(stdout);
    QTextStream errors(stderr);
    const bool onTerminal = Nvx::Util::isStandardOutputTerminal();
    const auto device =
        onTerminal ? UpdateTable::OutputDevice::Terminal : UpdateTable::OutputDevice::FileOrPipe;
    return static_cast<int>(
        UpdateTable::runUpdateErrorTable(QCoreApplication::arguments().mid(1), output, errors, device));
}
