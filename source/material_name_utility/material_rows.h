#pragma once

#include "window/marked_rows.h"

#include <QSet>
#include <QString>

namespace Translation {
class TranslationTable;
}

namespace MaterialWindow {

/// The rows of the material names in a table: name and translation, ordered by the UTF-16 code units of the
/// names; duplicates keep the order of the table. Obsolete names are marked as such, the other ones of the
/// new names as new.
Window::MarkedRows materialRows(const Translation::TranslationTable &table, const QSet<QString> &newNames);

} // namespace MaterialWindow
