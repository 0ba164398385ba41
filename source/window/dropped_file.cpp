#include "window/dropped_file.h"

#include <QMimeData>
#include <QUrl>

namespace Window {

QString droppedFile(const QMimeData *dropped)
{
    const QList<QUrl> urls = dropped ? dropped->urls() : QList<QUrl>();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace Window
