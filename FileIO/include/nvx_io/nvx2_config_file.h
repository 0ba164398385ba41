#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Nvx::Io {

/// The value of one setting, 8-bit text in the system's code page.
class Setting
{
public:
    void setValue(const std::string &value) { m_value = value; }
    const std::string &value() const { return m_value; }

private:
    std::string m_value;
};

/// A file that is saved completely or not at all.
class File
{
public:
    File() = default;
    File(const File &) = default;
    File &operator=(const File &) = default;
    virtual ~File() = default;

    /// Writes the file and replaces an existing one, which is unchanged if this fails. The path is 8-bit
    /// text. Returns true if the file is on the disk.
    bool saveTo(const std::string &path) const;

protected:
    /// The bytes of the file; std::nullopt if a value cannot be written.
    virtual std::optional<std::string> contents() const = 0;
};

/// The solver's configuration file: one line "key = value" per setting, in the order in which the settings
/// were first used, in UTF-8 with Windows line ends. A value with a line break cannot be written.
class Nvx2ConfigFile : public File
{
public:
    static const char *const DefaultName;     ///< the file's name
    static const char *const AnalyzePath;     ///< the folder in which parallel analyses run
    static const char *const ExePath;         ///< the folder of the solver's programs
    static const char *const Mpi;             ///< cores per processor, negative with hyper-threading
    static const char *const NumberOfThreads; ///< cores per processor
    static const char *const SocketsPerNode;  ///< processors

    /// The setting with that key; an empty one is added if there is none. The reference is valid until the
    /// next call.
    Setting &setting(const std::string &key);

protected:
    std::optional<std::string> contents() const override;

private:
    std::vector<std::pair<std::string, Setting>> m_settings;
};

} // namespace Nvx::Io
