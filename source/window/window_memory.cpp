#include "window/window_memory.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QMainWindow>
#include <QSettings>

#include <algorithm>

namespace Window {

namespace {

const QString geometryKey = QStringLiteral("geometry");
const QString widthsKey = QStringLiteral("columnWidths");
const QString folderKey = QStringLiteral("lastFolder");

} // namespace

bool WindowMemory::restore(QMainWindow &window, QHeaderView &columns) const
{
    const QByteArray geometry = m_settings.value(geometryKey).toByteArray();
    if (geometry.isEmpty() || !window.restoreGeometry(geometry))
        return false;
    const QVariantList widths = m_settings.value(widthsKey).toList();
    const auto count = std::min<int>(columns.count(), static_cast<int>(widths.size()));
    for (int column = 0; column < count; ++column)
        columns.resizeSection(column, std::max(widths.at(column).toInt(), columns.minimumSectionSize()));
    return true;
}

void WindowMemory::store(const QMainWindow &window, const QHeaderView &columns)
{
    m_settings.setValue(geometryKey, window.saveGeometry());
    QVariantList widths;
    for (int column = 0; column < columns.count(); ++column)
        widths.append(columns.sectionSize(column));
    m_settings.setValue(widthsKey, widths);
}

QString WindowMemory::lastFolder() const
{
    return m_settings.value(folderKey).toString();
}

void WindowMemory::rememberFolderOf(const QString &fileName)
{
    m_settings.setValue(folderKey, QDir::toNativeSeparators(QFileInfo(fileName).absolutePath()));
}

} // namespace Window
