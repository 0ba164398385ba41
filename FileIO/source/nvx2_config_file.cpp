#include "nvx_io/nvx2_config_file.h"

#include "nvx_util/conversion.h"
#include "nvx_util/whole_file.h"

namespace Nvx::Io {

const char *const Nvx2ConfigFile::DefaultName = "NVX2_config.nvxcfg";
const char *const Nvx2ConfigFile::AnalyzePath = "AnalyzePath";
const char *const Nvx2ConfigFile::ExePath = "ExePath";
const char *const Nvx2ConfigFile::Mpi = "Mpi";
const char *const Nvx2ConfigFile::NumberOfThreads = "NumberOfThreads";
const char *const Nvx2ConfigFile::SocketsPerNode = "SocketsPerNode";

bool File::saveTo(const std::string &path) const
{
    std::string contents;
    if (!write(contents))
        return false;
    return Util::replaceWholeFile(Util::toQString(path), QByteArray::fromStdString(contents));
}

Setting &Nvx2ConfigFile::setting(const std::string &key)
{
    for (auto &[name, setting] : m_settings) {
        if (name == key)
            return setting;
    }
    return m_settings.emplace_back(key, Setting()).second;
}

bool Nvx2ConfigFile::write(std::string &contents) const
{
    for (const auto &[name, setting] : m_settings) {
        if (setting.value().find_first_of("\r\n") != std::string::npos)
            return false;
        contents += Util::toQString(name + " = " + setting.value()).toUtf8().toStdString() + "\r\n";
    }
    return true;
}

} // namespace Nvx::Io
