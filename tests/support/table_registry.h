#pragma once

#include "cad/registry_listing.h"

#include <QMap>
#include <QPair>

/// A registry with the values that a test puts into it.
class TableRegistry : public Nvx::Cad::RegistryListing
{
public:
    /// Adds a value at the end of its key, or replaces the value of that name in any letter case.
    void put(const QString &key, const QString &name, const QString &text)
    {
        QList<QPair<QString, QString>> &values = m_keys[placeOf(key)].values;
        m_keys[placeOf(key)].path = key;
        for (auto &value : values) {
            if (value.first.compare(name, Qt::CaseInsensitive) == 0) {
                value.second = text;
                return;
            }
        }
        values.append({name, text});
    }

    /// Adds a key, which may have no values.
    void putKey(const QString &key) { m_keys[placeOf(key)].path = key; }

    QStringList keyPaths() const
    {
        QStringList paths;
        for (const Key &key : m_keys)
            paths << key.path;
        return paths;
    }

    QList<Nvx::Cad::ListedValue> valuesBelow(const QString &key) const override
    {
        QList<Nvx::Cad::ListedValue> values;
        const QString place = placeOf(key);
        for (auto found = m_keys.lowerBound(place); found != m_keys.end(); ++found) {
            const bool isBelow = found.key().startsWith(place + separator);
            if (found.key() != place && !isBelow)
                break;
            const QString prefix = prefixOf(found->path.mid(key.size()));
            for (const auto &[name, text] : found->values)
                values.append({prefix + Nvx::Cad::listedName(name), text});
        }
        return values;
    }

    QString valueOf(const QString &key, const QString &valueName) const override
    {
        const QList<QPair<QString, QString>> values = m_keys.value(placeOf(key)).values;
        for (const auto &[name, text] : values) {
            if (name.compare(valueName, Qt::CaseInsensitive) == 0)
                return text;
        }
        return QString();
    }

private:
    struct Key
    {
        QString path;
        QList<QPair<QString, QString>> values;
    };

    // Sorts before every other character, so that the keys below a key follow it directly.
    static constexpr QChar separator = QChar(1);

    static QString placeOf(const QString &key) { return key.toLower().replace(u'\\', separator); }

    static QString prefixOf(const QString &pathFromKey)
    {
        QString prefix;
        const QStringList levels = pathFromKey.split(u'\\', Qt::SkipEmptyParts);
        for (const QString &level : levels)
            prefix += Nvx::Cad::listedName(level) + u'/';
        return prefix;
    }

    QMap<QString, Key> m_keys;
};
