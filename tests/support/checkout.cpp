#include "support/checkout.h"

QString inCheckout(const char *path)
{
    return QStringLiteral(NVX_CHECKOUT "/") + QString::fromUtf8(path);
}
