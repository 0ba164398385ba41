#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <optional>

// Files and folders in places where users below an administrator may create their own, for a process that has
// an administrator's rights. Administrators are the system, the group of that name, and the user of this
// process.

namespace Nvx::Util {

/// What the system reports about one existing folder or link on the way to a path.
struct WayPoint
{
    QString path;
    bool isLink = false;           ///< a link or junction, or whatever else leads to another place
    bool isHeld = false;           ///< a folder that cannot be renamed or replaced at present
    bool isAdministrators = false; ///< owned by administrators
};

/// The first point at which someone below an administrator decides where the way leads: a link that
/// administrators do not own, or a folder that they do not own and that could not be held. std::nullopt if
/// there is none.
std::optional<QString> plantedPointOf(const QList<WayPoint> &way);

/// The existing folders on the way to a path, from the drive down; after a link, also those on the way to its
/// target. On Windows nobody can rename, remove or replace these folders during the lifetime of this object,
/// so what was found remains true; on other systems they are only looked at. Files can be created and removed
/// in them.
class HeldWay
{
public:
    /// The way to a folder, including the folder.
    static HeldWay toFolder(const QString &path);

    /// The way to an entry that may be removed: a link is found, but a folder is not held.
    static HeldWay toEntry(const QString &path);

    const QList<WayPoint> &points() const { return m_points; }

    /// See plantedPointOf.
    std::optional<QString> plantedPoint() const { return plantedPointOf(m_points); }

private:
    HeldWay() = default;

    QString add(const QString &path);

    QList<WayPoint> m_points;
    QString m_finalPath; ///< of the last point
    QList<std::shared_ptr<void>> m_holds;
};

/// Whether a text could be more than a name in a command line for the command interpreter: it contains a
/// double quote or a control character. No path on Windows does.
bool holdsQuoteOrControl(const QString &text);

/// A script that another program is to read: a file with these contents that only administrators may change.
/// On Windows nobody can write, rename or remove it during the lifetime of this object, and other programs
/// can open it for reading. An older file with its name is removed first, and this one at the end.
class ScriptFile
{
public:
    ScriptFile(const QString &path, const QByteArray &contents);
    ScriptFile(const ScriptFile &) = delete;
    ScriptFile &operator=(const ScriptFile &) = delete;
    ~ScriptFile();

    /// False if the file could not be created anew or not all of it could be written; nothing is left of it
    /// then.
    explicit operator bool() const { return m_hold != nullptr; }

private:
    QString m_path;
    std::shared_ptr<void> m_hold;
};

} // namespace Nvx::Util
