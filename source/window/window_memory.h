#pragma once

#include <QMenu>
#include <QString>
#include <QStringList>

class QHeaderView;
class QMainWindow;
class QSettings;

namespace Window {

/// What a window stores for its next start: its geometry, its docks, the widths of its table's columns, and
/// the folder of the file used last.
class WindowMemory
{
public:
    /// The settings must outlive this object.
    explicit WindowMemory(QSettings &settings)
        : m_settings(settings)
    {
    }

    /// Applies the stored geometry and widths. Changes nothing if there is no valid geometry.
    void restore(QMainWindow &window, QHeaderView &columns) const;
    void store(const QMainWindow &window, const QHeaderView &columns);

    /// The folder in which file dialogs start; empty until a file has been used.
    QString lastFolder() const;
    void rememberFolderOf(const QString &fileName);

private:
    QSettings &m_settings;
};

/// The list with the file moved or added to the front, cut to `maximum` files.
QStringList withRecent(QStringList files, const QString &file, qsizetype maximum);

/// The menu of the files that were opened or saved last, most recent first. It is stored in the settings.
class RecentFiles : public QMenu
{
    Q_OBJECT

public:
    static constexpr qsizetype maximum = 8;

    /// The settings must outlive the menu.
    explicit RecentFiles(QSettings &settings, QWidget *parent = nullptr);

    /// The full paths.
    const QStringList &files() const { return m_files; }

    void add(const QString &file);

    /// Removes a file that no longer exists.
    void remove(const QString &file);

signals:
    void chosen(const QString &file);

private:
    void store();
    void fill();

    QSettings &m_settings;
    QStringList m_files;
};

} // namespace Window
