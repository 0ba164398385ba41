#include "message_table_utility/project_scan.h"

#include "scanner/error_visual_studio_project.h"
#include "scanner/scan_files.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace MessageWindow {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ProjectScan)
};

QStringList firstLines(const QStringList &lines)
{
    constexpr qsizetype maximum = 10;
    QStringList first = lines.mid(0, maximum);
    if (lines.size() > maximum)
        first.append(Texts::tr("... and %1 more").arg(lines.size() - maximum));
    return first;
}

} // namespace

ProjectScan scanProject(const Scan::VisualStudioProject &project, const ScanReceiver &receive)
{
    ProjectScan scan;
    const auto take = [&](qsizetype index, const Scan::SourceScanner &scanner) {
        const Scan::ProjectSource &source = project.sources.at(index);
        if (scanner.hasError())
            scan.errors.append(u"%1: %2"_s.arg(source.name, scanner.errorText()));
        if (const QString problem = Scan::openProblem(source, scanner); !problem.isEmpty())
            scan.errors.last() += u" (%1)"_s.arg(problem);
        Scan::addKeys(scan.keys, scanner);
        return receive(index + 1, scan.keys.size()) ? Scan::Continuation::Continue : Scan::Continuation::Stop;
    };
    Scan::scanFiles(project.process(), project.paths(), take);
    return scan;
}

QString scanErrorText(const QStringList &errors, const QStringList &notes)
{
    QStringList lines;
    if (!errors.isEmpty())
        lines << firstLines(errors) << QString()
              << Texts::tr("These files were skipped: their messages were not found.");
    if (!errors.isEmpty() && !notes.isEmpty())
        lines << QString();
    if (!notes.isEmpty())
        lines << firstLines(notes) << QString()
              << Texts::tr(
                     "These entries of the project were not resolved: the files that they list were not "
                     "scanned.");
    return lines.join(u'\n');
}

} // namespace MessageWindow
