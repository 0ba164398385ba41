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

} // namespace

ProjectScan scanProject(const Scan::VisualStudioProject &project, const ScanReceiver &receive)
{
    ProjectScan scan;
    const auto take = [&](qsizetype index, const Scan::SourceScanner &scanner) {
        const Scan::ProjectSource &source = project.sources.at(index);
        if (scanner.hasError())
            scan.errors.append(u"%1: %2"_s.arg(source.name, scanner.errorText()));
        if (!source.problem.isEmpty())
            scan.errors.last() += u" (%1)"_s.arg(source.problem);
        Scan::addKeys(scan.keys, scanner);
        return receive(index + 1, scan.keys.size()) ? Scan::Continuation::Continue : Scan::Continuation::Stop;
    };
    Scan::scanFiles(project.process(), project.paths(), take);
    return scan;
}

QString scanErrorText(const QStringList &errors)
{
    constexpr qsizetype maximum = 10;
    QStringList lines = errors.mid(0, maximum);
    if (errors.size() > maximum)
        lines.append(Texts::tr("... and %1 more").arg(errors.size() - maximum));
    lines.append(QString());
    lines.append(Texts::tr("These files were skipped: their messages were not found."));
    return lines.join(u'\n');
}

} // namespace MessageWindow
