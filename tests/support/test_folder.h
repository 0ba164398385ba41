#pragma once

#include <QDir>
#include <QString>
#include <QTemporaryDir>

/// A fresh folder for one test, removed with all that it holds at the end.
class TestFolder
{
public:
    /// Its path, with native separators and without a trailing one.
    QString path() const { return QDir::toNativeSeparators(m_folder.path()); }

    /// The path of something in it, named with "/".
    QString path(const QString &name) const { return QDir::toNativeSeparators(m_folder.filePath(name)); }

    bool isValid() const { return m_folder.isValid(); }

private:
    QTemporaryDir m_folder;
};
