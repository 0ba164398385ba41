#include "cad_case.h"

#include "support/file_bytes.h"
#include "support/table_registry.h"

namespace {

QString contents(const QString &file)
{
    QString text = QString::fromUtf8(fileLines(file).value_or(QByteArray()));
    return text.replace(QLatin1String("@LONG@"), QString(10000, QLatin1Char('x')));
}

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

// One line for each place of a table that is in use.
template<typename Table>
QString tableLines(const QString &name, const Table &table)
{
    QString lines;
    for (size_t place = 0; place < table.size(); ++place) {
        if (!table[place].isEmpty())
            lines += QStringLiteral("%1 %2 %3\n").arg(name, QString::number(place), quoted(table[place]));
    }
    return lines;
}

QString numberLine(const QString &name, int number, int none)
{
    return number == none ? QString() : QStringLiteral("%1 %2\n").arg(name, QString::number(number));
}

QString textLine(const QString &name, const QString &text)
{
    return text.isEmpty() ? QString() : QStringLiteral("%1 %2\n").arg(name, quoted(text));
}

QString results(const CadPackages &packages)
{
    QString lines = numberLine(QStringLiteral("brevant version"), packages.brevantVersion, 0) +
                    textLine(QStringLiteral("brevant versions"), packages.brevantVersions) +
                    numberLine(QStringLiteral("creo version"), packages.creoVersion, 0) +
                    tableLines(QStringLiteral("creo dir"), packages.creoInstallDirs) +
                    tableLines(QStringLiteral("creo ship code"), packages.creoShipCodes) +
                    numberLine(QStringLiteral("solidworks version"), packages.solidWorksVersion, 0) +
                    textLine(QStringLiteral("solidworks dir"), packages.solidWorksInstallDir) +
                    numberLine(QStringLiteral("nx index"), packages.nxIndex, -1) +
                    tableLines(QStringLiteral("nx dir"), packages.nxInstallDirs) +
                    tableLines(QStringLiteral("nx key"), packages.nxKeys);
    const QStringList editions{QStringLiteral("tamsel"), QStringLiteral("tamsel architecture"),
                               QStringLiteral("tamsel mep")};
    for (size_t edition = 0; edition < tamselEditionCount; ++edition) {
        const QString &name = editions.at(static_cast<qsizetype>(edition));
        lines += textLine(name + QStringLiteral(" versions"), packages.tamselVersions[edition]) +
                 tableLines(name + QStringLiteral(" dir"), packages.tamselInstallDirs[edition]);
    }
    return lines + (packages.spaceClaimFound ? QStringLiteral("spaceclaim found\n") : QString());
}

QString boxes(const CadSearch &search)
{
    const QStringList names{QStringLiteral("Creo"),      QStringLiteral("SolidWorks"),
                            QStringLiteral("Brevant"),   QStringLiteral("Nx"),
                            QStringLiteral("Tamsel"),    QStringLiteral("TamselArchitecture"),
                            QStringLiteral("TamselMep"), QStringLiteral("SpaceClaim")};
    QString lines;
    for (const LauncherBox &box : search.boxes) {
        const QString &name = names.at(static_cast<int>(box.launcher));
        if (box.found)
            lines += QStringLiteral("box %1 %2\n").arg(name, quoted(box.label));
        else if (!box.label.isEmpty())
            lines += QStringLiteral("unticked box %1 %2\n").arg(name, quoted(box.label));
    }
    return lines;
}

} // namespace

CadCase CadCase::read(const QString &folder)
{
    return {contents(folder + QStringLiteral("/machine.reg")),
            contents(folder + QStringLiteral("/expected.txt")),
            contents(folder + QStringLiteral("/log.txt"))};
}

QString described(const CadSearch &search)
{
    const QStringList usual = searchCadPackages(TableRegistry(), QStringLiteral("Found ")).lines;
    QString text = results(search.packages) + boxes(search);
    for (const QString &line : search.lines) {
        if (!usual.contains(line))
            text += QStringLiteral("log ") + line + QLatin1Char('\n');
    }
    return text;
}

QString wholeLog(const CadSearch &search)
{
    return search.lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}
