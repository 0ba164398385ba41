#pragma once

#include "translation/error_translation_table.h"
#include "window/table_window.h"

#include <QSet>
#include <QString>
#include <QStringList>

namespace mat {

/// The window on a translation table of material names: opens and saves it, and synchronises it with a
/// material database.
class MaterialNameUtility : public Window::TableWindow
{
    Q_OBJECT

public:
    /// The dialogs and the settings must outlive the window.
    MaterialNameUtility(Window::Dialogs &dialogs, QSettings &settings);

    const Translation::TranslationTable &table() const { return m_table; }

    /// The material database that was chosen last; empty at first.
    const QString &databaseFile() const { return m_databaseFile; }

    /// The names in the database, including duplicates.
    const QStringList &materialNames() const { return m_materialNames; }

public slots:
    /// Synchronises the table with the database; asks for one if none is given.
    void synchronize(const QString &databaseFile = QString());

protected:
    void clearTable() override;
    Nvx::Util::Outcome loadTable(const QString &fileName, Window::Progress &progress) override;
    bool saveTable(const QString &fileName) override;
    QString backupFile() const override { return m_table.backupFile(); }
    Clt::Leftovers leftovers() const override { return m_table.leftovers(); }
    Window::MarkedRows rows() const override;

    /// Synchronises with a material database; opens any other file.
    void dropEvent(QDropEvent *event) override;

private:
    static Window::TableWindowTexts texts();

    // Reads the database's names into m_materialNames. If this fails, it informs the user and returns false.
    bool readDatabase();
    void synchronizeWithNames();

    Translation::TranslationTable m_table;
    bool m_hasTable = false;
    QString m_databaseFile;
    QStringList m_materialNames;
    QSet<QString> m_newNames; // those that the last synchronisation added
};

} // namespace mat
