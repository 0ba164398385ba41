#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QString>

#include <functional>
#include <optional>

namespace Nvx::Util {

/// What reading a file gave.
struct FileContents
{
    std::optional<QByteArray> bytes = std::nullopt;
    bool wasOpened = false;
    QString problem = {}; ///< why there are no bytes, as text for the user; empty if there are
};

/// Reads a file that somebody else has named. Only a regular file of at most maximumSize bytes is read,
/// because a device or a pipe may never end.
[[nodiscard]] FileContents readRegularFile(const QString &fileName, qint64 maximumSize);

/// Passes the bytes of such a file to a function, in pieces of up to 1 MiB. Returns why they are not all of
/// the file's bytes, as text for the user; empty if they are.
[[nodiscard]] QString readRegularFile(const QString &fileName, qint64 maximumSize,
                                      const std::function<void(QByteArrayView piece)> &take);

/// A file that somebody else has named, of any size. Devices, pipes and sockets cannot be opened, because
/// they may never end; errorString() then says so.
class RegularFile : public QFile
{
public:
    using QFile::QFile;

    bool open(OpenMode mode) override;
};

} // namespace Nvx::Util
