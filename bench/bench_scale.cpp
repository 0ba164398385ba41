// Measures how the time per item depends on the number of items: scanning sources for macros, synchronising a
// message table with their keys, reading a material database, and synchronising a translation table with it.
// Argument: the number of items. Prints one line of medians, in nanoseconds per item.

#include "clt_message_table.h"
#include "materials/mat_material_name.h"
#include "materials/mat_translation_table.h"
#include "measure.h"
#include "scanner/scan_files.h"
#include "synchronisation/message_table_synchronisation.h"
#include "translation/error_translation_table.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int macrosPerFile = 100;

QByteArray sourceOf(int first, int end)
{
    QByteArray source = "#include \"session.h\"\n\nnamespace Clt {\n";
    for (int number = first; number < end; ++number) {
        const QByteArray name = QByteArray::number(number);
        source += "\nbool Session" + name +
                  "::open(int port)\n{\n    // The port may be taken.\n"
                  "    if (!m_socket.bind(port, \"any\")) {\n        REPORT_ERROR(\"NO_PORT_" +
                  name + "\");\n        return false;\n    }\n    return true;\n}\n";
    }
    return source + "\n} // namespace Clt\n";
}

QStringList writeSources(const QTemporaryDir &folder, int macros)
{
    QStringList fileNames;
    for (int first = 0; first < macros; first += macrosPerFile) {
        const QString fileName = folder.filePath(u"%1.cpp"_s.arg(first));
        QFile file(fileName);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write");
        file.write(sourceOf(first, qMin(macros, first + macrosPerFile)));
        fileNames.append(fileName);
    }
    return fileNames;
}

QByteArray databaseOf(int materials)
{
    QByteArray database = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<materials>\n";
    for (int number = 0; number < materials; ++number)
        database += "   <material>\n      <name>Steel, grade " + QByteArray::number(number) +
                    "</name>\n      <density unit=\"kg/m3\">7850</density>\n   </material>\n";
    return database + "</materials>\n";
}

Scan::FoundKeys keysIn(const QStringList &fileNames)
{
    Scan::FoundKeys found;
    const auto receive = [&found](qsizetype, const Scan::SourceScanner &scanner) {
        Scan::addKeys(found, scanner);
        return Scan::Continuation::Continue;
    };
    Scan::scanFiles(u"client"_s, fileNames, receive, 1);
    return found;
}

QStringList namesIn(const QByteArray &database)
{
    QBuffer device;
    device.setData(database);
    device.open(QIODevice::ReadOnly);
    return *Materials::readMaterialNames(device);
}

/// The median of five runs, in nanoseconds per item.
template<typename Work>
double perItem(int items, Work work)
{
    Bench::Samples samples{};
    for (double &sample : samples)
        sample = Bench::milliseconds(work);
    return Bench::median(samples) * 1e6 / items;
}

void measure(int items)
{
    const QTemporaryDir folder;
    const QStringList fileNames = writeSources(folder, items);
    const QByteArray database = databaseOf(items);
    const Scan::FoundKeys keys = keysIn(fileNames);
    const QStringList names = namesIn(database);
    if (keys.size() != items || names.size() != items)
        qFatal("found %lld keys and %lld names", static_cast<long long>(keys.size()),
               static_cast<long long>(names.size()));

    const double scan = perItem(items, [&] { keysIn(fileNames); });
    const double synchronise = perItem(items, [&] {
        Clt::MessageTable table;
        Synchronisation::synchronizeKeys(table, keys);
    });
    const double read = perItem(items, [&] { namesIn(database); });
    Translation::TranslationTable filled;
    const double feed = perItem(items, [&] {
        filled = Translation::TranslationTable();
        Materials::synchronizeNames(filled, names);
    });
    const double again = perItem(items, [&] { Materials::synchronizeNames(filled, names); });
    std::printf("%9d %8.0f %8.0f %8.0f %8.0f %8.0f\n", items, scan, synchronise, read, feed, again);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const int items = QCoreApplication::arguments().value(1).toInt();
    if (items <= 0)
        qFatal("usage: bench_scale ITEMS");
    measure(items);
    return 0;
}
