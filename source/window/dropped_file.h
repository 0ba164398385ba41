#pragma once

#include <QString>

class QMimeData;

namespace Window {

/// The local file that is being dropped; empty unless it is exactly one.
QString droppedFile(const QMimeData *dropped);

} // namespace Window
