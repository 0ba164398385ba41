#pragma once

#include "scanner/project_folders.h"

#include <QMap>

/// Folders that exist only as a list of files by their absolute paths.
class ListedFolders : public Scan::ProjectFolders
{
public:
    void add(const QString &path, const QByteArray &contents = QByteArray())
    {
        m_files.insert(path, contents);
        qsizetype slash = path.lastIndexOf(u'/');
        auto kind = EntryKind::File;
        while (slash >= 0) {
            const QString parent = slash == 0 ? QStringLiteral("/") : path.left(slash);
            const qsizetype end = path.indexOf(u'/', slash + 1);
            const QString name = path.mid(slash + 1, end < 0 ? -1 : end - slash - 1);
            if (m_kinds[parent].contains(name))
                break;
            m_kinds[parent].insert(name, kind);
            kind = EntryKind::Folder;
            slash = slash == 0 ? -1 : path.lastIndexOf(u'/', slash - 1);
        }
    }

    /// Makes a folder a link.
    void link(const QString &folder, const QString &name) { m_kinds[folder][name] = EntryKind::LinkedFolder; }

    std::vector<Entry> entries(const QString &folder) const override
    {
        ++m_listed;
        std::vector<Entry> entries;
        const QMap<QString, EntryKind> names = m_kinds.value(folder);
        for (auto name = names.begin(); name != names.end(); ++name)
            entries.push_back({.name = name.key(), .kind = name.value()});
        return entries;
    }

    Nvx::Util::Result<QByteArray> contents(const QString &path) const override
    {
        const auto file = m_files.constFind(path);
        if (file == m_files.cend())
            return Nvx::Util::Failure{QStringLiteral("the file does not exist")};
        return *file;
    }

    /// How many times a folder has been listed.
    int listed() const { return m_listed; }

private:
    QMap<QString, QByteArray> m_files;
    QMap<QString, QMap<QString, EntryKind>> m_kinds;
    mutable int m_listed = 0;
};
