#pragma once

#include <QDir>
#include <QString>
#include <QTemporaryDir>

/// A fresh folder for one test; the destructor deletes it with its contents.
class TestFolder
{
public:
    /// Its path, with native separators and without a trailing one.
    QString path() const { return QDir::toNativeSeparators(m_folder.path()); }

    /// The path of a file or folder in it; the name is separated by "/".
    QString path(const QString &name) const { return QDir::toNativeSeparators(m_folder.filePath(name)); }

    bool isValid() const { return m_folder.isValid(); }

private:
    QTemporaryDir m_folder;
};
