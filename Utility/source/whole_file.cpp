#include "nvx_util/whole_file.h"

#include "nvx_util/regular_file.h"
#include "platform.h"

#include <QFile>
#include <QFileInfo>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace Nvx::Util {

namespace {

constexpr qint64 chunk = qint64{64} * 1024;

// The suffix is unique to this program, so a leftover next to another program's file is safe to delete.
QString partOf(const QString &fileName)
{
    return fileName + u".nvxpart"_s;
}

bool hasContents(const QString &fileName, const QByteArray &contents)
{
    RegularFile file(fileName);
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

// A part that another process is writing stays: on Unix that process has locked it, on Windows an open file
// cannot be removed.
void removeLeftover(const QString &part)
{
    if (QFile::exists(part) && Platform::claimFile(part))
        QFile::remove(part);
}

/// The file that is written next to the real one, and renamed to it when it is complete. Otherwise it is
/// removed. Its name is always the same, so that a leftover of a crash is found.
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

    /// False if it cannot be created or another process is writing it.
    bool create()
    {
        removeLeftover(m_name);
        if (m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
            m_claim = Platform::claimFile(m_name);
        return m_claim != nullptr;
    }

    bool write(QByteArrayView bytes) { return m_file.write(bytes.data(), bytes.size()) == bytes.size(); }

    /// Flushes it to the disk and renames it.
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

    void copyRightsOf(const QString &fileName) { Platform::copyRights(fileName, m_name); }

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

constexpr int maximumLinks = 40;

// The file that a name refers to through symbolic links; it need not exist. Empty if the links form a cycle.
QString resolveLinks(const QString &fileName)
{
    QFileInfo file(fileName);
    for (int link = 0; file.isSymLink(); ++link) {
        if (link == maximumLinks)
            return QString();
        file.setFile(file.symLinkTarget());
    }
    return file.filePath();
}

} // namespace

std::optional<QByteArray> readWholeFile(const QString &fileName)
{
    RegularFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray contents = file.readAll();
    if (file.error() != QFileDevice::NoError || contents.size() < file.size())
        return std::nullopt;
    return contents;
}

bool replaceWholeFile(const QString &fileName, const QByteArray &contents)
{
    const QString name = resolveLinks(fileName);
    if (name.isEmpty())
        return false;
    if (hasContents(name, contents)) {
        removeLeftover(partOf(name));
        return true;
    }
    const QFileInfo old(name);
    if (old.exists() && !(old.isFile() && old.isWritable()))
        return false;
    PartFile part(partOf(name));
    if (!part.create() || !part.write(contents))
        return false;
    if (old.exists())
        part.copyRightsOf(name);
    return part.finish(Platform::renameOver, name);
}

bool createWholeFile(const QString &fileName, const QByteArray &contents)
{
    if (QFile::exists(fileName))
        return false;
    PartFile part(partOf(fileName));
    return part.create() && part.write(contents) && part.finish(Platform::renameToFreeName, fileName);
}

bool copyToFreeName(const QString &source, const QString &target)
{
    RegularFile from(source);
    if (QFile::exists(target) || !from.open(QIODevice::ReadOnly))
        return false;
    PartFile part(partOf(target));
    return part.create() && copyAll(from, part) && part.finish(Platform::renameToFreeName, target);
}

void removeUnfinished(const QString &fileName)
{
    removeLeftover(partOf(fileName));
}

} // namespace Nvx::Util
