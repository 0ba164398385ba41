// Measures the parts of a scan: reading the files, searching them for macro names, and parsing them, each on
// one thread; then the whole scan on one and on several threads. Argument: a file with the source files'
// paths, one per line.

#include "measure.h"
#include "scanner/macro_finder.h"
#include "scanner/parser.h"
#include "scanner/scan_files.h"
#include "scanner/source_text.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>
#include <QTextStream>

#include <algorithm>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList listedFiles(const QString &listName)
{
    QFile list(listName);
    if (!list.open(QIODevice::ReadOnly))
        qFatal("cannot read the list of files");
    return QString::fromUtf8(list.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

std::vector<QByteArray> readAll(const QStringList &fileNames)
{
    std::vector<QByteArray> contents;
    for (const QString &fileName : fileNames) {
        QFile file(fileName);
        if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            qFatal("cannot read %s", qPrintable(fileName));
        contents.push_back(file.readAll());
    }
    return contents;
}

std::string_view viewOf(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

qsizetype countNaming(const std::vector<QByteArray> &texts)
{
    return std::count_if(texts.begin(), texts.end(),
                         [](const QByteArray &text) { return Scan::namesMacro(viewOf(text)); });
}

std::size_t countCalls(const std::vector<QByteArray> &texts)
{
    std::size_t calls = 0;
    for (const QByteArray &text : texts) {
        const QByteArray source = Scan::toSourceText(text);
        Scan::Parser parser(viewOf(source));
        static_cast<void>(parser.parse());
        calls += parser.calls().size();
    }
    return calls;
}

void scan(const QStringList &fileNames, int threads)
{
    const auto receive = [](qsizetype, const Scan::SourceScanner &) { return Scan::Continuation::Continue; };
    Scan::scanFiles(u"client"_s, fileNames, receive, threads);
}

template<typename Work>
void report(QTextStream &out, const char *name, double megabytes, Work work)
{
    Bench::Samples samples{};
    for (double &sample : samples)
        sample = Bench::milliseconds(work);
    const double median = Bench::median(samples);
    out << QString::asprintf("%-36s %9.2f ms %9.0f MB/s\n", name, median, megabytes / median * 1000)
        << Qt::flush;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2)
        qFatal("usage: bench_scanner LIST");
    const QStringList fileNames = listedFiles(arguments.at(1));
    const std::vector<QByteArray> texts = readAll(fileNames);
    double megabytes = 0;
    for (const QByteArray &text : texts)
        megabytes += static_cast<double>(text.size()) / 1e6;

    QTextStream out(stdout);
    out << fileNames.size() << " files, " << megabytes << " MB, " << countNaming(texts)
        << " that name a macro, " << countCalls(texts) << " calls; medians of five\n";
    report(out, "read the files, one thread", megabytes, [&] { readAll(fileNames); });
    report(out, "search for macro names, in memory", megabytes, [&] { countNaming(texts); });
    report(out, "parse, in memory", megabytes, [&] { countCalls(texts); });
    report(out, "all together, one thread", megabytes, [&] { scan(fileNames, 1); });
    report(out, "all together, all processors", megabytes, [&] { scan(fileNames, 0); });
    return 0;
}
