#pragma once

#include <QDir>
#include <QTest>

/// One test row for each folder in the folder of cases, named like it.
inline void addCaseRows(const QString &casesFolder)
{
    QTest::addColumn<QString>("folder");
    const QDir cases(casesFolder);
    const QStringList names = cases.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << cases.filePath(name);
}
