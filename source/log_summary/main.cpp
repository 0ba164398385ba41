#include "log_summary/log_summary.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QTextStream output(stdout);
    QTextStream errors(stderr);
    return static_cast<int>(LogSummary::runLogSummary(QCoreApplication::arguments(), output, errors));
}
