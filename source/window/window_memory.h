#pragma once

#include <QString>

class QHeaderView;
class QMainWindow;
class QSettings;

namespace Window {

/// What a window remembers from one run to the next: its geometry, the widths of its table's columns, and the
/// folder of the file used last.
class WindowMemory
{
public:
    /// The settings live longer than the memory.
    explicit WindowMemory(QSettings &settings)
        : m_settings(settings)
    {
    }

    /// Gives a window and its columns what was stored; false, and nothing is changed, when nothing was.
    bool restore(QMainWindow &window, QHeaderView &columns) const;
    void store(const QMainWindow &window, const QHeaderView &columns);

    /// The folder in which file dialogs start; empty before a file was used.
    QString lastFolder() const;
    void rememberFolderOf(const QString &fileName);

private:
    QSettings &m_settings;
};

} // namespace Window
