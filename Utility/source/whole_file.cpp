#include "nvx_util/whole_file.h"

#include "platform.h"

#include <QFile>
#include <QFileInfo>

#include <memory>

namespace Nvx::Util {

namespace {

constexpr qint64 chunk = qint64{64} * 1024;

// Beside a file of somebody else's only a name that nobody else gives is ours to clear away.
QString partOf(const QString &fileName)
{
    return fileName + QStringLiteral(".nvxpart");
}

bool hasContents(const QString &fileName, const QByteArray &contents)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly) || file.size() != contents.size())
        return false;
    for (qsizetype at = 0; at < contents.size();) {
        const QByteArray bytes = file.read(chunk);
        if (bytes.isEmpty() || !QByteArrayView(contents).sliced(at).startsWith(bytes))
            return false;
        at += bytes.size();
    }
    return true;
}

// A part that another process is writing is none: on Unix that process has claimed it, on Windows a file that
// is open cannot be removed.
void removeLeftPart(const QString &part)
{
    if (QFile::exists(part) && Platform::claimFile(part))
        QFile::remove(part);
}

/// The file that is written beside the one to come, and gets its name when it is whole. It goes when it was
/// not renamed. Its name is always the same one, so that what a crash leaves is found again.
class PartFile
{
public:
    explicit PartFile(const QString &name)
        : m_name(name)
        , m_file(name)
    {
    }
    PartFile(const PartFile &) = delete;
    PartFile &operator=(const PartFile &) = delete;
    ~PartFile()
    {
        m_file.close();
        if (m_claim)
            QFile::remove(m_name);
    }

    /// False when it cannot be made, or another process is writing it.
    bool create()
    {
        removeLeftPart(m_name);
        if (m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
            m_claim = Platform::claimFile(m_name);
        return m_claim != nullptr;
    }

    bool write(QByteArrayView bytes) { return m_file.write(bytes.data(), bytes.size()) == bytes.size(); }

    /// Puts all of it on the disk and gives it its name.
    bool finish(bool (*rename)(const QString &, const QString &), const QString &fileName)
    {
        if (!m_file.flush() || !Platform::flushToDisk(m_file.handle()))
            return false;
        m_file.close();
        if (!rename(m_name, fileName))
            return false;
        m_claim.reset();
        return true;
    }

    void setPermissions(QFile::Permissions permissions) { m_file.setPermissions(permissions); }

private:
    QString m_name;
    QFile m_file;
    std::shared_ptr<void> m_claim;
};

bool copyAll(QFile &source, PartFile &target)
{
    QByteArray bytes(chunk, Qt::Uninitialized);
    for (;;) {
        const qint64 read = source.read(bytes.data(), chunk);
        if (read <= 0)
            return read == 0 && source.atEnd();
        if (!target.write(QByteArrayView(bytes).first(read)))
            return false;
    }
}

constexpr int mostLinks = 40;

// The file that a name stands for, which need not exist; links that lead in a circle stand for none.
QString behindLinks(const QString &fileName)
{
    QFileInfo file(fileName);
    for (int link = 0; file.isSymLink(); ++link) {
        if (link == mostLinks)
            return QString();
        file.setFile(file.symLinkTarget());
    }
    return file.filePath();
}

} // namespace

std::optional<QByteArray> readWholeFile(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray contents = file.readAll();
    if (file.error() != QFileDevice::NoError || contents.size() < file.size())
        return std::nullopt;
    return contents;
}

bool replaceWholeFile(const QString &fileName, const QByteArray &contents)
{
    const QString name = behindLinks(fileName);
    if (name.isEmpty())
        return false;
    if (hasContents(name, contents)) {
        removeLeftPart(partOf(name));
        return true;
    }
    const QFileInfo old(name);
    if (old.isDir() || (old.exists() && !old.isWritable()))
        return false;
    PartFile part(partOf(name));
    if (!part.create() || !part.write(contents))
        return false;
    if (old.exists())
        part.setPermissions(old.permissions());
    return part.finish(Platform::renameOver, name);
}

bool copyToFreeName(const QString &source, const QString &target)
{
    QFile from(source);
    if (QFile::exists(target) || !from.open(QIODevice::ReadOnly))
        return false;
    PartFile part(partOf(target));
    return part.create() && copyAll(from, part) && part.finish(Platform::renameToFreeName, target);
}

void removeUnfinished(const QString &fileName)
{
    removeLeftPart(partOf(fileName));
}

} // namespace Nvx::Util
