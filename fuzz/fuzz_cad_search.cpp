// For any registry the search ends, and the check boxes, the results and the log agree.

#include "cad/cad_systems.h"
#include "support/table_registry.h"

#include <cstdlib>

using namespace Nvx::Cad;
using namespace Qt::Literals::StringLiterals;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

const QStringList searchedKeys{u"Software\\Velmora\\Brevant\\Current Version"_s,
                               u"SOFTWARE\\Velmora\\Brevant\\RegistryVersion20.0"_s,
                               u"Software\\PTC\\Creo Parametric\\1.0"_s,
                               u"Software\\PTC\\Creo Parametric\\2.0\\2013"_s,
                               u"SOFTWARE\\Wow6432Node\\PTC\\Creo Parametric\\2.0\\2013"_s,
                               u"SOFTWARE\\Wow6432Node\\PTC\\PTC Creo Parametric\\3.0\\2014"_s,
                               u"Software\\SolidWorks\\SolidWorks 2016\\Setup"_s,
                               u"Software\\Unigraphics Solutions\\NX\\9.5"_s,
                               u"Software\\Unigraphics Solutions\\NX\\11.0"_s,
                               u"SOFTWARE\\Velmora\\Tamsel\\Velmora Tamsel 2015\\Components"_s,
                               u"SOFTWARE\\Velmora\\Tamsel\\Velmora Tamsel MEP 2018\\Components"_s,
                               u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\a"_s,
                               u"Software\\Classes\\SpaceClaim.Location"_s};

const QStringList searchedNames{u"LASTVERSIONRUN"_s, u"ProductName"_s,       u"INSTALLDIR"_s,
                                u"SHIPCODE"_s,       u"SolidWorks Folder"_s, u"UGII_BASE_DIR"_s,
                                u"ProductCode"_s,    u"InstallLocation"_s};

// Each line of the input is a value: a byte for the key, a byte for the name, then either the text alone, or
// the rest of the key, the name and the text, separated by null bytes.
void fill(TableRegistry &registry, const QByteArray &input)
{
    const QList<QByteArray> lines = input.split('\n');
    for (const QByteArray &line : lines) {
        if (line.size() < 2)
            continue;
        const auto at = [&line](int place, qsizetype count) {
            return static_cast<unsigned char>(line[place]) % count;
        };
        QString key = u"HKEY_LOCAL_MACHINE\\"_s + searchedKeys.at(at(0, searchedKeys.size()));
        QString name = searchedNames.at(at(1, searchedNames.size()));
        const QList<QByteArray> texts = line.mid(2).split('\0');
        if (texts.size() > 1)
            key += u'\\' + QString::fromUtf8(texts.first());
        if (texts.size() > 2)
            name = QString::fromUtf8(texts.at(1));
        registry.put(key, name, QString::fromUtf8(texts.last()));
    }
}

bool isChecked(const CadSearch &search, Launcher launcher)
{
    for (const CheckBoxState &state : search.checkBoxes) {
        if (state.launcher == launcher)
            return state.label.has_value();
    }
    std::abort();
}

void requireThatCheckBoxesMatchResults(const CadSearch &search)
{
    const CadPackages &packages = search.packages;
    const auto isEditionFound = [&packages](TamselEdition edition) {
        return !packages.tamselVersions(edition).isEmpty();
    };
    require(isChecked(search, Launcher::Brevant) == (packages.brevantVersion != 0));
    require(isChecked(search, Launcher::Creo) == (packages.creoVersion != 0));
    require(isChecked(search, Launcher::SolidWorks) == (packages.solidWorksVersion != 0));
    require(isChecked(search, Launcher::Nx) == (packages.nxIndex >= 0));
    require(isChecked(search, Launcher::Tamsel) == isEditionFound(TamselEdition::Plain));
    require(isChecked(search, Launcher::TamselArchitecture) == isEditionFound(TamselEdition::Architecture));
    require(isChecked(search, Launcher::TamselMep) == isEditionFound(TamselEdition::Mep));
    require(isChecked(search, Launcher::SpaceClaim) == packages.spaceClaimFound);
    for (const CheckBoxState &state : search.checkBoxes)
        require(!state.label || !state.label->isEmpty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    TableRegistry registry;
    fill(registry, QByteArray(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size)));
    const CadSearch search = searchCadPackages(registry, u"Found "_s);

    requireThatCheckBoxesMatchResults(search);
    const CadPackages &packages = search.packages;
    require(packages.brevantVersion == 0 || packages.brevantVersion > 2014);
    require(packages.creoVersion >= 0 && packages.creoVersion <= 3);
    require(packages.nxIndex < 8);
    for (const TamselInstall &install : packages.tamselInstalls)
        require(!install.installDir.isEmpty() && install.year >= 2015 && install.year <= 2018);
    require(search.lines.contains(u"Found Solidworks=%1"_s.arg(packages.solidWorksVersion)));
    require(search.lines.contains(u"Found UGNX=%1"_s.arg(packages.nxIndex)));
    return 0;
}
