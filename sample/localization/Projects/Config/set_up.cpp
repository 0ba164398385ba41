#include <QCoreApplication>

QString completion()
{
    return QCoreApplication::translate("SetUp", "The product has been set up");
}
