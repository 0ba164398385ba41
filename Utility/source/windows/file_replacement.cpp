#include "platform.h"

#include <QDir>

#include <io.h>

#include <windows.h>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util::Platform {

std::shared_ptr<void> claimFile(const QString & /*path*/)
{
    return std::make_shared<bool>(true);
}

bool flushToDisk(int descriptor)
{
    return _commit(descriptor) == 0;
}

namespace {

// The form in which the system accepts paths of more than 260 characters.
std::wstring longPath(const QString &path)
{
    const QString native = QDir::toNativeSeparators(QDir::cleanPath(path));
    const bool isLong = native.size() >= MAX_PATH && !native.startsWith("\\\\"_L1);
    return (isLong ? u"\\\\?\\"_s + native : native).toStdWString();
}

} // namespace

bool renameToFreeName(const QString &from, const QString &to)
{
    return MoveFileExW(longPath(from).c_str(), longPath(to).c_str(), MOVEFILE_WRITE_THROUGH) != 0;
}

bool renameOver(const QString &from, const QString &to)
{
    return MoveFileExW(longPath(from).c_str(), longPath(to).c_str(),
                       MOVEFILE_WRITE_THROUGH | MOVEFILE_REPLACE_EXISTING) != 0;
}

} // namespace Nvx::Util::Platform
