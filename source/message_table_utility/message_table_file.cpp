#include "message_table_utility/message_table_file.h"

#include "clt_message_table_xml.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

namespace Error {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MessageTableFile)
};

} // namespace

MessageTableReading readMessageTableFile(const QString &fileName, Window::Progress &progress)
{
    using Outcome = Window::Loading::Outcome;
    MessageTableReading reading;
    Window::ProgressFile file(fileName, progress);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        reading.loading = {Outcome::Failed, file.errorString()};
        return reading;
    }
    QXmlStreamReader xml(&file);
    const Nvx::Util::Outcome read = Clt::readMessageTable(xml, reading.table);
    // A device that fails looks like one at its end, so the reader may not know.
    if (progress.isCancelled())
        reading.loading = {Outcome::Cancelled, QString()};
    else if (file.error() != QFileDevice::NoError)
        reading.loading = {Outcome::Failed, file.errorString()};
    else if (!read)
        reading.loading = {Outcome::Failed,
                           Texts::tr("Line %1: %2").arg(QString::number(xml.lineNumber()), read.error())};
    return reading;
}

} // namespace Error
