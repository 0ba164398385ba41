#pragma once

#include "material_name_utility/mat_material_name_utility.h"
#include "support/file_bytes.h"
#include "support/recording_dialogs.h"
#include "support/test_folder.h"
#include "translation/error_translation_table.h"

#include <QAction>
#include <QApplication>
#include <QSettings>
#include <QStatusBar>
#include <QTableView>

/// The names as a material database.
inline QByteArray databaseOf(const QStringList &names)
{
    QByteArray database = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<materials>\n";
    for (const QString &name : names)
        database += "<material><name>" + name.toHtmlEscaped().toUtf8() + "</name></material>\n";
    return database + "</materials>\n";
}

/// So many different names, not in their order.
inline QStringList manyNames(int count)
{
    QStringList names;
    for (int number = 0; number < count; ++number)
        names.append(QStringLiteral("Stahl № %1").arg(QString::number(number * 7919LL % count), 7, u'0'));
    return names;
}

/// The window with all that it needs; a translation file of three names, one of them obsolete; and a
/// database.
struct NameUtilityFixture
{
    NameUtilityFixture()
    {
        Error::TranslationContext names(QStringLiteral("Clt::Material"));
        names.append({QStringLiteral("Water"), QStringLiteral("Wasser"), QString(), QString()});
        names.append({QStringLiteral("Oil"), QStringLiteral("Öl"), QStringLiteral("obsolete"), QString()});
        names.append({QStringLiteral("Air"), QStringLiteral("Air"), QStringLiteral("unfinished"), QString()});
        Error::TranslationTable table;
        table.setContext(names);
        table.addString(QStringLiteral("Clt::Session"), QStringLiteral("No server"));
        if (!table.save(tableFile))
            qFatal("cannot save the table");
        writeDatabase({QStringLiteral("Water"), QStringLiteral("Steel"), QStringLiteral("Iron")});
        window.setProgressDelay(0);
    }

    QAction *action(const char *name) { return window.findChild<QAction *>(QLatin1String(name)); }
    bool isEnabled(const char *name) { return action(name)->isEnabled(); }
    QString status() { return window.statusBar()->currentMessage(); }
    QTableView *view() { return window.findChild<QTableView *>(QStringLiteral("tableWidget")); }

    /// The rows that are shown, each as "NAME|TRANSLATION", those with a mark as "NAME|TRANSLATION|TOOL TIP".
    QStringList shownRows()
    {
        QStringList rows;
        const QAbstractItemModel *model = view()->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column)
                cells.append(model->index(row, column).data().toString());
            const QString toolTip = model->index(row, 0).data(Qt::ToolTipRole).toString();
            if (!toolTip.isEmpty())
                cells.append(toolTip);
            rows.append(cells.join(u'|'));
        }
        return rows;
    }

    static QString newToolTip() { return QStringLiteral("New in the material database, to be translated"); }
    static QString obsoleteToolTip()
    {
        return QStringLiteral("Obsolete: was not found in the material database; the translation is kept");
    }

    /// What the translation file of the fixture shows.
    static QStringList tableRows()
    {
        return {QStringLiteral("Air|Air"), QStringLiteral("Oil|Öl|") + obsoleteToolTip(),
                QStringLiteral("Water|Wasser")};
    }

    void writeDatabase(const QStringList &names) const
    {
        if (!writeBytes(databaseFile, databaseOf(names)))
            qFatal("cannot write the database");
    }

    TestFolder folder;
    QString tableFile = folder.path(QStringLiteral("matprop_de.ts"));
    QString otherFile = folder.path(QStringLiteral("other.ts"));
    QString databaseFile = folder.path(QStringLiteral("matprop.mdb"));
    QSettings settings{folder.path(QStringLiteral("settings.ini")), QSettings::IniFormat};
    RecordingDialogs dialogs;
    mat::MaterialNameUtility window{dialogs, settings};
};
