#include "material_name_utility/material_files.h"

#include "materials/mat_material_name.h"
#include "materials/mat_translation_table.h"

namespace mat {

namespace {

using Outcome = Window::Loading::Outcome;

/// How a file was loaded whose contents gave that error. A file that fails looks like one at its end, so its
/// own error comes first.
Window::Loading loadingOf(const QFile &file, const Window::Progress &progress, const QString &error)
{
    if (progress.isCancelled())
        return {Outcome::Cancelled, QString()};
    if (file.error() != QFileDevice::NoError)
        return {Outcome::Failed, file.errorString()};
    if (!error.isEmpty())
        return {Outcome::Failed, error};
    return {};
}

} // namespace

TableReading readTableFile(const QString &fileName, Window::Progress &progress)
{
    TableReading reading;
    Window::ProgressFile file(fileName, progress);
    const QString error =
        file.open(QIODevice::ReadOnly) ? readTable(file, reading.table) : file.errorString();
    reading.loading = loadingOf(file, progress, error);
    return reading;
}

DatabaseReading readDatabaseFile(const QString &fileName, Window::Progress &progress)
{
    Window::ProgressFile file(fileName, progress);
    if (!file.open(QIODevice::ReadOnly))
        return {{Outcome::Failed, file.errorString()}, QStringList()};
    const MaterialNames database = readMaterialNames(file);
    return {loadingOf(file, progress, database.error), database.names};
}

} // namespace mat
