#pragma once

#include <QDir>
#include <QTest>

/// One test row for each folder in the folder of cases, named like it, that the test is for.
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

/// One test row for each folder in the folder of cases, named like it.
inline void addCaseRows(const QString &casesFolder)
{
    addCaseRows(casesFolder, [](const QDir &) { return true; });
}
