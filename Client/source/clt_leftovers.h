#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace Clt {

/// Something in a file that is lost when the file is written again, because it was not understood or is not
/// stored.
struct Leftover
{
    qint64 line = 0;
    QString what;         ///< as it reads in the file, such as "<summary>"; of a text, its beginning
    qint64 laterLine = 0; ///< where the file has it again, if that is why; otherwise 0
};

/// What reading a file left over, in the order of the file.
class Leftovers
{
public:
    /// Further ones are only counted.
    static constexpr std::size_t maximumListed = 100;

    void add(const Leftover &leftover);

    const std::vector<Leftover> &listed() const { return m_listed; }
    qsizetype count() const { return m_count; }
    bool isEmpty() const { return m_count == 0; }

    /// For the user: "Line 12: <summary> is not kept" for each of the first ones, up to `maximum`, and the
    /// number of the others.
    QStringList texts(std::size_t maximum) const;

    /// For a log: "FILE:12: <summary> is not kept".
    QStringList logLines(const QString &fileName) const;

private:
    std::vector<Leftover> m_listed;
    qsizetype m_count = 0;
};

/// The beginning of a text as one line, for Leftover::what.
QString shortened(const QString &text);

/// Copies a file, byte for byte, before it is replaced by one that holds less. The copy is NAME.before next
/// to the file, or NAME.before.2, NAME.before.3 and so on if the name is taken: an existing copy is never
/// overwritten, because it may be the only one with somebody's work. A copy with the same bytes is reused.
/// Returns the name of the copy; std::nullopt if there is none.
std::optional<QString> backUpFile(const QString &fileName);

/// The message to the user about such a copy.
QString backupText(const QString &copy);

/// True if both paths, however they are spelled, name the same existing file.
bool isSameFile(const QString &one, const QString &other);

/// The file that a table was read from, with what reading left over. Before the file is replaced, it is
/// copied, unless nothing was left over.
class FileLeftovers
{
public:
    void set(const QString &fileName, const Leftovers &leftovers);

    const Leftovers &leftovers() const { return m_leftovers; }

    /// The copy that the last call of replace() made; empty if it made none.
    const QString &copy() const { return m_copy; }

    /// Replaces a file as Nvx::Util::replaceWholeFile does, after copying it if something was left over from
    /// it. False, with the old file unchanged, if it cannot be copied or replaced.
    [[nodiscard]] bool replace(const QString &fileName, const QByteArray &contents);

private:
    QString m_fileName;
    Leftovers m_leftovers;
    QString m_copy;
};

} // namespace Clt
