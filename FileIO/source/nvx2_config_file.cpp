#include "nvx_io/nvx2_config_file.h"

#include "nvx_util/code_page.h"
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
    const std::optional<std::string> bytes = contents();
    return bytes && Util::replaceWholeFile(Util::toQString(path), QByteArray::fromStdString(*bytes));
}

Setting &Nvx2ConfigFile::setting(const std::string &key)
{
    for (auto &[name, setting] : m_settings) {
        if (name == key)
            return setting;
    }
    return m_settings.emplace_back(key, Setting()).second;
}

std::optional<std::string> Nvx2ConfigFile::contents() const
{
    std::string lines;
    for (const auto &[name, setting] : m_settings) {
        if (setting.value().find_first_of("\r\n") != std::string::npos)
            return std::nullopt;
        lines += Util::toQString(name + " = " + setting.value()).toUtf8().toStdString() + "\r\n";
    }
    return lines;
}

} // namespace Nvx::Io
