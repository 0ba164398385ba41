#pragma once

#include <QByteArray>
#include <QString>

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

} // namespace Nvx::Util
