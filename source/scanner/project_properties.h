#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace Scan {

/// One of the texts that an expression of a project file may have.
struct ProjectText
{
    QString text;         ///< with its escape sequences such as %20
    QString problem = {}; ///< why the expression has no text; empty if it has one
};

/// Conditions are not evaluated, so a property may have several values, one for each configuration.
using ProjectTexts = QList<ProjectText>;

/// The properties of a project and its imported files. Names are compared without case.
class ProjectProperties
{
public:
    static constexpr qsizetype maximumValues = 64;            ///< of one expression
    static constexpr qsizetype maximumLength = 1024 * 1024;   ///< of one value
    static constexpr qint64 maximumTotal = 256 * 1024 * 1024; ///< of all values, in UTF-16 code units

    /// Sets a property that a project file cannot change, such as MSBuildProjectName.
    void reserve(const QString &name, const QString &value);

    /// Adds a value of a property that does not depend on the project file.
    void addValue(const QString &name, const QString &value);

    /// Assigns the value of an expression. Without a condition it replaces the earlier values. With one it is
    /// added to them, except that a default ('$(NAME)' == '') only counts for a property without a value.
    void assign(const QString &name, const QString &expression, const QString &condition, bool isConditional);

    /// The texts of an expression, with the values of its properties. It has a problem if it refers to an
    /// unknown property, to metadata, to a list of items, or calls a function. There is at least one text.
    ProjectTexts expand(const QString &expression);

private:
    ProjectTexts valuesOf(const QString &reference, const QString &assigned) const;
    ProjectTexts expand(const QString &expression, const QString &assigned);

    QHash<QString, QString> m_reserved;
    QHash<QString, ProjectTexts> m_values;
    qint64 m_left = maximumTotal;
};

/// The entries of a list, which are separated by semicolons outside of references such as $(NAME).
QStringList listEntries(const QString &list);

/// The text without escape sequences such as %20, except those of "*" and "?", which no file name contains.
QString unescaped(const QString &text);

} // namespace Scan
