// The file that substitutes for the registry can be read whatever it contains, and a value written to it can
// be read again.

#include "nvx_util/registry_key.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdlib>

using Nvx::Util::RegistryKey;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    static const QTemporaryDir folder;
    qputenv("NVX_MACHINE", folder.path().toUtf8());
    QFile file(folder.filePath(QStringLiteral("registry.json")));
    if (!file.open(QIODevice::WriteOnly))
        std::abort();
    file.write(reinterpret_cast<const char *>(bytes), static_cast<qint64>(size));
    file.close();

    RegistryKey key(QStringLiteral("HKEY_CURRENT_USER\\a"));
    key.valueNames();
    key.subKeyNames();
    const QString written = QStringLiteral("x");
    if (!key.setText(QStringLiteral("b"), written) || key.text(QStringLiteral("b")) != written)
        std::abort();
    return 0;
}
