#pragma once

#include <QString>

/// The product's names, as used in texts, paths, services and registry keys. For a new release, change them
/// here and the version in the top CMakeLists.txt; the build checks that they match.
namespace Nvx::Product {

inline const QString maker = QStringLiteral("Velmora");
inline const QString name = QStringLiteral("NVX");
inline const QString release = QStringLiteral("2017");
inline const QString version = QStringLiteral("17.2");
inline const QString fullName = QStringLiteral("NVX 2017");
inline const QString serverService = QStringLiteral("NVX 2017 Server");
inline const QString jobMonitor = QStringLiteral("NVX 2017 Job Monitor");

// Files in the install dir.
inline const QString program = QStringLiteral("NVX.exe");
inline const QString solverProgram = QStringLiteral("NVXSolver.exe");
inline const QString serverProgram = QStringLiteral("NVXServer.exe");
inline const QString monitorProgram = QStringLiteral("NVXMonitor.exe");
inline const QString runLog = QStringLiteral("NVXConfig.log");

// Files in the all-users data folder and in the folders of the languages.
inline const QString flagsFile = QStringLiteral("NVX_flags.txt");
inline const QString materialNames = QStringLiteral("matprop.mdb");

} // namespace Nvx::Product
