#pragma once

#include <QString>

#include <array>

/// The editions of Tamsel, each of which has a launcher of its own.
enum class TamselEdition
{
    Plain,
    Architecture,
    Mep
};

constexpr int tamselEditionCount = 3;

/// The CAD systems found on the machine. The places of a table that are named beside it are in use.
struct CadPackages
{
    int brevantVersion = 0;  ///< newest year, 0 for not found
    QString brevantVersions; ///< each year followed by a blank

    int creoVersion = 0;                    ///< newest major release, 0 for not found
    std::array<QString, 4> creoInstallDirs; ///< by release, 1 to 3; empty for not found
    std::array<QString, 4> creoShipCodes;   ///< by release, 1 to 3

    int solidWorksVersion = 0;    ///< newest year, 0 for not found
    QString solidWorksInstallDir; ///< of the last year probed that had one

    int nxIndex = -1;                     ///< last place found in the tables below, -1 for not found
    std::array<QString, 8> nxInstallDirs; ///< by version, empty for not found
    std::array<QString, 8> nxKeys;        ///< the registry key that named the folder, by version

    /// By edition and year less 2010, 5 to 8; empty for not found.
    std::array<std::array<QString, 9>, tamselEditionCount> tamselInstallDirs;
    std::array<QString, tamselEditionCount> tamselVersions; ///< by edition, each year after a blank

    bool spaceClaimFound = false;
};
