#include "message_table_utility/message_table_file.h"

#include "clt_message_table_xml.h"
#include "window/progress.h"

#include <QCoreApplication>

using Nvx::Util::Failure;
using Nvx::Util::Result;

namespace MessageWindow {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MessageTableFile)
};

Result<Clt::MessageTable> readTable(QIODevice &device)
{
    Clt::MessageTable table;
    const Clt::TableReading reading = Clt::readMessageTable(device, table);
    if (!reading)
        return Failure{Texts::tr("Line %1: %2").arg(QString::number(reading.errorLine), reading.error)};
    return table;
}

} // namespace

Result<Clt::MessageTable> readMessageTableFile(const QString &fileName, Window::Progress &progress)
{
    return Window::readFile(fileName, QIODevice::ReadOnly | QIODevice::Text, progress, readTable);
}

} // namespace MessageWindow
