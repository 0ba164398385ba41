#pragma once

#include <QString>

// The product's names as its texts and paths use them.

inline const QString productName = QStringLiteral("NVX");
inline const QString productRelease = QStringLiteral("2017");
inline const QString productFullName = QStringLiteral("NVX 2017");
