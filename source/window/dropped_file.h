#pragma once

#include <QString>

class QMimeData;

namespace Window {

/// The file that is being dropped on a window; empty unless it is exactly one, of this machine.
QString droppedFile(const QMimeData *dropped);

} // namespace Window
