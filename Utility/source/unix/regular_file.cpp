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
        const ssize_t count = read(descriptor, bytes.data() + end, static_cast<size_t>(bytes.size() - end));
        if (count < 0 && errno == EINTR)
            continue;
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

} // namespace

FileContents readRegularFile(const QString &fileName, qint64 maximumSize)
{
    const Descriptor file(QFile::encodeName(fileName));
    struct stat status = {};
    if (file.number() < 0 || fstat(file.number(), &status) != 0)
        return {.problem = openProblem(errno)};
    if (!S_ISREG(status.st_mode))
        return {.problem = Platform::irregularFile()};
    if (status.st_size > maximumSize)
        return {.problem = Platform::largeFile(maximumSize)};
    std::optional<QByteArray> bytes = readUpTo(file.number(), status.st_size, maximumSize + 1);
    if (!bytes)
        return {.wasOpened = true, .problem = qt_error_string(errno)};
    if (bytes->size() > maximumSize)
        return {.problem = Platform::largeFile(maximumSize)};
    return {.bytes = std::move(bytes), .wasOpened = true};
}

} // namespace Nvx::Util
