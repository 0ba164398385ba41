#pragma once

#include "material_name_utility/material_name_utility.h"
#include "translation/error_translation_table.h"
#include "window/window_fixture.h"

/// A material database with those names.
inline QByteArray databaseOf(const QStringList &names)
{
    QByteArray database = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<materials>\n";
    for (const QString &name : names)
        database += "<material><name>" + name.toHtmlEscaped().toUtf8() + "</name></material>\n";
    return database + "</materials>\n";
}

/// The window, a translation file with three names, one of them obsolete, and a database.
struct NameUtilityFixture : WindowFixture<mat::MaterialNameUtility>
{
    NameUtilityFixture()
    {
        using namespace Qt::Literals::StringLiterals;
        Translation::TranslationContext names(u"Clt::Material"_s);
        names.append({u"Water"_s, u"Wasser"_s, QString(), QString()});
        names.append({u"Oil"_s, u"Öl"_s, u"obsolete"_s, QString()});
        names.append({u"Air"_s, u"Air"_s, u"unfinished"_s, QString()});
        Translation::TranslationTable table;
        table.setContext(names);
        table.addString(u"Clt::Session"_s, u"No server"_s);
        if (!table.save(tableFile))
            qFatal("cannot save the table");
        writeDatabase({u"Water"_s, u"Steel"_s, u"Iron"_s});
        window.setProgressDelay(0);
    }

    bool areTableActionsEnabled(bool areEnabled)
    {
        return WindowFixture::areTableActionsEnabled(areEnabled, {"actionSynchronize"});
    }

    /// The rows on the screen as "NAME|TRANSLATION", marked rows as "NAME|TRANSLATION|TOOL TIP".
    QStringList shownRows()
    {
        QStringList rows = WindowFixture::shownRows();
        for (int row = 0; row < rows.size(); ++row) {
            const QString toolTip = view()->model()->index(row, 0).data(Qt::ToolTipRole).toString();
            if (!toolTip.isEmpty())
                rows[row] += u'|' + toolTip;
        }
        return rows;
    }

    static QString newToolTip() { return QStringLiteral("New in the material database, to be translated"); }
    static QString obsoleteToolTip()
    {
        return QStringLiteral("Obsolete: was not found in the material database; the translation is kept");
    }

    /// The rows of the translation file.
    static QStringList tableRows()
    {
        using namespace Qt::Literals::StringLiterals;
        return {u"Air|Air"_s, u"Oil|Öl|"_s + obsoleteToolTip(), u"Water|Wasser"_s};
    }

    void writeDatabase(const QStringList &names) const
    {
        if (!writeBytes(databaseFile, databaseOf(names)))
            qFatal("cannot write the database");
    }

    QString tableFile = folder.path(QStringLiteral("matprop_de.ts"));
    QString otherFile = folder.path(QStringLiteral("other.ts"));
    QString databaseFile = folder.path(QStringLiteral("matprop.mdb"));
};
