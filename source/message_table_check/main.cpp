#include "message_table_check/message_table_check.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QTextStream output(stdout);
    QTextStream errors(stderr);
    return static_cast<int>(TableCheck::runMessageTableCheck(QCoreApplication::arguments(), output, errors));
}
