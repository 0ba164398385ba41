#pragma once

#include <QMenu>
#include <QString>
#include <QStringList>

class QSettings;

namespace Window {

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
