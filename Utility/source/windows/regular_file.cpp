#include "nvx_util/regular_file.h"

#include "platform.h"

#include <QFile>
#include <QFileInfo>

namespace Nvx::Util {

namespace {

// Why the file must not be read; empty if it may be.
QString problemOf(const QString &fileName, qint64 maximumSize)
{
    const QFileInfo info(fileName);
    if (!info.exists())
        return Platform::missingFile();
    if (!info.isFile())
        return Platform::irregularFile();
    if (info.size() > maximumSize)
        return Platform::largeFile(maximumSize);
    return {};
}

} // namespace

// Qt opens files by their full paths, in which the names of devices have no meaning.
FileContents readRegularFile(const QString &fileName, qint64 maximumSize)
{
    const QString problem = problemOf(fileName, maximumSize);
    if (!problem.isEmpty())
        return {.problem = problem};
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {.problem = file.errorString()};
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return {.wasOpened = true, .problem = file.errorString()};
    return {.bytes = std::move(bytes), .wasOpened = true};
}

QString readRegularFile(const QString &fileName, qint64 maximumSize,
                        const std::function<void(QByteArrayView)> &take)
{
    QString problem = problemOf(fileName, maximumSize);
    if (!problem.isEmpty())
        return problem;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return file.errorString();
    QByteArray piece(Platform::pieceOfFile, Qt::Uninitialized);
    for (qint64 total = 0; problem.isEmpty();) {
        const qint64 count = file.read(piece.data(), piece.size());
        if (count <= 0)
            return count == 0 ? QString() : file.errorString();
        total += count;
        if (total > maximumSize)
            problem = Platform::largeFile(maximumSize);
        else
            take(QByteArrayView(piece).first(count));
    }
    return problem;
}

} // namespace Nvx::Util
