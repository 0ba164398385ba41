#pragma once

#include <QDir>
#include <QTest>

/// Adds a test row for each folder with cases for which `isFor` returns true, with the name of the folder.
template<typename IsFor>
void addCaseRows(const QString &casesFolder, IsFor isFor)
{
    QTest::addColumn<QString>("folder");
    const QDir cases(casesFolder);
    const QStringList names = cases.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &name : names) {
        if (isFor(QDir(cases.filePath(name))))
            QTest::newRow(qPrintable(name)) << cases.filePath(name);
    }
}

/// Adds a test row for each folder with cases, with the name of the folder.
inline void addCaseRows(const QString &casesFolder)
{
    addCaseRows(casesFolder, [](const QDir &) { return true; });
}
