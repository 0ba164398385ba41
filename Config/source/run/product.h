#pragma once

#include <QString>

// The product's names as its texts, paths and registry keys use them.

inline const QString productMaker = QStringLiteral("Velmora");
inline const QString productName = QStringLiteral("NVX");
inline const QString productRelease = QStringLiteral("2017");
inline const QString productVersion = QStringLiteral("17.2");
inline const QString productFullName = QStringLiteral("NVX 2017");
