#include "nvx_util/regular_file.h"

#include "platform.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util {

namespace {

class Descriptor
{
public:
    // A pipe that nobody writes to would block the call.
    explicit Descriptor(const QByteArray &path)
        : m_number(open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC))
    {
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor()
    {
        if (m_number >= 0)
            close(m_number);
    }

    int number() const { return m_number; }

private:
    int m_number;
};

// Tries again after a signal; -1 after an error.
ssize_t readPiece(int descriptor, char *target, qsizetype size)
{
    for (;;) {
        const ssize_t count = read(descriptor, target, static_cast<size_t>(size));
        if (count >= 0 || errno != EINTR)
            return count;
    }
}

// The bytes to the end of the file, or to the limit. Files of the system, such as those below /proc, have
// more than their size says.
std::optional<QByteArray> readUpTo(int descriptor, qsizetype expected, qsizetype limit)
{
    constexpr qsizetype chunk = 64 * 1024;
    QByteArray bytes(expected > 0 ? expected : chunk, Qt::Uninitialized);
    qsizetype end = 0;
    while (end < limit) {
        if (end == bytes.size())
            bytes.resize(qMin(2 * end, limit));
        const ssize_t count = readPiece(descriptor, bytes.data() + end, bytes.size() - end);
        if (count < 0)
            return std::nullopt;
        end += count;
        if (count == 0 || end == expected)
            break;
    }
    bytes.truncate(end);
    return bytes;
}

QString openProblem(int error)
{
    if (error == ENOENT || error == ENOTDIR)
        return Platform::missingFile();
    if (error == ENXIO) // a socket, or a device without a driver
        return Platform::irregularFile();
    return qt_error_string(error);
}

// Why the file must not be read; empty if it may be.
QString problemOf(const Descriptor &file, qint64 maximumSize, struct stat &status)
{
    if (file.number() < 0 || fstat(file.number(), &status) != 0)
        return openProblem(errno);
    if (!S_ISREG(status.st_mode))
        return Platform::irregularFile();
    if (status.st_size > maximumSize)
        return Platform::largeFile(maximumSize);
    return {};
}

} // namespace

FileContents readRegularFile(const QString &fileName, qint64 maximumSize)
{
    const Descriptor file(QFile::encodeName(fileName));
    struct stat status = {};
    const QString problem = problemOf(file, maximumSize, status);
    if (!problem.isEmpty())
        return {.problem = problem};
    std::optional<QByteArray> bytes = readUpTo(file.number(), status.st_size, maximumSize + 1);
    if (!bytes)
        return {.wasOpened = true, .problem = qt_error_string(errno)};
    if (bytes->size() > maximumSize)
        return {.problem = Platform::largeFile(maximumSize)};
    return {.bytes = std::move(bytes), .wasOpened = true};
}

QString readRegularFile(const QString &fileName, qint64 maximumSize,
                        const std::function<void(QByteArrayView)> &take)
{
    const Descriptor file(QFile::encodeName(fileName));
    struct stat status = {};
    QString problem = problemOf(file, maximumSize, status);
    QByteArray piece(Platform::pieceOfFile, Qt::Uninitialized);
    for (qint64 total = 0; problem.isEmpty();) {
        const ssize_t count = readPiece(file.number(), piece.data(), piece.size());
        if (count <= 0)
            return count == 0 ? QString() : qt_error_string(errno);
        total += count;
        if (total > maximumSize)
            problem = Platform::largeFile(maximumSize);
        else
            take(QByteArrayView(piece).first(count));
    }
    return problem;
}

} // namespace Nvx::Util
