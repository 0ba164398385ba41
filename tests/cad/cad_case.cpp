#include "cad_case.h"

#include "cad/cad_systems.h"
#include "support/file_bytes.h"
#include "support/table_registry.h"

using namespace Nvx::Cad;
using namespace Qt::Literals::StringLiterals;

namespace {

QString contents(const QString &file)
{
    QString text = QString::fromUtf8(fileLines(file).value_or(QByteArray()));
    return text.replace("@LONG@"_L1, QString(10000, u'x'));
}

QString quoted(const QString &text)
{
    return u'"' + text + u'"';
}

QString numberLine(const QString &name, int number, int notFound)
{
    return number == notFound ? QString() : u"%1 %2\n"_s.arg(name, QString::number(number));
}

QString textLine(const QString &name, const QString &text)
{
    return text.isEmpty() ? QString() : u"%1 %2\n"_s.arg(name, quoted(text));
}

QString creoLines(const CadPackages &packages)
{
    QString dirs;
    QString shipCodes;
    for (const CreoInstall &install : packages.creoInstalls) {
        dirs += textLine(u"creo dir %1"_s.arg(install.release), install.installDir);
        shipCodes += textLine(u"creo ship code %1"_s.arg(install.release), install.shipCode);
    }
    return numberLine(u"creo version"_s, packages.creoVersion, 0) + dirs + shipCodes;
}

QString nxLines(const CadPackages &packages)
{
    QString dirs;
    QString keys;
    for (const NxInstall &install : packages.nxInstalls) {
        dirs += textLine(u"nx dir %1"_s.arg(install.index), install.installDir);
        keys += textLine(u"nx key %1"_s.arg(install.index), install.registryKey);
    }
    return numberLine(u"nx index"_s, packages.nxIndex, -1) + dirs + keys;
}

QString tamselLines(const CadPackages &packages, TamselEdition edition, const QString &name)
{
    QString lines = textLine(name + u" versions"_s, packages.tamselVersions(edition));
    for (const TamselInstall &install : packages.tamselInstalls) {
        if (install.edition == edition)
            lines += textLine(u"%1 dir %2"_s.arg(name, QString::number(install.year)), install.installDir);
    }
    return lines;
}

QString packageLines(const CadPackages &packages)
{
    return numberLine(u"brevant version"_s, packages.brevantVersion, 0) +
           textLine(u"brevant versions"_s, packages.brevantVersions) + creoLines(packages) +
           numberLine(u"solidworks version"_s, packages.solidWorksVersion, 0) +
           textLine(u"solidworks dir"_s, packages.solidWorksInstallDir) + nxLines(packages) +
           tamselLines(packages, TamselEdition::Plain, u"tamsel"_s) +
           tamselLines(packages, TamselEdition::Architecture, u"tamsel architecture"_s) +
           tamselLines(packages, TamselEdition::Mep, u"tamsel mep"_s) +
           (packages.spaceClaimFound ? u"spaceclaim found\n"_s : QString());
}

QString checkBoxLines(const CadSearch &search)
{
    QString lines;
    for (const CheckBoxState &state : search.checkBoxes) {
        const QString before = QString::fromLatin1(cadSystem(state.launcher).label);
        if (state.label)
            lines += u"check box %1 %2\n"_s.arg(quoted(before), quoted(*state.label));
    }
    return lines;
}

} // namespace

CadCase CadCase::read(const QString &folder)
{
    return {contents(folder + u"/machine.reg"_s), contents(folder + u"/expected.txt"_s),
            contents(folder + u"/log.txt"_s)};
}

QString described(const CadSearch &search)
{
    const QStringList usual = searchCadPackages(TableRegistry(), u"Found "_s).lines;
    QString text = packageLines(search.packages) + checkBoxLines(search);
    for (const QString &line : search.lines) {
        if (!usual.contains(line))
            text += u"log "_s + line + u'\n';
    }
    return text;
}

QString wholeLog(const CadSearch &search)
{
    return search.lines.join(u'\n') + u'\n';
}
