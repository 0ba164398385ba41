#pragma once

#include "window/marked_rows.h"

#include <QSet>
#include <QString>

namespace Error {
class TranslationTable;
}

namespace mat {

/// The rows of the material names in a table: name and translation, ordered by the UTF-16 code units of the
/// names, equal ones as they follow each other in the table. Obsolete names are marked so, and those of the
/// new names that are not obsolete as new.
Window::MarkedRows rowsOf(const Error::TranslationTable &table, const QSet<QString> &newNames);

} // namespace mat
