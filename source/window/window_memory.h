#pragma once

#include <QString>

class QHeaderView;
class QMainWindow;
class QSettings;

namespace Window {

/// What a window stores for its next start: its geometry, the widths of its table's columns, and the folder
/// of the file used last.
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

} // namespace Window
