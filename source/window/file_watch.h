#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

namespace Window {

/// Notices that another program has changed a file: its size or its time stamp differ from those at the last
/// setFile() or accept(). A file that disappears has not changed.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    explicit FileWatch(QObject *parent = nullptr);

    /// Watches that file, as it is now, instead of the one before; none if the name is empty.
    void setFile(const QString &fileName);

    /// True if the file has changed.
    bool isChanged() const;

    /// The file as it is now is no longer a change.
    void accept();

    /// Emits changed() again after a while, unless the change has been accepted by then.
    void notifyLater();

signals:
    /// The file has changed, and has not changed any more for a short time.
    void changed();

private:
    struct Stamp
    {
        qint64 size = -1;
        QDateTime time;
        bool operator==(const Stamp &other) const = default;
    };

    static Stamp stampOf(const QString &fileName);
    void check();

    QString m_fileName;
    Stamp m_stamp;
    QFileSystemWatcher m_watcher;
    QTimer m_pause;
};

} // namespace Window
