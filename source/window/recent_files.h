#pragma once

#include <QMenu>
#include <QString>
#include <QStringList>

class QSettings;

namespace Window {

/// The list with the file at its beginning, in it once, and no longer than the most.
QStringList withRecent(QStringList files, const QString &file, qsizetype most);

/// The menu of the files that were opened or saved last, the latest first, remembered in the settings.
class RecentFiles : public QMenu
{
    Q_OBJECT

public:
    static constexpr qsizetype most = 8;

    /// The settings live longer than the menu.
    explicit RecentFiles(QSettings &settings, QWidget *parent = nullptr);

    /// The full paths.
    const QStringList &files() const { return m_files; }

    void add(const QString &file);

    /// Takes out a file that is not there any more.
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
