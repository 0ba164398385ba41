#pragma once

#include "cad/cad_packages.h"
#include "run/launcher_boxes.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

class RegistryListing;

/// How the search leaves one box.
struct LauncherBox
{
    Launcher launcher;
    bool found;
    QString label; ///< empty leaves the text as it is
};

/// What the search for CAD systems came to.
struct CadSearch
{
    Q_DECLARE_TR_FUNCTIONS(CadSearch)

public:
    CadPackages packages;
    QList<LauncherBox> boxes; ///< one for each launcher
    QStringList lines;        ///< for the log, in order
};

/// Searches the registry for the CAD systems that have a launcher. foundWord begins the lines that say what
/// was found. What is missing from the registry reads as empty; nothing fails.
CadSearch searchCadPackages(const RegistryListing &registry, const QString &foundWord);
