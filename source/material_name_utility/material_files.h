#pragma once

#include "translation/error_translation_table.h"
#include "window/table_window.h"

#include <QStringList>

namespace mat {

/// What reading a translation file gave: a table if it was loaded, else why not.
struct TableReading
{
    Window::Loading loading;
    Error::TranslationTable table;
};

/// Reads a translation file, reporting to the progress how far it is. A file of which only a part could be
/// read counts as failed, for the rest would be lost when the table is saved.
TableReading readTableFile(const QString &fileName, Window::Progress &progress);

/// What reading a material database gave: its names if it was loaded, else why not.
struct DatabaseReading
{
    Window::Loading loading;
    QStringList names;
};

/// Reads a material database, reporting to the progress how far it is.
DatabaseReading readDatabaseFile(const QString &fileName, Window::Progress &progress);

} // namespace mat
