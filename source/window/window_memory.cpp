#include "window/window_memory.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QMainWindow>
#include <QSettings>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Window {

namespace {

const QString geometryKey = u"geometry"_s;
const QString widthsKey = u"columnWidths"_s;
const QString folderKey = u"lastFolder"_s;

} // namespace

void WindowMemory::restore(QMainWindow &window, QHeaderView &columns) const
{
    const QByteArray geometry = m_settings.value(geometryKey).toByteArray();
    if (geometry.isEmpty() || !window.restoreGeometry(geometry))
        return;
    const QVariantList widths = m_settings.value(widthsKey).toList();
    const auto count = std::min<int>(columns.count(), static_cast<int>(widths.size()));
    for (int column = 0; column < count; ++column)
        columns.resizeSection(column, std::max(widths.at(column).toInt(), columns.minimumSectionSize()));
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
